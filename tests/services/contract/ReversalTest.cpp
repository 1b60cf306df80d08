#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
#include "frame/servicos/ZOVA_N_RelFin.clsRelFin.h"
#include "services/Database.h"

namespace services {
namespace {

using Register = servicos::ZOVA_N_Caixa::clsCaixa;

/// A sale of today that is cancelled, and the undoing of that.
class ReversalTest : public OverDatabase {
 protected:
  void SetUp() override {
    OverDatabase::SetUp();
    Write(
        "INSERT INTO pre_vendas (numero, tipo_de_lancamento, codigo_do_cliente,"
        " data_de_lancamento, codigo_do_item, nome_do_item, quantidade, valor_unitario,"
        " valor_total, incluido_em, incluido_por) VALUES (41, 1, 5, '2026-11-20', 30, 'Banho',"
        " 10000, 400000, 400000, '2026-11-20 09:00:00', 'marina')");
    const NewSale sale(
        {.lines = Grid({PreSaleLine("40,00", 41), ProductLine("60,00")}),
         .tenders = Grid({Tender("1-Dinheiro", "60,00"), Tender("7-Crédito do cliente", "20,00"),
                          Tender("6-A crédito (Fiado)", "30,00", "28/02/2027")}),
         .change = -10_brl});
    ASSERT_EQ(0, sale->RegistrarPagamento()) << sale->DescricaoDaFalha();
  }

  struct By {
    const SessionRecord& user;
    double sale = 1;
    std::int32_t drawer = 1;
    const char* why = "engano";
  };
  /// The status, and the words of a refusal behind it.
  static std::string Turn(const By& by, bool back) {
    const auto service = servicos::CriarServico<Register>();
    service->NumeroDoCaixa(by.drawer);
    service->DadosDoUsuario(&by.user);
    const auto status = back ? service->DesfazerCancelamento(by.sale, by.why)
                             : service->CancelarVenda(by.sale, by.why);
    return std::to_string(status) + " " + service->DescricaoDaFalha() + service->DescricaoDoErro();
  }
  static std::string Cancel(const By& by) { return Turn(by, false); }
  static std::string Restore(const By& by) { return Turn(by, true); }
  /// Cash and credit, the receivable, open lines of pre-sale, entries, state and key of the sale.
  std::string State() {
    return Read(
        "SELECT (SELECT dinheiro / 10000 FROM caixas WHERE numero = 1) || ' ' ||"
        " (SELECT credito / 10000 FROM clientes WHERE codigo = 5) || ' ' ||"
        " (SELECT max(situacao) FROM contas_a_receber) || ' ' ||"
        " (SELECT count(*) FROM pre_vendas WHERE numero_da_venda IS NULL) || ' ' ||"
        " (SELECT count(*) FROM lancamentos_de_caixa) || ' ' ||"
        " (SELECT max(situacao) FROM vendas)");
  }
  static constexpr const char* kSold = "50 30 aberta 0 4 F";

