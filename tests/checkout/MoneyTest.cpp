// What tenders, removals and an edited change do to the amounts on the screen.

#include "checkout/CheckoutTest.h"

namespace checkout {
namespace {

class MoneyTest : public CheckoutTest {
 protected:
  /// One act: "3 150" adds a tender of code 3, "t30" types the change, "-1" removes row 1.
  static void Act(frmCaixaPagar& form, const std::string& step) {
    const std::string rest = step.substr(1);
    if (step[0] == 't') {
      Change(form, rest);
    } else if (step[0] == '-') {
      SelectRow(form, base::ToInt32(base::Val(rest)));
      input::Click(form.zvcmdRemover);
    } else {
      Add(form, step[0] - '0', base::Trim(rest));
    }
  }
  static std::string State(const frmCaixaPagar& form) {
    const auto& credit = form.lblCreditoParaOCliente;
    const std::string& caption = form.lblSaldoOuTroco.Caption();
    EXPECT_TRUE(caption == "Saldo a pagar" || caption == "Troco") << caption;
    const std::string kept = credit.IsShown()
                                 ? base::Replace(credit.Caption(), "Credito para o cliente: ", "")
                                 : "(" + credit.Tag() + ")";
    return form.zvtxtValorPago.Text() + " | " + form.zvtxtSaldoDevedorOuTroco.Text() + " | " +
           base::Split(caption, ' ').front() + " | " + form.zvtxtSaldoDevedorOuTroco.Tag() + " | " +
           form.zvnumCreditoDoCliente.Text() + " | " + kept;
  }
  void Check(std::string_view table) {
    for (const std::vector<std::string>& row : support::Table(table)) {
      SCOPED_TRACE(row[2]);
      Pay(row[0], row[1], [&](frmCaixaPagar& form) {
        for (const std::string& step : base::Split(row[2], ';')) Act(form, base::Trim(step));
        const std::string expected = row[3] + " | " + row[4] + " | " + row[5] + " | " + row[6] +
                                     " | " + row[7] + " | " + row[8];
        EXPECT_EQ(State(form), expected);
      });
    }
  }
};

TEST_F(MoneyTest, TendersAddUpAndLeaveABalanceOrChange) {
  // sale, credit | acts | paid | balance | caption | tag | credit left | credit to keep
  Check(R"(
    100 | 0  | 1 40                    | 40,00    | 60,00     | Saldo | 60,00     | 0,00  | (0,00)
    100 | 0  | 1 40; 8 60              | 100,00   | 0,00      | Saldo | 0,00      | 0,00  | (0,00)
    100 | 0  | 3 150                   | 150,00   | -50,00    | Troco | -50,00    | 0,00  | (0,00)
    100 | 0  | 1 100,5                 | 100,50   | -0,50     | Troco | -0,50     | 0,00  | (0,00)
    0   | 0  | 1 0                     | 0,00     | 0,00      | Saldo | 0,00      | 0,00  | (0,00)
    1234,56 | 0 | 2 1000; 4 1234,57 | 2.234,57 | -1.000,01 | Troco | -1.000,01 | 0,00 | (0,00)
    1234,56 | 0 | 2 1.000; 4 1.234,567 | 2.234,56 | -1.000,00 | Troco | -1.000,00 | 0,00 | (0,00)
    100 | 50 | 7 30                    | 30,00    | 70,00     | Saldo | 70,00     | 20,00 | (0,00)
  )");
}

TEST_F(MoneyTest, ChangeThatIsNotHandedOverBecomesCredit) {
  Check(R"(
    100 | 0  | 3 150; t30              | 150,00   | -30,00    | Troco | -50,00    | 0,00  | 20,00
    100 | 0  | 3 150; t0               | 150,00   | 0,00      | Troco | -50,00    | 0,00  | 50,00
    100 | 0  | 3 150; t0,50            | 150,00   | -0,50     | Troco | -50,00    | 0,00  | 49,50
    100 | 0  | 3 150; t30; t20         | 150,00   | -20,00    | Troco | -50,00    | 0,00  | 30,00
    100 | 0  | 3 1500; t150            | 1.500,00 | -150,00   | Troco | -1.400,00 | 0,00  | 1.250,00
    100 | 0  | 3 150; t50              | 150,00   | -50,00    | Troco | -50,00    | 0,00  | (0,00)
  )");
  // The full change again hides the credit but leaves what was noted.
  Check(R"(
    100 | 0  | 3 150; t30; t50         | 150,00   | -50,00    | Troco | -50,00    | 0,00  | (20,00)
  )");
}

TEST_F(MoneyTest, RemovalsCorrectWhatTheTendersDid) {
  // Where there was change, a removal that leaves no credit to keep notes a plain 0.
  Check(R"(
    100 | 0  | 1 40; -1                | 0,00     | 100,00    | Saldo | 60,00     | 0,00  | (0,00)
    100 | 0  | 1 40; 2 30; -1          | 30,00    | 70,00     | Saldo | 30,00     | 0,00  | (0,00)
    100 | 0  | 1 100; 2 30; -2         | 100,00   | 0,00      | Saldo | -30,00    | 0,00  | (0)
    100 | 0  | 1 120; 2 40; -2         | 120,00   | -20,00    | Troco | -60,00    | 0,00  | (0)
    0   | 0  | 1 0; -1                 | 0,00     | 0,00      | Saldo | 0,00      | 0,00  | (0,00)
    100 | 50 | 7 30; -1                | 0,00     | 100,00    | Saldo | 70,00     | 50,00 | (0,00)
    100 | 50 | 1 40; 7 30; -1          | 30,00    | 70,00     | Saldo | 30,00     | 20,00 | (0,00)
  )");
  // A single tender takes sale minus tender off the kept credit, one of several its own value.
  Check(R"(
    100 | 0  | 3 150; t30; -1          | 0,00     | 100,00    | Saldo | -50,00    | 0,00  | (0)
    100 | 0  | 1 120; 2 40; t10; -2    | 120,00   | -20,00    | Troco | -60,00    | 0,00  | 10,00
    100 | 0  | 1 120; 2 40; t10; -1    | 40,00    | 60,00     | Saldo | -60,00    | 0,00  | (0)
    100 | 0  | 1 110; 2 50; t10; -2    | 110,00   | -10,00    | Troco | -60,00    | 0,00  | (0)
  )");
  // The bound of the change stays that of the last tender added.
  Check(R"(
    100 | 0  | 1 120; 2 40; -2; t60    | 120,00   | -60,00    | Troco | -60,00    | 0,00  | (0)
    100 | 0  | 1 120; 2 40; -2; t15    | 120,00   | -15,00    | Troco | -60,00    | 0,00  | 45,00
    100 | 0  | 1 120; 2 40; -2; t15; -1| 0,00     | 100,00    | Saldo | -60,00    | 0,00  | 25,00
  )");
}

// The change was touched but means the same amount: a credit of nothing is shown, and goes with the
// tender.
TEST_F(MoneyTest, ACreditOfNothingGoesWithItsTender) {
  Pay("100", "0", [&](frmCaixaPagar& form) {
    Add(form, 3, "150");
    input::Focus(form.zvtxtSaldoDevedorOuTroco);
    input::Press(form, platform::KeyStroke::Of(platform::Key::kEnd));
    input::Press(form, platform::KeyStroke::Of(platform::Key::kBackspace));
    input::Focus(form.zvcmbFormaDePagamento);
    EXPECT_EQ(State(form), "150,00 | -50,0 | Troco | -50,00 | 0,00 | 0,00");
    input::Click(form.zvcmdRemover);
    EXPECT_EQ(State(form), "0,00 | 100,00 | Saldo | -50,00 | 0,00 | (0)");
  });
}

TEST_F(MoneyTest, AChangeOfATenderIsARemovalAndANewEntry) {
  Pay("100", "50", [&](frmCaixaPagar& form) {
    Add(form, 6, "60");
    Add(form, 7, "30");
    SelectRow(form, 2);
    input::Click(form.zvcmdAlterar);
    EXPECT_EQ(form.zvcmbFormaDePagamento.Text(), "7-Crédito do cliente");
    EXPECT_EQ(form.zvnumValor.Text(), "30,00");
    EXPECT_TRUE(form.zvcmbFormaDePagamento.HasFocus());
    EXPECT_EQ(Tenders(form), "6-A crédito (Fiado) 60,00 22/11/2026");
    EXPECT_EQ(State(form), "60,00 | 40,00 | Saldo | 10,00 | 50,00 | (0,00)");
    Type(form.zvnumValor, "40");
    input::Click(form.zvcmdAdicionar);
    EXPECT_EQ(Tenders(form),
              "6-A crédito (Fiado) 60,00 22/11/2026, 7-Crédito do cliente 40,00 __/__/____");

    SelectRow(form, 1);
    input::Click(form.zvcmdAlterar);
    EXPECT_TRUE(form.zvdtpDataDeVencimento.IsShown());
    EXPECT_EQ(form.zvdtpDataDeVencimento.Text(), "22/11/2026");
    input::Click(form.zvcmdAdicionar);
    EXPECT_EQ(Tenders(form),
              "7-Crédito do cliente 40,00 __/__/____, 6-A crédito (Fiado) 60,00 22/11/2026");
  });
}

}  // namespace
}  // namespace checkout
