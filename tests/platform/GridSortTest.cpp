#include <gtest/gtest.h>

#include "Sample.h"
#include "platform/MSFlexGrid.h"
#include "support/FakeDesktop.h"

namespace {

using platform::MSFlexGrid;
using platform::SortMode;

struct GridForm : support::SampleForm {
  MSFlexGrid grid{*this, "grid"};
};

class Sorting : public testing::Test {
 protected:
  /// Fills two columns: the texts, and their numbers from 1.
  void Fill(const std::vector<std::string>& texts) {
    grid.Redraw(false);
    grid.Rows(1);
    std::int32_t number = 0;
    for (const std::string& text : texts) grid.AddItem(text + "\t" + base::ToText(++number));
    grid.Redraw(true);
  }
  std::string Column(std::int32_t col) const {
    std::vector<std::string> cells;
    for (std::int32_t row = 1; row < grid.Rows(); ++row) cells.push_back(grid.TextMatrix(row, col));
    return support::Joined(cells);
  }
  std::string Sorted(SortMode mode, std::int32_t col = 0) {
    grid.Row(grid.Rows() > 1 ? 1 : 0);
    grid.Col(col);
    grid.Sort(mode);
    return Column(0);
  }

  support::FakeDesktop desktop;
  GridForm form;
  MSFlexGrid& grid = form.grid;
};

TEST_F(Sorting, OfTextIsThatOfAPortugueseReader) {
  Fill({"zebu", "Água", "ração", "Racao", "abacate", "Ração", "úmida", "Umida", "", "10", "9"});
  EXPECT_EQ(Sorted(SortMode::kTextAscending),
            ", 10, 9, abacate, Água, Racao, ração, Ração, Umida, úmida, zebu");
  EXPECT_EQ(Sorted(SortMode::kTextDescending),
            "zebu, úmida, Umida, Ração, ração, Racao, Água, abacate, 9, 10, ");
}

TEST_F(Sorting, OfNumbersReadsTheBrazilianForm) {
  Fill({"1.234,50", "999", "-5,5", "0,10", "", "1.000.000,00", "12 kg", "Rex", "0,9", "1.234,5"});
  EXPECT_EQ(Sorted(SortMode::kNumericAscending),
            "-5,5, , Rex, 0,10, 0,9, 12 kg, 999, 1.234,50, 1.234,5, 1.000.000,00");
  EXPECT_EQ(Sorted(SortMode::kNumericDescending),
            "1.000.000,00, 1.234,50, 1.234,5, 999, 12 kg, 0,9, 0,10, , Rex, -5,5");
}

TEST_F(Sorting, KeepsTheOrderOfEquals) {
  Fill({"b", "a", "b", "a", "b", "a"});
  Sorted(SortMode::kTextAscending);
  EXPECT_EQ(Column(1), "2, 4, 6, 1, 3, 5");
  Sorted(SortMode::kTextDescending);
  EXPECT_EQ(Column(1), "1, 3, 5, 2, 4, 6");
  std::vector<std::string> many;
  many.reserve(600);
  for (int i = 0; i < 600; ++i) many.emplace_back(1, static_cast<char>('a' + i % 3));
  Fill(many);
  Sorted(SortMode::kTextDescending);
  for (std::int32_t row = 2; row < grid.Rows(); ++row) {
    if (grid.TextMatrix(row, 0) != grid.TextMatrix(row - 1, 0)) continue;
    ASSERT_LT(base::Val(grid.TextMatrix(row - 1, 1)), base::Val(grid.TextMatrix(row, 1)));
  }
  Fill({"1", "1,0", "01", "1,00"});
  EXPECT_EQ(Sorted(SortMode::kNumericDescending), "1, 1,0, 01, 1,00");
  EXPECT_EQ(Sorted(SortMode::kNumericAscending), "1, 1,0, 01, 1,00");
}

TEST_F(Sorting, TakesWholeRowsWithTheirFormats) {
  Fill({"c", "a", "b"});
  grid.Row(1);
  grid.Col(1);
  grid.CellForeColor(255);
  grid.RowHeight(1, 900);
  EXPECT_EQ(Sorted(SortMode::kTextAscending), "a, b, c");
  EXPECT_EQ(Column(1), "2, 3, 1");
  EXPECT_EQ(grid.FormatOf(3, 1).fore, 255);
  EXPECT_EQ(grid.RowHeight(3), 900);
}

TEST_F(Sorting, GoesByTheSelectedColumns) {
  Fill({"b", "a", "b", "a"});
  EXPECT_EQ(Sorted(SortMode::kNumericDescending, 1), "a, b, a, b");
  grid.Col(0);
  grid.ColSel(1);
  grid.Sort(SortMode::kTextAscending);
  EXPECT_EQ(Column(1), "2, 4, 1, 3") << "the second column parts the equals of the first";
}

TEST_F(Sorting, TakesTheSelectedRowsOrAllOfThem) {
  Fill({"e", "d", "c", "b", "a"});
  grid.Row(4);
  grid.RowSel(2);
  grid.Sort(SortMode::kTextAscending);
  EXPECT_EQ(Column(0), "e, b, c, d, a") << "the selection, whichever way it was drawn";
  grid.Row(0);
  grid.Sort(SortMode::kTextAscending);
  EXPECT_EQ(Column(0), "a, b, c, d, e") << "one row selected, the header too: all of them";
  grid.TextMatrix(0, 0, "zzz");
  grid.Row(0);
  grid.RowSel(2);
  grid.Sort(SortMode::kTextDescending);
  EXPECT_EQ(grid.TextMatrix(0, 0), "zzz") << "the header is never sorted";
  EXPECT_EQ(Column(0), "b, a, c, d, e");
}

}  // namespace
