// What all grids share: the sort that the header shows, the selection of whole rows, the wheel.

#include <gtest/gtest.h>

#include "frame/Grade.h"
#include "frame/modRolagemComMouse.h"
#include "platform/Input.h"
#include "platform/Layout.h"
#include "support/ModuleServices.h"
#include "support/Table.h"

namespace frame {
namespace {

constexpr std::array<Coluna, 5> kColunas{{
    {"Número", 900, platform::Align::kRightCenter, kNumero},
    {"Nome", 900, platform::Align::kLeftCenter, kTexto},
    {"Data", 900, platform::Align::kLeftCenter, kData},
    {"Outra", 900, platform::Align::kLeftCenter, static_cast<TipoDeColuna>(9)},
    {"Data invertida", 0, platform::Align::kLeftCenter, kNumero},
}};

struct Tela : platform::Form {
  Tela() : Form("frm") {
    ConfigurarColunas(grade, kColunas);
    Arrange({{9000, 6000}, {{grade, {0, 0, 9000, 4500}}, {outra, {0, 4600, 9000, 900}}}});
  }
  platform::MSFlexGrid grade{*this, "msfgGrade"};
  platform::MSFlexGrid outra{*this, "msfgOutra"};
};

class Grade : public testing::Test {
 protected:
  Grade() {
    tela.Show();
    grade.Rows(1);
    grade.AddItem("10\tbeto\t31/01/2026\tx");
    grade.AddItem("9\tÁgata\t02/03/2026\tx");
    grade.AddItem("100\tana\t15/02/2025\tx");
  }
  /// Sorts, then tells the column of names, and the picture and the mode in force.
  std::string Sorted(std::int16_t column, bool turn) {
    Classificar(grade, column, turn, order);
    std::string told;
    for (std::int32_t row = 1; row < grade.Rows(); ++row) told += grade.TextMatrix(row, 1) + " ";
    for (std::int32_t col = 0; col < grade.Cols(); ++col) {
      const platform::CellFormat& format = grade.FormatOf(0, col);
      if (format.picture.empty()) continue;
      told += std::to_string(col) + ":" + format.picture + " ";
      EXPECT_EQ(format.pictureAlignment, platform::Align::kRightCenter);
    }
    EXPECT_EQ(order.ColunaDeClassificacao, column);
    EXPECT_TRUE(grade.Redraw());
    return told + std::to_string(order.OrdemDeClassificacao);
  }
  std::string Selection() const {
    return std::to_string(grade.TopRow()) + ": " + std::to_string(grade.Row()) + "," +
           std::to_string(grade.Col()) + " to " + std::to_string(grade.RowSel()) + "," +
           std::to_string(grade.ColSel());
  }

  support::Module module;
  Tela tela;
  platform::MSFlexGrid& grade = tela.grade;
  Classificacao order;
};

TEST_F(Grade, SortsByTheKindOfItsColumn) {
  struct Case {
    std::int16_t column;
    bool turn;
    const char* result;
  };
  const Case steps[] = {
      {0, false, "Ágata beto ana 0:Classificacao_Crescente 3"},
      {0, false, "Ágata beto ana 0:Classificacao_Crescente 3"},
      {0, true, "ana beto Ágata 0:Classificacao_Decrescente 4"},
      {0, true, "Ágata beto ana 0:Classificacao_Crescente 3"},
      {1, true, "Ágata ana beto 1:Classificacao_Crescente 7"},
      {1, true, "beto ana Ágata 1:Classificacao_Decrescente 8"},
      {2, true, "ana beto Ágata 2:Classificacao_Crescente 7"},
      {2, true, "Ágata beto ana 2:Classificacao_Decrescente 8"},
      {3, true, "Ágata beto ana 8"},
  };
  for (const Case& each : steps) {
    EXPECT_EQ(Sorted(each.column, each.turn), each.result) << each.column;
    EXPECT_EQ(Selection(), "1: 1,0 to 1,4");
  }
  EXPECT_EQ(grade.TextMatrix(1, 2), "02/03/2026") << "the date that is read stays";
  EXPECT_EQ(grade.TextMatrix(1, 4), "20260302");
}

TEST_F(Grade, IsRedrawnOnceForAStretchThatHoldsOthers) {
  const std::int32_t before = grade.Revision();
  {
    const SemRedesenho semRedesenho(grade);
    ConfigurarColunas(grade, kColunas);
    grade.TextMatrix(1, 0, "7");
    EXPECT_EQ(grade.Revision(), before);
  }
  EXPECT_EQ(grade.Revision(), before + 1);
}

TEST_F(Grade, ScrollsByAPageUnderTheWheel) {
  const auto wheel = [&](std::int32_t delta) {
    platform::input::Wheel(grade, delta);
    return grade.TopRow();
  };
  AtivarRolagemComMouse(tela, grade);
  EXPECT_EQ(wheel(-120), 3) << "a few rows: ten at a time, but no further than the last";
  EXPECT_EQ(wheel(120), 1);
  grade.Rows(101);
  EXPECT_EQ(wheel(-120), 11);
  grade.RowHeight(1, 300);
  EXPECT_EQ(wheel(-120), 26) << "4500 twips hold fifteen rows of 300";
  EXPECT_EQ(wheel(120), 11);
  for (int i = 0; i < 9; ++i) wheel(-120);
  EXPECT_EQ(grade.TopRow(), 100);

  AtivarRolagemComMouse(tela, tela.outra);
  EXPECT_EQ(wheel(120), 100) << "one grid at a time has it";
  DesativarRolagemComMouse();
}

}  // namespace
}  // namespace frame
