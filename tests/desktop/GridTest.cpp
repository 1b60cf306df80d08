#include <QScrollBar>

#include "desktop/Stage.h"
#include "desktop/views/GridColumns.h"
#include "desktop/views/MSFlexGrid.h"

namespace {

class GridTest : public stage::Stage {
 protected:
  GridTest() {
    Embed(form);
    form.Fill(40);
    Settle();
    form.msfgGrade.Click = [this] { events += "Click "; };
    form.msfgGrade.DblClick = [this] { events += "DblClick "; };
    form.msfgGrade.MouseDown = [this](platform::MouseButton button) {
      events += button == platform::MouseButton::kRight ? "Right " : "Down ";
    };
  }
  ~GridTest() override { form.Unload(); }

  desktop::MSFlexGridView& View() {
    return *static_cast<desktop::MSFlexGridView*>(desktop->ViewOf(form.msfgGrade));
  }
  QPoint Cell(int row, int col) { return View().CellBox(row, col).center().toPoint(); }

  stage::GridForm form;
  std::string events;
};

TEST_F(GridTest, APressSelectsTheCellUnderIt) {
  QTest::mouseClick(&View(), Qt::LeftButton, {}, Cell(5, 0));
  EXPECT_EQ(form.msfgGrade.Row(), 5);
  EXPECT_EQ(form.ActiveControl(), &form.msfgGrade);
  EXPECT_EQ(events, "Down Click ");
  EXPECT_EQ(form.msfgGrade.MouseRow(), 5);
  QTest::mouseClick(&View(), Qt::RightButton, {}, Cell(7, 2));
  EXPECT_EQ(form.msfgGrade.MouseRow(), 7);
  EXPECT_EQ(events, "Down Click Right ");
}

TEST_F(GridTest, ADoubleClickIsOneClickAndOneDoubleClick) {
  const auto twice = [&](QPoint at) {
    QTest::mouseClick(&View(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(&View(), Qt::LeftButton, {}, at);
  };
  twice(Cell(3, 0));
  EXPECT_EQ(events, "Down Click DblClick ");
  events.clear();
  twice(Cell(0, 0));
  EXPECT_EQ(events, "Down Click ") << "a double click on the header sorts once";
}

TEST_F(GridTest, ColumnsFillTheWidthAndHiddenOnesAreGone) {
  desktop::GridColumns columns;
  columns.Arrange(form.msfgGrade, 800, {});
  EXPECT_EQ(columns.Shown().size(), 5U);
  EXPECT_EQ(columns.Main(), 0);
  EXPECT_NEAR(columns.Width(), 800, 0.01);
  columns.Arrange(form.msfgGrade, 2000, {});
  EXPECT_NEAR(columns.Width(), 2000, 0.01);
  EXPECT_EQ(columns.At(5), 0);
  EXPECT_TRUE(View().CellBox(1, 5).isEmpty());
}

TEST_F(GridTest, KeyboardWheelAndBarScroll) {
  form.msfgGrade.SetFocus();
  Key(Qt::Key_End);
  Settle();
  EXPECT_EQ(form.msfgGrade.Row(), 40);
  EXPECT_FALSE(View().CellBox(40, 0).isEmpty()) << "the current row is in sight";
  Key(Qt::Key_Home);
  Settle();
  EXPECT_EQ(form.msfgGrade.TopRow(), 1);
  const auto turn = [&](int delta) {
    QWheelEvent wheel(QPointF(50, 50), View().mapToGlobal(QPointF(50, 50)), {}, {0, delta}, {}, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&View(), &wheel);
  };
  turn(-120);
  EXPECT_EQ(form.msfgGrade.TopRow(), 4);
  turn(-60);  // Half a notch is kept until the other half comes.
  EXPECT_EQ(form.msfgGrade.TopRow(), 4);
  turn(-60);
  EXPECT_EQ(form.msfgGrade.TopRow(), 7);
  auto* const bar = View().findChild<QScrollBar*>();
  bar->setValue(bar->maximum());
  Settle();
  EXPECT_EQ(form.msfgGrade.TopRow(), bar->maximum());
  EXPECT_FALSE(View().CellBox(40, 0).isEmpty());
}

TEST_F(GridTest, RowsThatGoTakeTheBarAlong) {
  form.msfgGrade.TopRow(30);
  form.msfgGrade.Rows(2);
  Settle();
  EXPECT_FALSE(View().grab().isNull());
  EXPECT_FALSE(View().CellBox(1, 0).isEmpty());
}

}  // namespace
