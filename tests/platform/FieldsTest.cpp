// The fields with rules of their own: find fields, masked boxes, dates and periods.

#include <gtest/gtest.h>

#include "Sample.h"
#include "platform/ZVDateBox.h"
#include "platform/ZVFind.h"
#include "platform/ZVMaskedBox.h"
#include "platform/ZVPeriodBox.h"
#include "support/FakeDesktop.h"

namespace {

namespace input = platform::input;
using platform::ZVFind;
using support::Press;

struct FieldForm : support::SampleForm {
  ZVFind find{*this, "find"};
  platform::ZVDateBox date{*this, "date"};
  platform::ZVMaskedBox masked{*this, "masked"};
  platform::ZVPeriodBox period{*this, "period"};
};

class Fields : public testing::Test {
 protected:
  Fields() { form.Show(); }

  /// Types into a field from scratch, as an operator who has just come to it.
  std::string Typed(platform::EditBox& box, std::string_view text) {
    input::Focus(box);
    box.SelectAll();
    input::Type(form, text);
    return box.Text();
  }
  /// What the find field holds, shows and knows.
  std::string Find() const {
    return form.find.Text() + "/" + form.find.DisplayText() + "/" +
           base::ToText(form.find.Status());
  }

  support::FakeDesktop desktop;
  support::Trace trace;
  FieldForm form;
};

// Find fields.

TEST_F(Fields, FindKnowsWhetherItWasTyped) {
  EXPECT_EQ(Find(), "//2");
  input::Focus(form.find);
  input::Type(form, "Re");
  EXPECT_EQ(Find(), "Re/Re/1");
  form.find.Text = "Rex";
  form.find.Status = ZVFind::kFound;
  EXPECT_EQ(Find(), "Rex/Rex/0");
  Press(form, "Delete");
  EXPECT_EQ(Find(), "ex/ex/1") << "an edit is a new search";
  Press(form, "Delete");
  Press(form, "Delete");
  EXPECT_EQ(Find(), "//2") << "emptied";
}

TEST_F(Fields, FindRaisesKeyDownBeforeTheTextChanges) {
  form.find.KeyDown = [&](platform::KeyStroke&) { trace("KeyDown at " + Find()); };
  form.find.Click = [&] { trace("Click at " + Find()); };
  input::Focus(form.find);
  input::Type(form, "7\n");
  Press(form, "Left");
  Press(form, "Esc");
  Press(form, "Delete");
  EXPECT_EQ(trace.Take(), "KeyDown at //2, Click at 7/7/1, KeyDown at 7/7/1")
      << "for keys that edit, and for no other";
}

TEST_F(Fields, FindIsTriggeredByEnterAndByItsButton) {
  form.defaultButton = &form.ok;
  trace.Click(form.ok);
  trace.Click(form.find);
  form.find.GotFocus = [&] { trace("find.GotFocus"); };
  EXPECT_EQ(input::Click(form.find), input::Outcome::kDone);
  Press(form, "Enter");
  EXPECT_EQ(trace.Take(), "find.GotFocus, find.Click, find.Click");
}

TEST_F(Fields, FindGoesByWhatTheOperatorSees) {
  form.find.Text = "Rex";
  form.find.Status = ZVFind::kFound;
  form.find.DisplayText = "";
  EXPECT_EQ(Find(), "Rex//0");
  form.find.Click = [&] { trace(Find()); };
  input::Click(form.find);
  EXPECT_EQ(trace.Take(), "//2") << "the field was seen empty";
  form.find.Text = "Rex";
  form.find.DisplayText = "";
  input::Type(form, "M");
  EXPECT_EQ(Find(), "M/M/1") << "typing begins from what is seen";
}

TEST_F(Fields, FindThatKeyDownClearsTakesTheKeyIntoTheEmptyField) {
  form.find.Text = "Rex";
  input::Focus(form.find);
  Press(form, "End");
  form.find.KeyDown = [&](platform::KeyStroke&) { form.find.Text = ""; };
  Press(form, "M");
  EXPECT_EQ(Find(), "M/M/1");
}

// Masked boxes and dates.

TEST_F(Fields, MaskedTakeDigitsIntoTheirPlaces) {
  form.masked.Mask = "###.###.###-##";
  EXPECT_EQ(form.masked.Text(), "___.___.___-__");
  EXPECT_TRUE(form.masked.IsEmpty());
  EXPECT_EQ(form.masked.UnmaskedText(), "");
  for (const auto& row : support::Table(R"(
    12345678909    | 123.456.789-09 | digits alone
    123.456.789-09 | 123.456.789-09 | pasted with its marks
    123            | 123.___.___-__ | half filled
    12a3           | 123.___.___-__ | letters fall through
    1234567890987  | 123.456.789-09 | more digits than places
    abc            | ___.___.___-__ | no digit at all
  )")) {
    form.masked.Text = "";
    EXPECT_EQ(Typed(form.masked, row[0]), row[1]) << row[2];
  }
  Typed(form.masked, "1234");
  EXPECT_EQ(form.masked.UnmaskedText(), "1234");
}

TEST_F(Fields, MaskedGiveUpDigitsAndKeepTheirMarks) {
  Typed(form.date, "22122026");
  for (const char* expected : {"22/12/202_", "22/12/20__", "22/12/2___", "22/12/____", "22/1_/____",
                               "22/__/____", "2_/__/____", "__/__/____", "__/__/____"}) {
    Press(form, "Backspace");
    EXPECT_EQ(form.date.Text(), expected);
  }
  EXPECT_EQ(form.date.Caret(), 0);
  Typed(form.date, "22122026");
  input::Select(form.date, 2, 2);
  Press(form, "Delete");
  EXPECT_EQ(form.date.Text(), "22/_2/2026") << "over the mark to the next digit";
  input::Select(form.date, 0, 5);
  Press(form, "3");
  EXPECT_EQ(form.date.Text(), "3_/__/2026") << "a digit in place of the selection";
  form.date.SelectAll();
  Press(form, "Delete");
  EXPECT_TRUE(form.date.IsEmpty());
}

TEST_F(Fields, MaskedBeginAnewWithAnotherMask) {
  form.masked.Mask = "##.###.###/####-##";
  Typed(form.masked, "12345678000195");
  EXPECT_EQ(form.masked.Text(), "12.345.678/0001-95");
  form.masked.Mask = "###.###.###-##";
  EXPECT_EQ(form.masked.Text(), "___.___.___-__");
  Press(form, "Backspace");
  input::Type(form, "1");
  EXPECT_EQ(form.masked.Text(), "1__.___.___-__");
}

TEST_F(Fields, PeriodIsTwoDates) {
  EXPECT_EQ(form.period.DataInicial() + form.period.DataFinal(), "__/__/______/__/____");
  EXPECT_EQ(Typed(form.period, "0112202631122026"), "01/12/2026 a 31/12/2026");
  EXPECT_EQ(form.period.DataInicial(), "01/12/2026");
  EXPECT_EQ(form.period.DataFinal(), "31/12/2026");
  Press(form, "Backspace");
  EXPECT_EQ(form.period.DataFinal(), "31/12/202_");
  form.period.DataInicial = "15/12/2026";
  EXPECT_EQ(form.period.Text(), "15/12/2026 a 31/12/202_");
  form.period.DataFinal = "";
  EXPECT_EQ(form.period.Text(), "15/12/2026 a __/__/____");
  form.period.Text = "02/12/2026 a 03/12/2026";
  EXPECT_EQ(form.period.DataInicial() + " " + form.period.DataFinal(), "02/12/2026 03/12/2026");
}

}  // namespace