  const SessionRecord marina_{"marina", true};
  const SessionRecord caio_{"caio"};
};
OVER_BOTH_ENGINES(ReversalTest);

TEST_P(ReversalTest, EndsWhereOneOfTheTwoStatesSays) {
  EXPECT_EQ(kSold, State());
  EXPECT_EQ("0 ", Cancel({marina_}));
  EXPECT_EQ("0 50 cancelada 1 6 C", State());
  ExpectBooksBalance();
  EXPECT_EQ("0 ", Restore({marina_}));
  EXPECT_EQ("50 30 aberta 0 8 F", State());
  ExpectBooksBalance();
  EXPECT_EQ("0 ", Cancel({marina_, 1, 1, "  d'água;\nDROP TABLE \"vendas\" "}));
  EXPECT_EQ("0 50 cancelada 1 10 C", State());
  ExpectBooksBalance();
  EXPECT_EQ("marina C d'água;\nDROP TABLE \"vendas\"",
            Read("SELECT operador || ' ' || situacao || ' ' || motivo FROM cancelamentos_de_venda"
                 " ORDER BY numero DESC LIMIT 1"));
}

TEST_P(ReversalTest, WhatCannotBeTurnedIsRefusedAndNothingIsWritten) {
  const std::string before = State();
  EXPECT_EQ("2 O motivo está em branco. Informe-o e confirme de novo.",
            Cancel({marina_, 1, 1, "  "}));
  EXPECT_EQ("2 A venda 1 não está cancelada.", Restore({marina_}));
  EXPECT_EQ("2 A venda 77 não está registrada.", Cancel({marina_, 77}));
  EXPECT_EQ("2 A venda 0 não está registrada.", Cancel({marina_, 1.5}));
  EXPECT_EQ("52 Este caixa não está aberto. Abra-o antes de continuar.", Cancel({marina_, 1, 2}));
  EXPECT_EQ("43 Este caixa foi desativado. Selecione outro caixa.", Cancel({marina_, 1, 3}));
  EXPECT_EQ("41 Este caixa não existe mais. Selecione outro caixa.", Cancel({marina_, 1, 9}));
  Write("UPDATE caixas SET aberto = 1 WHERE numero = 2");
  EXPECT_EQ("2 A venda 1 é do caixa 1. Faça isto nele.", Cancel({marina_, 1, 2}));
  clock_.now = clock_.now.PlusDays(1);
  EXPECT_EQ("2 A venda 1 não é de hoje. Só as vendas do dia podem ser canceladas ou restauradas.",
            Cancel({marina_}));
  clock_.now = clock_.now.PlusDays(-1);
  for (const char* state : {"recebida", "renegociada"}) {
    Write("UPDATE contas_a_receber SET data_de_recebimento = '2026-11-22', situacao = '" +
          std::string(state) + "'");
    EXPECT_EQ(
        "2 A venda 1 tem um débito que já foi recebido ou renegociado, e não pode ser cancelada. "
        "Acerte com o cliente de outra forma.",
        Cancel({marina_}));
  }
  Write("UPDATE contas_a_receber SET data_de_recebimento = NULL, situacao = 'aberta'");
  EXPECT_EQ(before, State());
  EXPECT_EQ("0 ", Cancel({marina_}));
  EXPECT_EQ("2 A venda 1 já está cancelada.", Cancel({marina_}));
  Write("DELETE FROM pre_vendas");
  EXPECT_TRUE(Restore({marina_}).starts_with("2 A venda 1 tem um item de pré-venda que já foi"));
  EXPECT_EQ("0 50 cancelada 0 6 C", State());
}

TEST_P(ReversalTest, WithoutTheRightASupervisorConsentsOnceAndForAWhile) {
  const std::string refused =
      "2 O usuário não tem permissão para isto, e nenhum supervisor autorizou. Peça a autorização "
      "de um supervisor.";
  EXPECT_EQ(refused, Cancel({caio_}));
  banco_->Consentir(std::make_shared<SessionRecord>("renata"));
  EXPECT_EQ(refused, Cancel({caio_})) << "she has no such right";
  const auto consent = [&] { banco_->Consentir(std::make_shared<SessionRecord>("paulo", true)); };
  consent();
  clock_.elapsed += 901;
  EXPECT_EQ(refused, Cancel({caio_}));
  consent();
  EXPECT_EQ("0 ", Cancel({caio_}));
  EXPECT_EQ("paulo", Read("SELECT max(consentido_por) FROM cancelamentos_de_venda"));
  EXPECT_EQ("paulo", Read("SELECT max(consentido_por) FROM lancamentos_de_caixa"));
  EXPECT_EQ(refused, Restore({caio_})) << "each consent serves once";
  consent();
  const auto list = servicos::CriarServico<Register>();
  std::int32_t drawer = 1;
  EXPECT_EQ(0, list->PesquisarVendaDoDia("C", drawer, 0, 1));
  EXPECT_EQ(refused, Restore({caio_})) << "it was for what came before the list";
  consent();
  const SessionRecord other("caio");
  EXPECT_EQ(refused, Restore({other})) << "another session";
}

TEST_P(ReversalTest, ReportsAreAskedForByTheirConditionsAlone) {
  const auto service = servicos::CriarServico<servicos::ZOVA_N_RelFin::clsRelFin>();
  const auto rows = [&](std::string ofRegister, std::string ofPeriod) {
    const auto status = service->SelecionarResumoDeCaixas(ofRegister, ofPeriod);
    return status == 0 ? service->ResultadoDaSelecaoEmRecordSet()->RecordCount() : -status;
  };
  const std::string period =
      " LancamentosDeCaixas.DataDoLancamento Between #11/22/2026# And #11/22/2026# ";
  EXPECT_EQ(1, rows("", period));
  EXPECT_EQ(1, rows(" Caixas.Numero = 1", period + "AND LancamentosDeCaixas.NumeroDoCaixa=1 "));
  EXPECT_EQ(
      1, rows("", " LancamentosDeCaixas.DataDoLancamento Between #01/01/0001# And #12/31/9999# "));
  EXPECT_EQ(0, rows(" Caixas.Numero = 2", period + "AND LancamentosDeCaixas.NumeroDoCaixa=2 "));
  for (const auto& [ofRegister, ofPeriod] : std::vector<std::pair<std::string, std::string>>{
           {" Caixas.Numero = 1", period},
           {"", period + "AND LancamentosDeCaixas.NumeroDoCaixa=1 "},
           {" Caixas.Numero = 1 OR 1=1", period + "AND LancamentosDeCaixas.NumeroDoCaixa=1 "},
           {"", " LancamentosDeCaixas.DataDoLancamento Between #13/22/2026# And #11/22/2026# "},
           {" Caixas.Numero = 0", period + "AND LancamentosDeCaixas.NumeroDoCaixa=0 "},
           {"", ""}}) {
    EXPECT_EQ(-1, rows(ofRegister, ofPeriod)) << ofRegister << ofPeriod;
  }
}

}  // namespace
}  // namespace services
