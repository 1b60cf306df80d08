// Choosing from a list: combo boxes, options, check boxes.

#include <gtest/gtest.h>

#include "Sample.h"
#include "platform/CheckBox.h"
#include "platform/OptionButton.h"
#include "platform/ZVComboBox.h"
#include "support/FakeDesktop.h"

namespace {

namespace input = platform::input;
using input::Outcome;
using support::Press;
using support::ResultOf;

struct ListForm : support::SampleForm {
  platform::ZVComboBox combo{*this, "combo"};
  platform::CheckBox check{*this, "check"};
  platform::OptionButton one{panel, "one"}, two{panel, "two"}, three{panel, "three"};
  platform::OptionButton other{*this, "other"};
};

class Lists : public testing::Test {
 protected:
  Lists() {
    form.Show();
    for (const char* text : {"1-Dinheiro", "2-Cheque", "Água", "3-Cartão", "2-Convênio"}) {
      form.combo.AddItem(text, static_cast<std::int32_t>(form.combo.ListCount() * 10));
    }
    form.combo.Click = [this] { trace("Click " + form.combo.Text()); };
    form.combo.DropDown = [this] { trace("DropDown"); };
  }

  support::FakeDesktop desktop;
  support::Trace trace;
  ListForm form;
};

TEST_F(Lists, ComboKnowsItsItems) {
  form.combo.ItemData(3, 33);
  EXPECT_EQ(form.combo.IndexOfData(33), 3);
  EXPECT_EQ(form.combo.IndexOfData(30), -1);
  for (const std::int32_t none : {-1, 5}) {
    EXPECT_EQ(ResultOf([&] { return form.combo.List(none); }), "error 5");
    EXPECT_EQ(ResultOf([&] { return base::ToText(form.combo.ItemData(none)); }), "error 5");
  }
  form.combo.ListIndex = 2;
  form.combo.Clear();
  EXPECT_EQ(form.combo.Text(), "");
  EXPECT_EQ(form.combo.ListIndex(), -1);
  EXPECT_EQ(form.combo.NewIndex(), -1);
}

TEST_F(Lists, ComboRefusesAnItemThatIsNotThere) {
  form.combo.ListIndex = 1;
  trace.Take();
  for (const std::int32_t none : {-2, 5}) {
    EXPECT_EQ(ResultOf([&] { return form.combo.ListIndex = none, std::string(); }), "error 5");
    EXPECT_EQ(form.combo.ListIndex(), 1);
    EXPECT_EQ(form.combo.Text(), "2-Cheque");
  }
  EXPECT_EQ(trace.Take(), "");
}

TEST_F(Lists, ComboIsChosenByItsTextInSilence) {
  form.combo.Text = "3-Cartão";
  EXPECT_EQ(form.combo.ListIndex(), 3);
  form.combo.Text = "9-Outro";
  EXPECT_EQ(form.combo.ListIndex(), -1);
  EXPECT_EQ(form.combo.Text(), "9-Outro");
  EXPECT_EQ(trace.Take(), "");
  form.combo.ListIndex = 3;
  EXPECT_EQ(trace.Take(), "Click 3-Cartão");
}

TEST_F(Lists, ComboRaisesClickAtEachPick) {
  input::DropDown(form.combo);
  input::Pick(form.combo, 1);
  input::Pick(form.combo, 1);
  EXPECT_EQ(trace.Take(), "DropDown, Click 2-Cheque, Click 2-Cheque");
}

TEST_F(Lists, ComboFollowsTheKeyboard) {
  input::Focus(form.combo);
  for (const auto& row : support::Table(R"(
    Down   | Click 1-Dinheiro | the first from none
    Up     | ""               | already at the top: no new choice
    2      | Click 2-Cheque   | by its first character
    2      | Click 2-Convênio | the next of them
    2      | Click 2-Cheque   | round to the first
    a      | Click Água       | without regard to case and accents
    x      | ""               | no such item
    ctrl+1 | ""               | no choice with Ctrl
    Down   | Click 3-Cartão   | down
    End    | Click 2-Convênio | the last
    Down   | ""               | already at the bottom
    Home   | Click 1-Dinheiro | the first
  )")) {
    Press(form, row[0]);
    EXPECT_EQ(trace.Take(), row[1]) << row[0] << ": " << row[2];
  }
  form.combo.Clear();
  for (const char* key : {"Down", "Up", "Home", "End", "1"}) Press(form, key);
  EXPECT_EQ(form.combo.ListIndex(), -1) << "an empty list has nothing to choose";
}

TEST_F(Lists, ComboShowsWhatStandsBeforeThePadding) {
  form.combo.AddItem("Balcão" + base::Space(140) + "7");
  form.combo.ListIndex = 5;
  EXPECT_EQ(form.combo.Words(), "Balcão");
  EXPECT_EQ(base::Right(form.combo.Text(), 1), "7");
  EXPECT_EQ(platform::ZVComboBox::ShownForm(std::string(120, 'a')), std::string(100, 'a'));
}

TEST_F(Lists, OptionsOfOnePanelExcludeEachOther) {
  trace.Click(form.one);
  trace.Click(form.two);
  trace.Click(form.other);
  form.other.Preset();
  input::Click(form.one);
  input::Click(form.one);
  EXPECT_EQ(trace.Take(), "one.Click") << "chosen again it raises nothing";
  input::Click(form.two);
  EXPECT_EQ(trace.Take(), "two.Click");
  EXPECT_FALSE(form.one.Value());
  EXPECT_TRUE(form.other.Value()) << "another panel is another choice";
  form.two.Value = false;
  input::Click(form.two);
  EXPECT_EQ(trace.Take(), "two.Click") << "it had been put out";
}

TEST_F(Lists, OptionsFollowTheKeyboard) {
  for (platform::OptionButton* each : {&form.one, &form.two, &form.three}) trace.Click(*each);
  input::Focus(form.one);
  Press(form, "Space");
  Press(form, "Down");
  form.three.Enabled = false;
  Press(form, "Right");
  Press(form, "Up");
  EXPECT_EQ(trace.Take(), "one.Click, two.Click, one.Click, two.Click")
      << "round, past what cannot be chosen";
  EXPECT_EQ(form.Active(), "two");
}

}  // namespace
