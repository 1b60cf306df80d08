// What typing, keys and the mouse do to a field of text.

#include <gtest/gtest.h>

#include "Sample.h"
#include "platform/EditBox.h"
#include "platform/ZVMemo.h"
#include "platform/ZVNumberBox.h"
#include "support/FakeDesktop.h"

namespace {

namespace input = platform::input;
using support::Press;

struct EditForm : support::SampleForm {
  platform::ZVMemo memo{*this, "memo"};
  platform::ZVNumberBox number{*this, "number"};
};

/// The field as a text: "^" for the caret, brackets around what is selected.
std::string Picture(const platform::EditBox& box) {
  std::u32string text = base::ToCharacters(box.Shown());
  const auto start = static_cast<std::size_t>(box.SelStart());
  const auto end = start + static_cast<std::size_t>(box.SelLength());
  const bool caretFirst = box.Caret() == box.SelStart();
  text.insert(end, start == end ? U"^" : caretFirst ? U"]" : U"^]");
  if (start != end) text.insert(start, caretFirst ? U"[^" : U"[");
  return base::FromCharacters(text);
}

/// Puts a field into the state that such a text tells.
void Draw(platform::EditBox& box, std::string_view picture) {
  std::string text;
  std::int32_t at = 0, caret = 0, open = -1, close = -1;
  for (const char32_t c : base::ToCharacters(picture)) {
    if (c == U'^') {
      caret = at;
    } else if (c == U'[') {
      open = at;
    } else if (c == U']') {
      close = at;
    } else {
      base::AppendCharacter(text, c);
      ++at;
    }
  }
  box.Text = text;
  input::Select(box, open < 0 ? caret : caret == open ? close : open, caret);
}

class Editing : public testing::Test {
 protected:
  Editing() { form.Show(); }

  support::FakeDesktop desktop;
  EditForm form;
};

TEST_F(Editing, FollowsTheKeys) {
  for (const auto& row : support::Table(R"(
    ^ção          | x                 | x^ção        | a character
    [çã^]o        | x                 | x^o          | in place of the selection
    ção^          | Backspace         | çã^          | takes a whole character
    ^ção          | Backspace         | ^ção         | nothing before
    c[çã^]o       | Backspace         | c^o          | the selection
    ção^          | Delete            | ção^         | nothing behind
    [^ção]        | Delete            | ^            | all of it
    ção^          | Left              | çã^o         | back
    ^ção          | Left              | ^ção         | not past the beginning
    ção^          | Right             | ção^         | not past the end
    ç[^ã]o        | Right             | çã^o         | to the end of the selection
    ç^ão          | shift+Left        | [^ç]ão       | selects back
    ç[ã^]o        | shift+Left        | ç^ão         | gives up what it took
    [^ç]ão        | shift+Right       | ç^ão         | gives up what it took
    [^ç]ão        | shift+End         | ç[ão^]       | turns round its anchor
    çã^o          | shift+Home        | [^çã]o       | selects to the beginning
    ç^ão          | Up                | ç^ão         | has no use for it
    ç^ão          | ctrl+c            | ç^ão         | types nothing with Ctrl
  )")) {
    ASSERT_EQ(row.size(), 4U) << row.front();
    Draw(form.first, row[0]);
    ASSERT_EQ(Picture(form.first), row[0]);
    Press(form, row[1]);
    EXPECT_EQ(Picture(form.first), row[2]) << row[1] << " on " << row[0] << ": " << row[3];
  }
}

TEST_F(Editing, StopsAtTheMostCharacters) {
  form.first.MaxLength = 3;
  input::Type(form, "ação");
  EXPECT_EQ(form.first.Text(), "açã");
  Draw(form.first, "aç[ã^]");
  input::Type(form, "o");
  EXPECT_EQ(form.first.Text(), "aço") << "what is selected makes room";
  form.first.Text = "por código";
  EXPECT_EQ(form.first.Text(), "por código") << "the limit is the operator's";
  Press(form, "x");
  EXPECT_EQ(form.first.Text(), "por código");
  Press(form, "Delete");
  EXPECT_EQ(form.first.Text(), "or código");
}

TEST_F(Editing, KeyPressMayChangeOrDropWhatIsTyped) {
  form.first.KeyPress = [](char32_t& c) {
    if (c == U'.') c = U',';
    if (c >= U'a' && c <= U'z') c -= 32;
    if (c == U'#' || c == platform::kBackspaceCharacter) c = 0;
  };
  input::Type(form, "a1.5#");
  EXPECT_EQ(form.first.Text(), "A1,5");
  Press(form, "Backspace");
  EXPECT_EQ(form.first.Text(), "A1,5") << "a dropped key does nothing";
  Press(form, "Delete");
  Press(form, "Home");
  Press(form, "Delete");
  EXPECT_EQ(form.first.Text(), "1,5") << "Delete raises no KeyPress";
}

TEST_F(Editing, KeyDownComesFirstAndMayDropTheKey) {
  support::Trace trace;
  form.first.KeyDown = [&](platform::KeyStroke& stroke) {
    trace("KeyDown at " + form.first.Text());
    if (stroke.character == U'x') stroke.key = platform::Key::kNone;
  };
  form.first.KeyPress = [&](char32_t&) { trace("KeyPress at " + form.first.Text()); };
  input::Type(form, "ax");
  EXPECT_EQ(trace.Take(), "KeyDown at , KeyPress at , KeyDown at a");
  EXPECT_EQ(form.first.Text(), "a");
}

TEST_F(Editing, OfALockedFieldChangesNothing) {
  form.first.Text = "ção";
  form.first.Locked = true;
  input::Type(form, "x");
  Press(form, "Backspace");
  Press(form, "Delete");
  EXPECT_EQ(form.first.Text(), "ção");
  Press(form, "shift+End");
  EXPECT_EQ(form.first.SelectedText(), "ção") << "the caret moves";
}

TEST_F(Editing, KeepsTheSelectionInsideTheText) {
  form.first.Text = "ção";
  form.first.SelStart = 2;
  form.first.SelLength = 99;
  EXPECT_EQ(Picture(form.first), "çã[o^]");
  form.first.SelStart = 99;
  EXPECT_EQ(Picture(form.first), "ção^");
  form.first.SelStart = -1;
  EXPECT_EQ(Picture(form.first), "^ção");
  input::Select(form.first, -5, 99);
  EXPECT_EQ(Picture(form.first), "[ção^]");
}

TEST_F(Editing, TakesNoControlCharacters) {
  input::Type(form, "Rex\tda\x01 Silva\x7F");
  EXPECT_EQ(form.first.Text(), "Rexda Silva") << "a tab would part the columns of a grid";
}

TEST_F(Editing, OfSeveralLinesTakesEnter) {
  form.defaultButton = &form.ok;
  support::Trace trace;
  trace.Click(form.ok);
  input::Focus(form.memo);
  input::Type(form, "uma\r\nduas\ntrês");
  EXPECT_EQ(form.memo.Text(), "uma\nduas\ntrês");
  EXPECT_EQ(trace.Take(), "");
  input::Focus(form.number);
  input::Type(form, "12\n");
  EXPECT_EQ(form.number.Text(), "12");
  EXPECT_EQ(trace.Take(), "ok.Click");
}

}  // namespace
