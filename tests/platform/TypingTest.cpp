// A scanner gone mad, a book on a key: what a key costs does not grow with the text. Told by the
// memory that is asked for on the way, which is the same on every machine.

#include <gtest/gtest.h>

#include <cstddef>

#include "AskedMemory.h"
#include "Sample.h"
#include "platform/ZVFind.h"
#include "platform/ZVMaskedBox.h"
#include "platform/ZVMemo.h"
#include "platform/ZVNumberBox.h"
#include "support/FakeDesktop.h"

namespace {

namespace input = platform::input;

constexpr int kKeys = 65'000;
/// What an act takes, and the text's own growth; a copy of the text alone would be hundreds of
/// times as much.
constexpr std::size_t kMostBytesPerKey = 200;

struct TypingForm : support::SampleForm {
  TypingForm() { amount.isAmount = true; }
  platform::ZVFind find{*this, "find"};
  platform::ZVMemo memo{*this, "memo"};
  platform::ZVNumberBox number{*this, "number"};
  platform::ZVNumberBox amount{*this, "amount"};
  platform::ZVMaskedBox unmasked{*this, "unmasked"};
};

/// What each key asks for, of so many that are alike.
std::size_t BytesPerKey(platform::Form& form, const platform::KeyStroke& stroke) {
  const std::size_t before = support::AskedMemory();
  for (int i = 0; i < kKeys; ++i) input::Press(form, stroke);
  return (support::AskedMemory() - before) / kKeys;
}

TEST(Typing, CostsTheSameHoweverLongTheTextIs) {
  support::FakeDesktop desktop;
  TypingForm form;
  form.Show();
  const std::pair<platform::EditBox&, char32_t> fields[] = {
      {form.first, U'x'},  {form.first, U'ç'},  {form.find, U'x'},    {form.memo, U'\u2019'},
      {form.number, U'7'}, {form.amount, U'7'}, {form.unmasked, U'1'}};
  for (const auto& [field, character] : fields) {
    SCOPED_TRACE(field.Name());
    input::Focus(field);
    EXPECT_LT(BytesPerKey(form, platform::KeyStroke::Character(character)), kMostBytesPerKey);
    EXPECT_EQ(field.Length(), kKeys);
    input::Select(field, kKeys / 2, kKeys / 2);
    EXPECT_LT(BytesPerKey(form, platform::KeyStroke::Character(character)), kMostBytesPerKey);
    EXPECT_EQ(field.Caret(), kKeys / 2 + kKeys) << "in the middle";
    EXPECT_LT(BytesPerKey(form, platform::KeyStroke::Of(platform::Key::kBackspace)),
              kMostBytesPerKey);
    EXPECT_EQ(field.Length(), kKeys);
    input::Select(field, kKeys, kKeys);
    EXPECT_LT(BytesPerKey(form, platform::KeyStroke::Of(platform::Key::kBackspace)),
              kMostBytesPerKey);
    EXPECT_EQ(field.Length(), 0);
  }
}

}  // namespace
