#include "desktop/screen/Clinic.h"

namespace {

using xscreen::Operator;

class FirstSaleTest : public xscreen::Clinic {};

TEST_F(FirstSaleTest, IsRungUpWithTheMouseAndAScanner) {
  OnScreen(true, [this](Operator& at) {
    SignInAndOpenTheRegister(at);
    at.Fill("zvfNomeOuRazaoSocialDoCliente", "figueira");
    at.Key("Return");
    at.See("zvfNomeOuRazaoSocialDoCliente", "Ana Clara Figueira Duarte");
    EXPECT_NE(Bank({QStringLiteral("travas")}).find("Ana Clara"), std::string::npos);

    at.Pick("zvcmbTiposDeServicos", "Clínicos");
    at.Fill("zvfNomeDoServico", "clinica geral");
    at.Key("Return");
    at.See("zvfNomeDoServico", "Consulta clínica geral");
    at.See("zvcmbAnimal", "Pipoca");
    at.Click("zvcmdAdicionar");
    at.See("zvnumLiquidoAPagar", "140,00");

    at.Click("optProduto");
    at.Click("zvfCodigoDeBarrasDoProduto");
    at.Scan("7890000010030");
    at.See("zvfNomeDoProduto", "Ração cães adultos Farejão 15 kg");
    at.Fill("zvnumPercentualDeDescontoPorItem", "5,00");
    at.Key("Tab");
    at.See("zvnumValorDeDescontoPorItem", "9,50");
    at.Click("zvcmdAdicionar");
    at.See("zvnumLiquidoAPagar", "320,40");

    at.Click("zvcmdPagamento");
    at.See("frmCaixaPagar");
    at.Pick("zvcmbFormaDePagamento", "3-Cartão de crédito");
    at.Fill("zvnumValor", "100,00");
    at.Click("zvcmdAdicionar");
    at.See("zvtxtSaldoDevedorOuTroco", "220,40");
    at.Pick("zvcmbFormaDePagamento", "1-Dinheiro");
    at.Fill("zvnumValor", "250,00");
    at.Click("zvcmdAdicionar");
    at.See("zvtxtSaldoDevedorOuTroco", "-29,60");
    at.DoubleClick("zvcmdConfirmar");
    at.See("frmCaixaOperar");
    at.See("zvnumLiquidoAPagar", "0,00");

    // The next customer is being served when the window is closed.
    at.Fill("zvfCodigoDoCliente", "3");
    at.Key("Return");
    at.See("zvfNomeOuRazaoSocialDoCliente", "Bento Camargo Vilela");
    EXPECT_EQ(Bank({QStringLiteral("travas")}).find("Nenhum"), std::string::npos);
    EXPECT_EQ(at.End([&](QProcess&) { at.Key("alt+F4"); }), 0);
  });
  EXPECT_EQ(Bank({QStringLiteral("vendas")}), R"(Venda 1  (agora)  caixa 1  operador marina
  Cliente: 2 - Ana Clara
  Itens:
    1,00 x Consulta clínica geral (Pipoca)              140,00
    1,00 x Ração cães adultos Farejão 15 kg             180,40
        com desconto de 9,50
    Valor bruto                                         329,90
    Valor líquido                                       320,40
  Pagamentos:
    Cartão de crédito                                   100,00
    Dinheiro                                            250,00
    Troco                                                29,60

)");
  ExpectBalancedAndFree();
}

void SignInAndOpenTheRegisterByKeys(Operator& at) {
  at.See("frmEntrada");
  at.TabTo("zvtxtUsuario");
  at.Type("marina");
  at.Key("Return");
  at.Type("girassol-41");
  at.Key("Return");
  at.See("frmCaixaOperar");
  at.TabTo("zvcmbCaixas");
  at.Type("r");
  at.See("lblSituacaoDoCaixa", "Fechado");
  at.Key("F10");
  at.Key("Return");
  at.See("frmCaixaAbrir");
  at.Type("150,00");
  at.TabTo("zvcmdSalvar");
  at.Key("Return");
  at.See("lblSituacaoDoCaixa", "Aberto");
}

void PayByKeys(Operator& at) {
  at.TabTo("zvcmdPagamento");
  at.Key("Return");
  at.See("frmCaixaPagar");
  at.TabTo("zvcmbFormaDePagamento");
  at.Type("8");
  at.See("zvcmbFormaDePagamento", "8-PIX");
  at.TabTo("zvnumValor");
  at.Type("33,00");
  at.TabTo("zvcmdAdicionar");
  at.Key("Return");
  at.See("zvtxtSaldoDevedorOuTroco", "100,00");
  at.TabTo("zvcmbFormaDePagamento");
  at.Type("1");
  at.See("zvcmbFormaDePagamento", "1-Dinheiro");
  at.TabTo("zvcmdAdicionar");
  at.Key("Return");
  at.See("zvtxtSaldoDevedorOuTroco", "0,00");
  at.TabTo("zvcmdConfirmar");
  at.Key("Return");
  at.Key("Return");
  at.See("frmCaixaOperar");
  at.See("zvnumLiquidoAPagar", "0,00");
}

/// The sale is found by its number, cancelled, and restored from the same list's twin.
void CancelAndRestoreByKeys(Operator& at) {
  const auto turn = [&](int steps, const char* screen, const char* told) {
    at.Key("F10");
    for (int i = 0; i < steps; ++i) at.Key("Down");
    at.Key("Return");
    at.See(screen);
    at.Type("1");
    at.Key("Return");
    at.Type("engano");
    at.Key("Return");
    at.SeeBox(told);
    at.Key("Return");
    at.See("frmCaixaOperar");
  };
  // From Fechamento, the first that an open register offers.
  turn(3, "frmCaixaCancelarVenda", "Venda cancelada.");
  turn(4, "frmCaixaDesfazerCancelamento", "Desfeito o cancelamento da venda.");
}

TEST_F(FirstSaleTest, IsRungUpWithTheKeyboardAloneAndWithoutAWindowManager) {
  OnScreen(false, [this](Operator& at) {
    SignInAndOpenTheRegisterByKeys(at);
    at.TabTo("zvfNomeOuRazaoSocialDoCliente");
    at.Type("FIGUEIRA");
    at.Key("Return");
    at.See("zvfCodigoDoCliente", "2");
    at.TabTo("zvcmbTiposDeServicos");
    at.Type("c");
    at.See("zvcmbTiposDeServicos", "Clínicos");
    at.TabTo("zvfCodigoDoServico");
    at.Type("1");
    at.Key("Return");
    at.See("zvfNomeDoServico", "Consulta clínica geral");
    at.TabTo("zvcmdAdicionar");
    at.Key("space");
    at.See("zvnumLiquidoAPagar", "140,00");
    at.TabTo("zvnumPercentualTotalDeDesconto");
    at.Type("5,00");
    at.TabTo("zvnumValorTotalDeDesconto");
    at.See("zvnumLiquidoAPagar", "133,00");

    PayByKeys(at);
    CancelAndRestoreByKeys(at);

    // A box is up when the system is shut down.
    at.TabTo("zvfCodigoDoCliente");
    at.Type("3");
    at.Key("Return");
    at.See("zvfNomeOuRazaoSocialDoCliente", "Bento Camargo Vilela");
    at.TabTo("zvcmdPagamento");
    at.Key("Return");
    at.SeeBox("");
    EXPECT_EQ(Bank({QStringLiteral("travas")}).find("Nenhum"), std::string::npos);
    EXPECT_EQ(at.End([](QProcess& program) { program.terminate(); }), 0);
  });
  EXPECT_EQ(Bank({QStringLiteral("vendas")}), R"(Venda 1  (agora)  caixa 1  operador marina
  Cliente: 2 - Ana Clara
  Itens:
    1,00 x Consulta clínica geral (Pipoca)              133,00
        com desconto de 7,00
    Valor bruto                                         140,00
    Desconto nos itens                                    0,00
    Desconto da venda                                    -7,00
    Valor líquido                                       133,00
  Pagamentos:
    PIX                                                  33,00
    Dinheiro                                            100,00
    Troco                                                 0,00

)");
  ExpectBalancedAndFree();
}

}  // namespace
