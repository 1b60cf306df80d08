#include "checkout/CheckoutTest.h"
#include "checkout/ValidacaoDeData.h"

namespace checkout {
namespace {

using platform::Icon;

class DueDateTest : public CheckoutTest {};

const std::string kInvalid = "Data de vencimento inválida.\n";

TEST_F(DueDateTest, WhatCannotBeADateIsRefused) {
  const std::string form =
      kInvalid +
      "Verifique se a data esta no formato dd/mm/aaaa ou se o dia ou o mês são existentes.";
  struct Case {
    const char* text;
    std::string message;
    Icon icon = Icon::kInformation;
  };
  frmCaixaPagar pagar;
  for (const Case& each : {
           Case{"", "Informe a data de vencimento"},
           Case{"   ", "Informe a data de vencimento"},
           Case{"__/__/____", form},
           Case{"1_/12/2026", form},
           Case{"29/02/2027", form},
           // The year 1900 had no 29 February.
           Case{"29/02/1900", form},
           // A date with the month first is a date, but its month does not exist.
           Case{"12/31/2026", kInvalid + "Este mês não existe!", Icon::kStop},
       }) {
    SCOPED_TRACE(each.text);
    EXPECT_EQ(pagar.ValidarData(each.text), 1);
    const std::vector<platform::MessageBox> boxes = module.desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, each.message);
    EXPECT_EQ(boxes[0].icon, each.icon);
    EXPECT_EQ(boxes[0].title, "Caixa");
  }
  for (const char* good : {"22/11/2026", "31/12/2026", "29/02/2028", "01012027"}) {
    EXPECT_EQ(pagar.ValidarData(good), 0) << good;
  }
}

TEST_F(DueDateTest, ADateBeforeTodayIsAskedAbout) {
  frmCaixaPagar pagar;
  for (const auto answer : {platform::Answer::kNo, platform::Answer::kYes}) {
    module.desktop.Answer(answer);
    EXPECT_EQ(pagar.ValidarData("21/11/2026"), answer == platform::Answer::kNo ? 1 : 0);
    const std::vector<platform::MessageBox> boxes = module.desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, " A data de vencimento informada é menor que a data atual. Confirma?");
    EXPECT_EQ(boxes[0].icon, Icon::kQuestion);
    EXPECT_EQ(boxes[0].preset, platform::Answer::kNo);
  }
}

TEST_F(DueDateTest, TheCalendarKnowsNoCentury) {
  const auto judge = [](int day, int month, int year) {
    const auto refusal = RecusaDaData(day, month, year);
    return refusal ? refusal->texto.substr(kInvalid.size()) + (refusal->grave ? " (stop)" : "")
                   : std::string("ok");
  };
  for (const std::vector<std::string>& row : support::Table(R"(
     0 |  1 | 2026 | O dia da data deve ser maior que zero.
     1 |  0 | 2026 | O mês da data de vencimento deve ser maior que zero.
     1 |  1 |    0 | O ano da data de vencimento deve ser maior que zero.
    31 |  1 | 2026 | ok
    32 |  1 | 2026 | Informe no máximo 31 dias para o mês 1.
    30 |  2 | 2028 | Informe no máximo 29 dias para o mês 2. (stop)
    29 |  2 | 2027 | Informe no máximo 28 dias para o mês 2. (stop)
    29 |  2 | 2028 | ok
    29 |  2 | 1900 | ok
    31 |  6 | 2026 | Este mês só tem 30 dias (stop)
     1 | 13 | 2026 | Este mês não existe! (stop)
  )")) {
    const auto number = [&](std::size_t at) { return base::ToInt32(base::Val(row[at])); };
    EXPECT_EQ(judge(number(0), number(1), number(2)), row[3]) << row[0] << "/" << row[1];
  }
}

}  // namespace
}  // namespace checkout
