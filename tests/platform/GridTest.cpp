// The grid as code uses it: sizes, cells, current cell, their errors; what observers hear.

#include <gtest/gtest.h>

#include "Sample.h"
#include "platform/MSFlexGrid.h"
#include "support/FakeDesktop.h"

namespace {

using platform::MSFlexGrid;
using support::ResultOf;

struct GridForm : support::SampleForm {
  MSFlexGrid grid{*this, "grid"};
};

class Grid : public testing::Test {
 protected:
  Grid() {
    form.Show();
    grid.Cols(3);
    grid.Rows(1);
    grid.AddItem("a\tb\tc");
    grid.AddItem("d\te\tf");
    grid.AddItem("g\th\ti");
  }
  /// The cells, rows parted by "/".
  std::string Cells() const {
    std::string all;
    for (std::int32_t row = 0; row < grid.Rows(); ++row) {
      if (row > 0) all += '/';
      for (std::int32_t col = 0; col < grid.Cols(); ++col) {
        if (col > 0) all += ' ';
        all += grid.TextMatrix(row, col);
      }
    }
    return all;
  }
  std::string Cursor() const {
    return support::Joined({base::ToText(grid.Row()), base::ToText(grid.Col()),
                            base::ToText(grid.RowSel()), base::ToText(grid.ColSel()),
                            base::ToText(grid.TopRow())});
  }
  /// "done", or the error that an operation ends in.
  template <class Operation>
  static std::string Try(Operation operation) {
    return ResultOf([&] { return operation(), std::string("done"); });
  }

