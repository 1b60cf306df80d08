// The confirmation: what reaches the services, what is printed, and how the screen ends.

#include "checkout/CheckoutTest.h"

namespace checkout {
namespace {

using platform::Answer;
using platform::Icon;
using platform::Key;
using platform::KeyStroke;
using testing::ElementsAre;

class ConfirmTest : public CheckoutTest {
 protected:
  std::int16_t PayInCash(std::string_view net, std::string_view value) {
    return Pay(net, "0", [&](frmCaixaPagar& form) {
      Add(form, 1, value);
      input::Click(form.zvcmdConfirmar);
    });
  }
  std::int16_t PayOnCredit() {
    return Pay("100", "0", [&](frmCaixaPagar& form) {
      Add(form, 6, "100");
      module.TakeCalls();
      input::Click(form.zvcmdConfirmar);
      EXPECT_FALSE(form.IsVisible());
    });
  }
  std::vector<std::string> Texts() {
    std::vector<std::string> texts;
    for (const platform::MessageBox& box : module.desktop.TakeBoxes()) texts.push_back(box.text);
    return texts;
  }
  std::int64_t Registrations() {
    const std::vector<std::string> calls = module.TakeCalls();
    return std::ranges::count(calls, "RegistrarPagamento");
  }
};

TEST_F(ConfirmTest, EveryAmountOfTheSaleReachesTheService) {
  // The key of an earlier sale's coupon is not this one's.
  frame::valores().ChaveSAT = "3515";
  EXPECT_EQ(Pay("1100", "50",
                [&](frmCaixaPagar& form) {
                  Add(form, 7, "30");
                  Add(form, 1, "1500");
                  Change(form, "400");
                  input::Click(form.zvcmdConfirmar);
                  EXPECT_FALSE(form.IsVisible());
                }),
            0);
  const std::vector<std::string> calls = module.TakeCalls();
  EXPECT_EQ(calls.front(),
            "GradeDePagamentosEfetuados grid [7-Crédito do cliente|30,00|__/__/____|] "
            "[1-Dinheiro|1.500,00|__/__/____|]");
  EXPECT_THAT(calls,
              testing::IsSupersetOf(
                  {"Troco currency -400", "CreditoAnteriorDoCliente currency 20",
                   "CreditoParaOCliente currency 30", "ValorBruto currency 1110",
                   "ValorTotalDeDescontos currency 10", "ValorLiquido currency 1100",
                   "GradeDeItensDaVenda grid [||||Rex|||||||||||||||1]", "Custo currency 31,25",
                   "Comissao currency 4,5", "LucroEmValor currency 20,1",
                   "LucroEmPercentual currency 0,2", "NumeroDaFichaClinica 88"}));
  for (const std::string& call : calls) EXPECT_FALSE(call.starts_with("ChaveSAT")) << call;
}

// The change is sent as it stands in the box, but for one below 1,00; credit that was hidden again
// is still sent.
TEST_F(ConfirmTest, TheChangeAndTheCreditThatAreSent) {
  for (const std::vector<std::string>& row : support::Table(R"(
    100,00 | 100     |    | 0         | 0
    100,00 | 150     |    | -50       | 0
    100,00 | 101     |    | -1        | 0
    100,00 | 100,50  |    | 0         | 0
    100,00 | 100,99  |    | 0         | 0
    100,00 | 1350,25 |    | -1250,25  | 0
    100,00 | 150     | 30 | -30       | 20
    100,00 | 150     | 0  | 0         | 50
    100,00 | 150     | 30;50 | -50    | 20
    0      | 0       |    | 0         | 0
  )")) {
    SCOPED_TRACE(row[1] + " " + row[2]);
    EXPECT_EQ(Pay(row[0], "0",
                  [&](frmCaixaPagar& form) {
                    Add(form, 1, row[1]);
                    if (!row[2].empty()) {
                      for (const std::string& typed : base::Split(row[2], ';')) Change(form, typed);
                    }
                    input::Click(form.zvcmdConfirmar);
                  }),
              0);
    EXPECT_THAT(module.TakeCalls(),
                testing::IsSupersetOf(
                    {"Troco currency " + row[3], "CreditoParaOCliente currency " + row[4]}));
  }
}

TEST_F(ConfirmTest, ThePromissoryNoteGoesOutForASaleOnCredit) {
  frame::valores().ImprimirNotaPromissoria = true;
  frame::valores().VisualizarImpressaoDaNotaPromissoria = true;
  EXPECT_EQ(PayOnCredit(), 0);
  const std::vector<std::string> calls = module.TakeCalls();
  ASSERT_GE(calls.size(), 3U);
  EXPECT_THAT(std::vector<std::string>(calls.end() - 3, calls.end()),
              ElementsAre("NomeDaAplicacao \"Caixa\"", "DadosDoUsuario record",
                          "ImprimirNotaPromissoria \"22/11/2026\" date 22/11/2026 currency 100 "
                          "double 12 True"));

  frame::valores().SolicitarConfirmacaoParaImprimirNotaPromissoria = true;
  for (const Answer answer : {Answer::kNo, Answer::kYes}) {
    module.desktop.Answer(answer);
    EXPECT_EQ(PayOnCredit(), 0);
    const std::vector<platform::MessageBox> boxes = module.desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "Deseja imprimir a nota promissória?");
    EXPECT_EQ(boxes[0].preset, Answer::kNo);
    const std::string note =
        "ImprimirNotaPromissoria \"22/11/2026\" date 22/11/2026 currency 100 double 12 True";
    EXPECT_EQ(module.TakeCalls().back(), answer == Answer::kYes ? note : "NumeroDaVenda");
  }
  // Cash owes nothing.
  EXPECT_EQ(PayInCash("100", "100"), 0);
  EXPECT_EQ(module.TakeCalls().back(), "NumeroDaVenda");
}

TEST_F(ConfirmTest, TheReceiptIsAskedForWithThePanelOutOfTheWay) {
  frame::valores().ImprimirComprovanteDePagamento = true;
  frame::valores().SolicitarConfirmacaoParaImprimirComprovanteDePagamento = true;
  module.desktop.TakeJournal();
  module.desktop.Answer(Answer::kNo);
  EXPECT_EQ(PayInCash("100", "100"), 0);
  EXPECT_THAT(Texts(), ElementsAre("Deseja imprimir o comprovante de pagamento?"));
  // The question stands over the host as it is, and the panel comes back behind it.
  EXPECT_THAT(module.desktop.TakeJournal(),
              ElementsAre("show frmCaixaPagar", "dim 7 1", "undim 7", "dim 7 1", "undim 7",
                          "hide frmCaixaPagar", "forget frmCaixaPagar"));
}

}  // namespace
}  // namespace checkout
