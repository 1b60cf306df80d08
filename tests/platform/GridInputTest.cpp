// The grid under the operator's hands: mouse, keyboard, wheel.

#include <gtest/gtest.h>

#include "Sample.h"
#include "platform/MSFlexGrid.h"
#include "support/FakeDesktop.h"

namespace {

namespace input = platform::input;
using input::Outcome;
using platform::MouseButton;
using platform::MSFlexGrid;
using support::Press;

struct GridForm : support::SampleForm {
  MSFlexGrid grid{*this, "grid"};
};

class GridActs : public testing::Test {
 protected:
  GridActs() {
    form.Show();
    grid.Cols(3);
    grid.Rows(21);
    grid.Height = 450 * 6;  // The header and five rows.
    trace.Focus(grid);
    trace.Focus(form.first);
    grid.MouseDown = [this](MouseButton button) {
      trace((button == MouseButton::kLeft ? "MouseDown at " : "right MouseDown at ") + At());
    };
    grid.Click = [this] { trace("Click at " + At()); };
    grid.DblClick = [this] { trace("DblClick"); };
    grid.RowColChange = [this] { trace("RowColChange"); };
    grid.SelChange = [this] { trace("SelChange"); };
  }
  std::string At() const { return base::ToText(grid.Row()) + "." + base::ToText(grid.Col()); }
  Outcome ClickAt(std::int32_t row, std::int32_t col, MouseButton button = MouseButton::kLeft,
                  bool twice = false) {
    return input::ClickCell(grid, row, col, button, twice);
  }

