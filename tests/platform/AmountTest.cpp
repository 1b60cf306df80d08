// What the operator types into a field for an amount of money, key by key.

#include <gtest/gtest.h>

#include <algorithm>

#include "Sample.h"
#include "platform/ZVNumberBox.h"
#include "support/FakeDesktop.h"

namespace {

namespace input = platform::input;
using support::Press;

struct AmountForm : support::SampleForm {
  AmountForm() { amount.isAmount = true; }
  platform::ZVNumberBox amount{*this, "amount"};
};

class Amount : public testing::Test {
 protected:
  Amount() { form.Show(); }
  /// Types into the field from scratch; "<" is Backspace, "[" and "]" are Home and Right, "*" is
  /// Delete.
  std::string Typed(std::string_view keys) {
    input::Focus(form.first);
    form.amount.Text = "0,00";
    input::Focus(form.amount);
    for (const char key : keys) {
      Press(form, key == '<'   ? "Backspace"
                  : key == '[' ? "Home"
                  : key == ']' ? "Right"
                  : key == '*' ? "Delete"
                               : std::string(1, key));
    }
    return form.amount.Text();
  }

  support::FakeDesktop desktop;
  AmountForm form;
};

TEST_F(Amount, ReadsAsItIsShownAtEveryKey) {
  for (const auto& row : support::Table(R"(
    50            | 50           | as typed
    100,00        | 100,00       | as typed
    ,5            | ,5           | without a zero
    1234,56       | 1234,56      | nothing is grouped that was not
    1.234,56      | 1.234,56     | grouped
    1.234.567,8   | 1.234.567,8  | twice
    R$ 1.234,56   | 1.234,56     | pasted from elsewhere
    10,005        | 10,00        | two decimals
    10,5,0        | 10,50        | one comma
    -30           | 30           | no sign
    1.5           | 1,5          | the point of a keypad
    10.00         | 10,00        | with both decimals
    10.           | 10,          | at once
    1.500         | 1.500        | thousands as soon as the third digit shows it
    1.5000        | 1.500        | and no more than that
    1.500,        | 1.500,       | the comma is the decimal sign then
    1.500.        | 1.500,       | and so is another point
    1.500.5       | 1.500,5      | with decimals
    1.5.          | 1,5          | one decimal sign
    1.5,          | 1,5          | whichever key
    1234.567      | 1234,56      | what stands before is no group
    0.005         | 0,00         | nor is a zero
    .125          | ,12          | nor nothing
    1.500<        | 1,50         | the last key undone
    1.500<0       | 1.500        | and done again
    1.500,5<<<    | 1,50         | back to where it was
    1.500[]9      | 19.500       | a digit in a group
    1.500[]]]9    | 15900        | that leaves no groups
    1.500[]*      | 1500         | without its point
    1.500[*       | 500          | with nothing in front of it
    1500[].       | 1.500        | put there afterwards
    1500,75[]]]*  | 150,75       | a digit taken out
    1,5[]<        | ,5           | before the comma
    1,50[]*       | 150          | the comma taken out
  )")) {
    ASSERT_EQ(row.size(), 3U) << row.front();
    EXPECT_EQ(Typed(row[0]), row[1]) << row[0] << ": " << row[2];
  }
}

// A service skips the points of a text, so none may stand for a comma on the way either.
TEST_F(Amount, ShowsPointsBetweenThousandsAlone) {
  for (const std::string keys :
       {"1.234.567,89", "1.5<00<<", "12.3[]*", "1.234<<<<", "1.234[]]]<"}) {
    for (std::size_t length = 1; length <= keys.size(); ++length) {
      const std::string text = Typed(keys.substr(0, length));
      const std::size_t point = text.rfind('.');
      if (point == std::string::npos) continue;
      EXPECT_EQ(std::min(text.find(','), text.size()) - point, 4U) << text;
    }
  }
}

TEST_F(Amount, ThatStoodWhenTheFocusCameIsSettled) {
  Typed("1.50");
  input::Focus(form.first);
  input::Focus(form.amount);
  Press(form, "End");
  Press(form, "0");
  EXPECT_EQ(form.amount.Text(), "1,50") << "its comma groups nothing any more";
  form.amount.Text = "1.234,56";
  Press(form, "End");
  for (int i = 0; i < 4; ++i) Press(form, "Backspace");
  EXPECT_EQ(form.amount.Text(), "123") << "a point that code wrote is no decimal sign";
  form.amount.MaxLength = 5;
  EXPECT_EQ(Typed("1.2345,67"), "1.234");
}

}  // namespace
