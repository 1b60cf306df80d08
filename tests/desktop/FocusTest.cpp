#include "desktop/Stage.h"

namespace {

using stage::SmallForm;

class FocusTest : public stage::Stage {};

TEST_F(FocusTest, AFieldThatRefusesToBeLeftKeepsKeyboardAndFocus) {
  SmallForm form;
  form.first.Validate = [](bool& refused) { refused = true; };
  Embed(form);
  ASSERT_EQ(form.Active(), "first");
  Key(Qt::Key_Tab);
  EXPECT_EQ(form.Active(), "first");
  Click(form.second);
  EXPECT_EQ(form.Active(), "first");
  Click(form.button);
  EXPECT_EQ(form.Active(), "first");
  Type("ab");
  EXPECT_EQ(form.first.Text(), "ab");
  EXPECT_EQ(form.second.Text(), "");
}

TEST_F(FocusTest, ARefusalWithABoxGivesTheKeyboardBackToTheField) {
  SmallForm form;
  form.first.Validate = [&](bool& refused) {
    Ask("Informe o primeiro.");
    refused = true;
  };
  Embed(form);
  Then({[&] { Key(Qt::Key_Return); }});
  Key(Qt::Key_Tab);
  EXPECT_TRUE(AllDone());
  Type("x");
  EXPECT_EQ(form.Active(), "first");
  EXPECT_EQ(form.first.Text(), "x");
}

TEST_F(FocusTest, TabGoesRoundInBothDirections) {
  SmallForm form;
  Embed(form);
  Key(Qt::Key_Tab);
  Key(Qt::Key_Tab);
  EXPECT_EQ(form.Active(), "button");
  Key(Qt::Key_Tab);
  EXPECT_EQ(form.Active(), "first");
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(form.Active(), "button");
  EXPECT_EQ(&Focus(), &WidgetOf(form.button));
}

TEST_F(FocusTest, AFieldThatGoesOutOfActionPassesTheKeyboardOn) {
  SmallForm form;
  Embed(form);
  form.first.Enabled = false;
  Type("a");
  form.second.Visible = false;
  EXPECT_EQ(form.second.Text(), "a");
  EXPECT_EQ(&Focus(), &WidgetOf(form.button));
}

TEST_F(FocusTest, CodeMovesTheKeyboardToo) {
  SmallForm form;
  Embed(form);
  form.second.SetFocus();
  Type("dois");
  EXPECT_EQ(form.second.Text(), "dois");
}

TEST_F(FocusTest, EnterAndEscPressTheFormsButtons) {
  SmallForm form;
  int clicks = 0;
  form.button.Click = [&] { ++clicks; };
  form.defaultButton = &form.button;
  form.cancelButton = &form.button;
  Embed(form);
  Key(Qt::Key_Return);
  form.first.SetFocus();
  Key(Qt::Key_Escape);
  EXPECT_EQ(clicks, 2);
}

}  // namespace
