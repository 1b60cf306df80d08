#include "base/Text.h"
#include "services/Database.h"
#include "siblings/dados/clsCadastroFiscal.h"
#include "siblings/dados/clsDocumentos.h"
#include "siblings/dados/clsHistorico.h"
#include "siblings/dados/clsOrcamentos.h"

namespace services {
namespace {

using namespace siblings::dados;

/// What the sibling screens ask of the database.
class SiblingDataTest : public OverDatabase {
 protected:
  /// All rows as text: fields parted by "|", rows by a line break.
  static std::string All(servicos::ServicoDeNegocio& service) {
    return service.ResultadoDaSelecaoEmRecordSet()->GetString("|", "\n");
  }
  static Orcamento Estimate() {
    return {.codigoDoCliente = 5,
            .codigoDoAnimal = 7,
            .nomeDoAnimal = "Bob",
            .desconto = Brl("1,50"),
            .diasDeValidade = 10,
            .observacao = "Com retorno",
            .operador = "renata",
            .itens = {{1, 28, "Banho", "", 1_brl, Brl("55,00")},
                      {2, 3, "Ração", "KG", Brl("1,255"), Brl("19,90")}}};
  }
};
OVER_BOTH_ENGINES(SiblingDataTest);

TEST_P(SiblingDataTest, TheCodesOfTheCouponAreReadAndRegistered) {
  Write("INSERT INTO produtos (codigo_interno, nome, nome_busca) VALUES (8, 'Coleira', 'coleira')");
  const auto service = servicos::CriarServico<clsCadastroFiscal>();
  ASSERT_EQ(0, service->SelecionarNCM(8));
  EXPECT_EQ("\n", All(*service));
  ASSERT_EQ(0, service->RegistrarNCM(8, "42010090"));
  ASSERT_EQ(0, service->RegistrarMunicipio(5, "3550308"));
  ASSERT_EQ(0, service->SelecionarNCM(8));
  EXPECT_EQ("42010090\n", All(*service));
  ASSERT_EQ(0, service->SelecionarMunicipio(5));
  EXPECT_EQ("3550308\n", All(*service));
  EXPECT_EQ("3550308", Read("SELECT codigo_ibge_do_municipio FROM clientes"));

  EXPECT_EQ(servicos::kRecusa, service->RegistrarMunicipio(6, "3550308"));
  EXPECT_FALSE(service->DescricaoDaFalha().empty());
  EXPECT_EQ(servicos::kRecusa, service->SelecionarNCM(1e300));
}

TEST_P(SiblingDataTest, TheHistoryHasTheCustomersSalesOfThePeriod) {
  const auto sell = [&](base::DateTime when, Sale sale) {
    clock_.now = when;
    NewSale service(std::move(sale));
    ASSERT_EQ(0, service->RegistrarPagamento()) << service->DescricaoDaFalha();
  };
  Write("INSERT INTO clientes (codigo, apelido, nome, nome_busca) VALUES (6, 'Lia', 'Lia', 'lia')");
  sell({2026, 3, 1, 23, 59, 59}, {});
  sell({2026, 3, 2, 0, 0, 0}, {});
  sell({2026, 3, 3, 23, 59, 59},
       {.tenders = Grid{{Tender("1-Dinheiro", "60,00"), Tender("8-PIX", "40,00")}}});
  sell({2026, 3, 3, 12, 0, 0}, {.customer = "6"});
  sell({2026, 3, 4, 0, 0, 0}, {});
  Write("UPDATE vendas SET valor_bruto = 1398800, total_de_descontos = 19000 WHERE numero = 3");
  const auto service = servicos::CriarServico<clsHistorico>();
  ASSERT_EQ(0, service->SelecionarVendas(5, {2026, 3, 2, 8, 0, 0}, {2026, 3, 3, 8, 0, 0}));
  EXPECT_EQ(
      "3|03/03/2026 23:59:59|1|renata|139,88|1,9|100|Efetuada||Dinheiro 60,00 / PIX 40,00|"
      "18,99|20,89\n"
      "2|02/03/2026|1|renata|100|0|100|Efetuada||Dinheiro|0|0\n",
      All(*service));
  EXPECT_EQ("", service->DescricaoDaFalha());
  Write("UPDATE vendas SET situacao = 'C' WHERE numero = 3");
  ASSERT_EQ(0, service->SelecionarVendas(5, {2026, 3, 3}, {2026, 3, 3}));
  EXPECT_EQ("Cancelada",
            base::ToText(service->ResultadoDaSelecaoEmRecordSet()->Fields("Situacao")));
  ASSERT_EQ(0, service->SelecionarItens(3));
  EXPECT_EQ(Read("SELECT nome_do_item FROM itens_de_venda WHERE numero_da_venda = 3"),
            base::ToText(service->ResultadoDaSelecaoEmRecordSet()->Fields("Nome")));
}

TEST_P(SiblingDataTest, AnEstimateStandsUntilItLapsesOrIsCancelled) {
  const auto service = servicos::CriarServico<clsOrcamentos>();
  ASSERT_EQ(0, service->Registrar(Estimate())) << service->DescricaoDoErro();
  const std::int32_t number = service->Numero();
  // 55,00 and 24,97 (24,9745 in whole centavos), less 1,50.
  const std::string row =
      base::ToText(number) + "|22/11/2026 14:30:00|Bob|79,97|1,5|78,47|02/12/2026|";
  const auto listed = [&] {
    EXPECT_EQ(0, service->Selecionar(5));
    return All(*service);
  };
  EXPECT_EQ(row + "Válido|Com retorno|renata\n", listed());
  ASSERT_EQ(0, service->SelecionarItens(number));
  EXPECT_EQ("1|Serviço|28|Banho|1||55|55\n2|Produto|3|Ração|1,255|KG|19,9|24,97\n", All(*service));
  clock_.now = {2026, 12, 2, 23, 0, 0};
  EXPECT_EQ(row + "Válido|Com retorno|renata\n", listed());
  clock_.now = {2026, 12, 3, 0, 0, 0};
  EXPECT_EQ(row + "Vencido|Com retorno|renata\n", listed());
  ASSERT_EQ(0, service->Cancelar(number, "paulo"));
  EXPECT_EQ(row + "Cancelado|Com retorno|renata\n", listed());
  EXPECT_EQ(servicos::kRecusa, service->Cancelar(number, "paulo"));
  EXPECT_EQ("paulo", Read("SELECT cancelado_por FROM orcamentos"));
}

TEST_P(SiblingDataTest, AnEstimateThatMakesNoSenseIsRefusedWhole) {
  const auto refused = [&](auto change) {
    Orcamento estimate = Estimate();
    change(estimate);
    const auto service = servicos::CriarServico<clsOrcamentos>();
    EXPECT_EQ(servicos::kRecusa, service->Registrar(estimate));
    EXPECT_FALSE(service->DescricaoDaFalha().empty());
  };
  refused([](Orcamento& each) { each.itens.clear(); });
  refused([](Orcamento& each) { each.itens[1].quantidade = 0_brl; });
  refused([](Orcamento& each) { each.itens[0].valorUnitario = Brl("-0,01"); });
  refused([](Orcamento& each) { each.desconto = Brl("79,98"); });
  refused([](Orcamento& each) { each.desconto = Brl("-0,01"); });
  refused([](Orcamento& each) { each.diasDeValidade = 0; });
  refused([](Orcamento& each) { each.diasDeValidade = 366; });
  EXPECT_EQ(0, Count("orcamentos"));
  EXPECT_EQ(0, Count("itens_de_orcamento"));
}

TEST_P(SiblingDataTest, ANoteNamesTheInstalmentThatItStandsFor) {
  Sale sale{.tenders = Grid{{Tender("1-Dinheiro", "40,00"),
                             Tender("6-A crédito (Fiado)", "30,00", "22/12/2026"),
                             Tender("6-A crédito (Fiado)", "30,00", "22/01/2027")}}};
  NewSale selling(std::move(sale));
  ASSERT_EQ(0, selling->RegistrarPagamento()) << selling->DescricaoDaFalha();
  const auto service = servicos::CriarServico<clsDocumentos>();
  const base::DateTime today{2026, 11, 22};
  ASSERT_EQ(0, service->SelecionarParcela(5, today, {2027, 1, 22}, 30_brl));
  EXPECT_EQ("1|2|2\n", All(*service));
  for (const auto& [issued, due, value] :
       {std::tuple{today.PlusDays(-1), base::DateTime{2027, 1, 22}, 30_brl},
        std::tuple{today, base::DateTime{2027, 1, 23}, 30_brl},
        std::tuple{today, base::DateTime{2027, 1, 22}, 31_brl}}) {
    ASSERT_EQ(0, service->SelecionarParcela(5, issued, due, value));
    EXPECT_EQ("", All(*service));
  }
  ASSERT_EQ(0, service->SelecionarEmpresa());
  EXPECT_EQ("", All(*service));
  Write(
      "INSERT INTO empresa (codigo, nome_fantasia, formato_de_codigo_de_barras_para_balanca,"
      " codigo_do_documento_com_emissao_permitida, cnpj, uf) VALUES (1, 'Bicho', '', '', '99', "
      "'SP')");
  ASSERT_EQ(0, service->SelecionarEmpresa());
  EXPECT_EQ("Bicho||99|||SP|\n", All(*service));
  ASSERT_EQ(0, service->SelecionarCliente(5));
  EXPECT_EQ("5|Eduardo|||\n", All(*service));
}

}  // namespace
}  // namespace services
