#include "base/Text.h"
#include "frame/servicos/ZOVA_N_Administrativo.clsAdministrativo.h"
#include "frame/servicos/ZOVA_N_Caixa.clsDebitosVencCliente.h"
#include "frame/servicos/ZOVA_N_Caixa.clsServicosEProdutos.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsAnimais.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsClientes.h"
#include "services/Database.h"

namespace services {
namespace {

using Administration = servicos::ZOVA_N_Administrativo::clsAdministrativo;
using Customers = servicos::ZOVA_N_ClientAnim::clsClientes;
using Overdue = servicos::ZOVA_N_Caixa::clsDebitosVencCliente;
using PreSales = servicos::ZOVA_N_Caixa::clsServicosEProdutos;

/// What belongs to one customer: lock, limit, debts, animals, open pre-sale.
class CustomerTest : public OverDatabase {
 protected:
  /// Takes customer 5 for a user at a computer; the words of a refusal.
  std::string Lock(const std::string& computer, const std::string& user, double code = 5) {
    const SessionRecord record(user);
    const auto service = servicos::CriarServico<Administration>();
    service->NomeDoComputador(computer);
    service->DadosDoUsuario(&record);
    const auto status = service->BloquearCliente(1, code, 2);
    EXPECT_EQ(status == 0, service->DescricaoDaFalha().empty());
    EXPECT_NE(1, status) << service->DescricaoDoErro();
    return service->DescricaoDaFalha();
  }
  /// As the module frees a customer: without naming the computer.
  std::int16_t Free(const std::string& computer) {
    const auto service = servicos::CriarServico<Administration>();
    if (!computer.empty()) service->NomeDoComputador(computer);
    double code = 5;
    return service->DesbloquearCliente(1, code, 2);
  }
  std::string Holder() {
    const auto service = servicos::CriarServico<Administration>();
    double code = 5;
    EXPECT_EQ(0, service->SelecionarClientesComTransacoesBloqueadas(2, 0, code, 1));
    const auto rows = service->ResultadoDaSelecaoEmRecordSet();
    if (rows->RecordCount() == 0) return "";
    return base::ToText(rows->Fields("NomeDoUsuario")) + "@" +
           base::ToText(rows->Fields("NomeDoComputador"));
  }
  void Debt(const std::string& due, const std::string& value, const std::string& paid = "NULL") {
    Write(
        "INSERT INTO contas_a_receber (codigo_do_cliente, apelido_do_cliente, nome_do_cliente,"
        " valor_da_venda, recebido_a_vista, percentual_recebido_a_vista, numero_da_parcela,"
        " numero_de_parcelas, numero_de_parcelas_anterior, historico, data_de_vencimento,"
        " valor_do_documento, data_de_recebimento, incluido_em, incluido_por)"
        " VALUES (5, '', '', 0, 0, 0, 1, 1, 1, '', '" +
        due + "', " + value + ", " + paid + ", '2026-01-01 00:00:00', 'marina')");
  }
};
OVER_BOTH_ENGINES(CustomerTest);

TEST_P(CustomerTest, OneComputerAtATimeHoldsACustomer) {
  EXPECT_EQ("", Holder());
  EXPECT_EQ("", Lock("RECEPCAO", "renata"));
  EXPECT_EQ("", Lock("recepcao", "caio")) << "the same computer takes it again";
  EXPECT_EQ("caio@recepcao", Holder());
  EXPECT_EQ(
      "Este cliente está em atendimento com caio no computador recepcao. Aguarde o fim do "
      "atendimento.",
      Lock("LOJA", "paulo"));
  EXPECT_EQ(servicos::kRecusa, Free("LOJA"));
  EXPECT_EQ("caio@recepcao", Holder());
  EXPECT_EQ(0, Free("")) << "without a name it is this computer that frees";
  EXPECT_EQ("", Holder());
  EXPECT_EQ(0, Free("LOJA")) << "nobody holds it: nothing to refuse";
  EXPECT_EQ("", Lock("LOJA", "paulo"));
  EXPECT_EQ("Não há cliente cadastrado com o código 77. Selecione o cliente de novo.",
            Lock("LOJA", "paulo", 77));
}

TEST_P(CustomerTest, TwoComputersOfOneNameAreTwo) {
  const auto at = [&](const std::string& mark) {
    banco_ = Another("RECEPCAO", mark);
    RegistrarServicos(banco_);
  };
  Write(
      "INSERT INTO travas_de_clientes (codigo_do_cliente, nome_do_computador, computador_busca,"
      " nome_do_usuario, data_e_hora) VALUES (5, 'Recepcao', 'RECEPCAO', 'caio',"
      " '2026-11-22 08:00:00')");
  at("aaaa");
  EXPECT_EQ("caio@Recepcao", Holder()) << "an older version's lock may be its own";
  EXPECT_EQ("", Lock("RECEPCAO", "renata"));
  at("bbbb");
  EXPECT_EQ("renata@RECEPCAO (outro computador)", Holder());
  EXPECT_EQ(
      "Este cliente está em atendimento com renata no computador RECEPCAO (outro computador). "
      "Aguarde o fim do atendimento.",
      Lock("RECEPCAO", "paulo"));
  EXPECT_EQ(servicos::kRecusa, Free(""));
  at("");
  EXPECT_EQ("renata@RECEPCAO", Holder()) << "without a mark the name alone counts";
  at("aaaa");
  EXPECT_EQ(0, Free(""));
  EXPECT_EQ("", Holder());
}

TEST_P(CustomerTest, TheLimitIsLoweredByWhatIsOpen) {
  Write("UPDATE clientes SET limite_de_credito = 5000000 WHERE codigo = 5");
  Debt("2026-12-01", "4000000");
  Debt("2026-01-01", "500000");
  Debt("2026-01-01", "900000", "'2026-02-01'");
  const auto service = servicos::CriarServico<Customers>();
  base::Currency limit;
  base::Currency used;
  base::Currency available;
  double code = 5;
  EXPECT_EQ(0, service->RetornarInformacoesDoLimiteDeCredito(code, limit, used, available));
  EXPECT_EQ(500_brl, limit);
  EXPECT_EQ(450_brl, used);
  EXPECT_EQ(50_brl, available);
  code = 77;
  EXPECT_EQ(servicos::kErro,
            service->RetornarInformacoesDoLimiteDeCredito(code, limit, used, available));
  EXPECT_EQ("Não há cliente cadastrado com o código 77.", service->DescricaoDoErro());
}

TEST_P(CustomerTest, ADebtOfTodayIsNotOverdue) {
  Debt("2026-11-21", "10000");
  Debt("2026-11-22", "10000");
  Debt("2026-11-01", "10000", "'2026-11-02'");
  const auto service = servicos::CriarServico<Overdue>();
  EXPECT_EQ(0, service->Selecionar(2, " WHERE [ContasAReceber.CodigoDoCliente]=5"));
  EXPECT_EQ(1, service->ResultadoDaSelecaoEmRecordSet()->RecordCount());
  clock_.now = clock_.now.PlusDays(1);
  EXPECT_EQ(0, service->Selecionar(2, " WHERE [ContasAReceber.CodigoDoCliente]=5 "));
  EXPECT_EQ(2, service->ResultadoDaSelecaoEmRecordSet()->RecordCount());
}

TEST_P(CustomerTest, ConditionsAreReadAndNeverRun) {
  const auto service = servicos::CriarServico<Overdue>();
  for (const char* condition :
       {"", " WHERE [ContasAReceber.CodigoDoCliente]=5 OR 1=1", " WHERE [Outra.Coluna]=5",
        " WHERE [ContasAReceber.CodigoDoCliente]=", "; DELETE FROM clientes"}) {
    EXPECT_EQ(servicos::kErro, service->Selecionar(2, condition)) << condition;
    EXPECT_EQ(5, service->NumeroDoErro()) << condition;
  }
}

TEST_P(CustomerTest, AnimalsByName) {
  Write(
      "INSERT INTO animais (codigo, codigo_do_cliente, nome, ativo) VALUES (1, 5, 'Rex', 1),"
      " (2, 5, 'Bob', 1), (3, 5, 'Velho', 0)");
  const auto service = servicos::CriarServico<servicos::ZOVA_N_ClientAnim::clsAnimais>();
  double code = 5;
  ASSERT_EQ(0, service->SelecionarParaComboBoxFiltradoPorCliente(code, 3));
  EXPECT_EQ("Bob|2;Rex|1;", service->ResultadoDaSelecaoEmRecordSet()->GetString("|", ";"));
}

TEST_P(CustomerTest, TheOpenPreSaleComesAsCellsOfTheGrid) {
  const std::string columns =
      "INSERT INTO pre_vendas (numero, tipo_de_lancamento, codigo_do_cliente, data_de_lancamento,"
      " tipo_de_servico, codigo_de_barras, codigo_do_item, nome_do_item, codigo_do_animal,"
      " nome_do_animal, codigo_do_funcionario, nome_do_funcionario, quantidade, valor_unitario,"
      " desconto_em_percentual, desconto_em_valor, valor_total, custo, percentual_de_comissao,"
      " valor_da_comissao, unidade, incluido_em, incluido_por, numero_da_ficha_clinica) VALUES ";
  Write(columns +
        "(21, 1, 5, '2026-11-20', 5, '', 30, 'Banho', 7, 'Rex', 3, 'Tati', 20000, 12345600, 100000,"
        " 1234500, 23456700, 0, 300000, 50000, '', '2026-11-20 09:15:00', 'marina', 88)");
  Write(columns +
        "(22, 2, 5, '2026-11-21', NULL, '7890000010015', 12, 'Ração', NULL, '', NULL, '',"
        " 1500, 600000, 0, 0, 90000, 40000, 0, 0, 'KG', '2026-11-21 09:15:00', 'caio', "
        "0)");
  const auto service = servicos::CriarServico<PreSales>();
  double code = 5;
  ASSERT_EQ(0, service->ServicosEfetuadosEProdutosReservados(code));
  const auto rows = service->ResultadoDaSelecaoEmRecordSet();
  EXPECT_EQ("NumeroDoTipoDeServicoOuCodigoDeBarrasDoProduto", rows->FieldName(0));
  EXPECT_EQ("TipoDeLancamento", rows->FieldName(19));
  EXPECT_EQ(
      "5|30|Banho|7|Rex|3|Tati|2|1.234,56|-10,00|-123,45|2.345,67|0,00|30,00|5,00|21||0|2|1\n"
      "7890000010015|12|Ração|||0||0,15|60,00|0,00|0,00|9,00|4,00|0,00|0,00|22|KG|0|2|2\n",
      rows->GetString("|", "\n"));
  ASSERT_EQ(0, service->SelecionarServicosEfetuados(
                   0, 0, " WHERE ServicosEfetuados.NumeroDeLancamento = 21 "));
  EXPECT_EQ("88",
            base::ToText(service->ResultadoDaSelecaoEmRecordSet()->Fields("NumeroDaFichaClinica")));
  ASSERT_EQ(0, service->SelecionarProdutosReservados(
                   0, 0, " WHERE ProdutosReservados.NumeroDeLancamento = 21 "));
  EXPECT_EQ(0, service->ResultadoDaSelecaoEmRecordSet()->RecordCount()) << "21 is a service";
}

}  // namespace
}  // namespace services