  support::FakeDesktop desktop;
  support::Trace trace;
  GridForm form;
  MSFlexGrid& grid = form.grid;
};

TEST_F(GridActs, AClickComesInOrder) {
  EXPECT_EQ(ClickAt(3, 2), Outcome::kDone);
  EXPECT_EQ(trace.Take(),
            "first.Validate, first.LostFocus, grid.GotFocus, MouseDown at 1.0, RowColChange, "
            "SelChange, Click at 3.2");
  EXPECT_EQ(grid.MouseRow(), 3);
  EXPECT_EQ(grid.MouseCol(), 2);
  EXPECT_EQ(ClickAt(3, 2), Outcome::kDone);
  EXPECT_EQ(trace.Take(), "MouseDown at 3.2, Click at 3.2") << "nothing moved";
}

TEST_F(GridActs, TheRightButtonOnlyPresses) {
  input::Focus(grid);
  trace.Take();
  EXPECT_EQ(ClickAt(4, 1, MouseButton::kRight), Outcome::kDone);
  EXPECT_EQ(trace.Take(), "right MouseDown at 1.0");
  EXPECT_EQ(grid.MouseRow(), 4);
  EXPECT_EQ(At(), "1.0");
}

TEST_F(GridActs, AClickOnTheHeaderSelectsNothing) {
  input::Focus(grid);
  trace.Take();
  ClickAt(0, 2);
  EXPECT_EQ(trace.Take(), "MouseDown at 1.0, Click at 1.0");
  EXPECT_EQ(grid.MouseRow(), 0);
  EXPECT_EQ(grid.MouseCol(), 2);
}

TEST_F(GridActs, OutsideTheCellsAreRefused) {
  for (const auto& [row, col] : {std::pair{21, 0}, {0, 3}, {-1, 0}, {0, -1}}) {
    EXPECT_EQ(ClickAt(row, col), Outcome::kRefused);
  }
  grid.Enabled = false;
  EXPECT_EQ(ClickAt(1, 0), Outcome::kRefused);
  EXPECT_EQ(input::Wheel(grid, -120), Outcome::kRefused);
  EXPECT_EQ(trace.Take(), "");
}

TEST_F(GridActs, StopWhenAHandlerTakesTheGridAway) {
  grid.MouseDown = [&](MouseButton) { grid.Rows(2); };
  ClickAt(5, 0, MouseButton::kLeft, true);
  EXPECT_EQ(At(), "1.0");
  EXPECT_EQ(trace.Take(), "first.Validate, first.LostFocus, grid.GotFocus");

  grid.Rows(21);
  grid.MouseDown = [](MouseButton) {};
  grid.Click = [&] {
    trace("Click");
    grid.Enabled = false;
  };
  ClickAt(5, 0, MouseButton::kLeft, true);
  EXPECT_EQ(trace.Take(), "RowColChange, SelChange, Click, grid.LostFocus, first.GotFocus")
      << "and no DblClick";
}

TEST_F(GridActs, TheSecondHalfOfADoubleClickThatClosedTheScreenIsLost) {
  grid.Click = [&] {
    trace("Click");
    form.Hide();
  };
  input::Focus(grid);
  trace.Take();
  desktop.TakeJournal();
  ClickAt(1, 0, MouseButton::kLeft, true);
  EXPECT_EQ(trace.Take(), "MouseDown at 1.0, Click");
  EXPECT_EQ(support::Joined(desktop.TakeJournal()), "hide frm, beep");
}

TEST_F(GridActs, DoNotEnterAHandlerThatIsStillRunning) {
  grid.Click = [&] {
    trace("Click");
    desktop.ProcessEvents();
  };
  desktop.After(0.05, [&] { EXPECT_EQ(ClickAt(2, 0), Outcome::kDropped); });
  input::Focus(grid);
  trace.Take();
  ClickAt(1, 0);
  EXPECT_EQ(trace.Take(), "MouseDown at 1.0, Click");
}

TEST_F(GridActs, TheKeyboardMovesByRows) {
  input::Focus(grid);
  grid.Col(1);
  trace.Take();
  for (const auto& row : support::Table(R"(
    Down     | 2.1  | RowColChange, SelChange
    Up       | 1.1  | RowColChange, SelChange
    Up       | 1.1  | ""
    PageDown | 6.1  | RowColChange, SelChange
    End      | 20.1 | RowColChange, SelChange
    Down     | 20.1 | ""
    PageUp   | 15.1 | RowColChange, SelChange
    Home     | 1.1  | RowColChange, SelChange
  )")) {
    Press(form, row[0]);
    EXPECT_EQ(At(), row[1]) << row[0];
    EXPECT_EQ(trace.Take(), row[2]) << row[0];
  }
}

TEST_F(GridActs, TheCurrentRowStaysInView) {
  input::Focus(grid);
  EXPECT_EQ(grid.RowsInView(), 5);
  for (int i = 0; i < 4; ++i) Press(form, "Down");
  EXPECT_EQ(grid.TopRow(), 1) << "row 5 is the last in view";
  Press(form, "Down");
  EXPECT_EQ(grid.TopRow(), 2);
  Press(form, "End");
  Press(form, "PageUp");
  EXPECT_EQ(grid.TopRow(), 15);
}

TEST_F(GridActs, KeysReachTheHandlersAndThenTheScreen) {
  form.defaultButton = &form.ok;
  trace.Click(form.ok);
  grid.KeyPress = [&](char32_t& character) {
    trace("KeyPress " + base::ToText(static_cast<std::int32_t>(character)));
    if (character == U' ') character = 0;
  };
  input::Focus(grid);
  trace.Take();
  Press(form, "Space");
  EXPECT_EQ(trace.Take(), "KeyPress 32");
  Press(form, "Enter");
  EXPECT_EQ(trace.Take(), "KeyPress 13, grid.Validate, grid.LostFocus, ok.Click");
}

TEST_F(GridActs, TheWheelScrollsThreeRowsANotch) {
  const auto wheel = [&](std::int32_t delta) {
    EXPECT_EQ(input::Wheel(grid, delta), Outcome::kDone);
    return grid.TopRow();
  };
  EXPECT_EQ(wheel(-120), 4);
  EXPECT_EQ(wheel(-240), 10);
  EXPECT_EQ(wheel(-1200), 16) << "no further than the last row in view";
  EXPECT_EQ(wheel(120), 13);
  EXPECT_EQ(wheel(1200), 1);
  EXPECT_EQ(trace.Take(), "") << "neither focus nor selection moves";

  form.MouseWheel = [&](std::int32_t delta, bool& scrolled) {
    trace("MouseWheel " + base::ToText(delta));
    scrolled = true;
  };
  EXPECT_EQ(wheel(-120), 1) << "the handler scrolls by itself";
  EXPECT_EQ(trace.Take(), "MouseWheel -120");
}

}  // namespace