  support::FakeDesktop desktop;
  GridForm form;
  MSFlexGrid& grid = form.grid;
};

TEST_F(Grid, AddsAndRemovesRows) {
  EXPECT_EQ(Cells(), "  /a b c/d e f/g h i");
  grid.AddItem("x\t\tz\tleft out", 2);
  EXPECT_EQ(Cells(), "  /a b c/x  z/d e f/g h i");
  grid.AddItem("");
  grid.RemoveItem(1);
  EXPECT_EQ(Cells(), "  /x  z/d e f/g h i/  ");
  grid.AddItem("end", 5);
  EXPECT_EQ(grid.TextMatrix(5, 0), "end");
}

TEST_F(Grid, ChangesItsSize) {
  grid.Rows(3);
  grid.Cols(2);
  EXPECT_EQ(Cells(), " /a b/d e");
  grid.Cols(3);
  grid.Rows(4);
  EXPECT_EQ(Cells(), "  /a b /d e /  ") << "what comes new is empty";
}

TEST_F(Grid, ClearsTextsAndFormatsAndKeepsItsSizes) {
  grid.TextMatrix(0, 0, "Nome");
  grid.Row(1);
  grid.CellForeColor(255);
  grid.ColWidth(1, 0);
  grid.Clear();
  EXPECT_EQ(Cells(), "  /  /  /  ");
  EXPECT_EQ(grid.FormatOf(1, 0).fore, platform::kDefaultColor);
  EXPECT_EQ(grid.ColWidth(1), 0);
}

TEST_F(Grid, RefusesWhatDoesNotExist) {
  for (const std::int32_t row : {-1, 4}) {
    EXPECT_EQ(ResultOf([&] { return grid.TextMatrix(row, 0); }), "error 9");
    EXPECT_EQ(Try([&] { grid.TextMatrix(row, 0, "x"); }), "error 9");
    EXPECT_EQ(Try([&] { grid.Row(row); }), "error 9");
    EXPECT_EQ(Try([&] { grid.RowSel(row); }), "error 9");
    EXPECT_EQ(Try([&] { grid.TopRow(row); }), "error 9");
    EXPECT_EQ(Try([&] { grid.RowHeight(row, 0); }), "error 9");
    EXPECT_EQ(Try([&] { grid.RemoveItem(row); }), "error 9");
    EXPECT_EQ(Try([&] { grid.FormatOf(row, 0); }), "error 9");
  }
  for (const std::int32_t col : {-1, 3}) {
    EXPECT_EQ(ResultOf([&] { return grid.TextMatrix(1, col); }), "error 9");
    EXPECT_EQ(Try([&] { grid.TextMatrix(1, col, "x"); }), "error 9");
    EXPECT_EQ(Try([&] { grid.Col(col); }), "error 9");
    EXPECT_EQ(Try([&] { grid.ColSel(col); }), "error 9");
    EXPECT_EQ(Try([&] { grid.ColWidth(col, 0); }), "error 9");
    EXPECT_EQ(Try([&] { grid.ColData(col, 0); }), "error 9");
    EXPECT_EQ(Try([&] { grid.ColAlignment(col, platform::Align::kRightCenter); }), "error 9");
    EXPECT_EQ(Try([&] { grid.FormatOf(1, col); }), "error 9");
  }
  EXPECT_EQ(Try([&] { grid.AddItem("x", 5); }), "error 9");
  EXPECT_EQ(Try([&] { grid.AddItem("x", 0); }), "error 9") << "before the header";
  EXPECT_EQ(Cells(), "  /a b c/d e f/g h i");
}

TEST_F(Grid, KeepsItsHeaderAndTheLastRow) {
  EXPECT_EQ(Try([&] { grid.RemoveItem(0); }), "error 5") << "a fixed row";
  grid.RemoveItem(1);
  grid.RemoveItem(1);
  EXPECT_EQ(Try([&] { grid.RemoveItem(1); }), "error 5") << "the last unfixed row";
  EXPECT_EQ(Cells(), "  /g h i");
  EXPECT_EQ(Try([&] { grid.Rows(0); }), "error 5");
  EXPECT_EQ(Try([&] { grid.Rows(1); }), "done") << "but the count can take it away";
  EXPECT_EQ(Try([&] { grid.Cols(0); }), "error 5");
  grid.Rows(3);
  EXPECT_EQ(Try([&] { grid.FixedRows(3); }), "error 5");
  EXPECT_EQ(Try([&] { grid.FixedRows(2); }), "done");
  EXPECT_EQ(Try([&] { grid.RemoveItem(2); }), "error 5");
  EXPECT_EQ(Try([&] { grid.Rows(1); }), "error 5");
}

TEST_F(Grid, MovesTheSelectionWithTheCurrentCell) {
  grid.Row(2);
  EXPECT_EQ(Cursor(), "2, 0, 2, 0, 1");
  grid.Col(1);
  grid.RowSel(3);
  grid.ColSel(2);
  EXPECT_EQ(Cursor(), "2, 1, 3, 2, 1");
  EXPECT_EQ(grid.Text(), "e");
  grid.Text("E");
  EXPECT_EQ(grid.TextMatrix(2, 1), "E");
  grid.Row(1);
  grid.Col(0);
  EXPECT_EQ(Cursor(), "1, 0, 1, 0, 1");
  grid.Row(0);
  EXPECT_EQ(Cursor(), "0, 0, 0, 0, 1") << "a header cell can be the current one";
}

TEST_F(Grid, KeepsTheCurrentCellInside) {
  grid.Row(3);
  grid.Col(2);
  grid.TopRow(3);
  grid.RemoveItem(3);
  EXPECT_EQ(Cursor(), "2, 2, 2, 2, 2");
  grid.Rows(1);
  grid.Cols(1);
  EXPECT_EQ(Cursor(), "0, 0, 0, 0, 0");
  grid.AddItem("a");
  EXPECT_EQ(grid.TopRow(), 1) << "the header stays above the first row";
  grid.TopRow(0);
  EXPECT_EQ(grid.TopRow(), 1);
}

TEST_F(Grid, FormatsTheCurrentCellAlone) {
  grid.Row(1);
  grid.Col(2);
  grid.CellFontName("Wingdings");
  grid.CellPicture("Classificacao_Crescente");
  EXPECT_EQ(grid.FormatOf(1, 2).fontName, "Wingdings");
  EXPECT_EQ(grid.FormatOf(1, 1).fontName, "");
  grid.AddItem("x", 1);
  EXPECT_EQ(grid.FormatOf(2, 2).fontName, "Wingdings") << "it goes with its row";
  grid.CellPicture("");
  EXPECT_EQ(grid.FormatOf(2, 2).picture, "Classificacao_Crescente");
}

struct Redraws final : platform::Observer {
  void Changed(platform::Object&, const platform::PropertyBase& property) override {
    if (property.Name() == "Revision") ++count;
  }
  int count = 0;
};

TEST_F(Grid, IsDrawnOnceAfterManyChangesWithoutRedraw) {
  Redraws redraws;
  grid.Observe(redraws);
  grid.TextMatrix(1, 0, "x");
  grid.Row(2);
  EXPECT_EQ(redraws.count, 2);
  grid.Redraw(false);
  for (int i = 0; i < 100; ++i) grid.AddItem("x");
  EXPECT_EQ(redraws.count, 2);
  grid.Redraw(true);
  EXPECT_EQ(redraws.count, 3);
  grid.Redraw(false);
  grid.Redraw(true);
  EXPECT_EQ(redraws.count, 3) << "nothing had changed";
  grid.Unobserve(redraws);
}

}  // namespace
