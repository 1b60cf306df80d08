#include "platform/EditBox.h"

#include <algorithm>
#include <cstddef>

#include "base/Text.h"

namespace platform {
namespace {

std::int32_t LengthOf(const std::string& text) {
  return static_cast<std::int32_t>(base::Length(text));
}

}  // namespace

void EditBox::Written(const PropertyBase& property) {
  Control::Written(property);
  if (&property == &Text) {
    Select(0, 0);
  } else if (&property == &SelStart || &property == &SelLength) {
    const std::int32_t length = LengthOf(Shown());
    SelStart.Assign(std::clamp(SelStart(), 0, length));
    SelLength.Assign(std::clamp(SelLength(), 0, length - SelStart()));
    caretAtStart_ = false;
  }
}

void EditBox::Select(std::int32_t anchor, std::int32_t caret) {
  const std::int32_t length = LengthOf(Shown());
  anchor = std::clamp(anchor, 0, length);
  caret = std::clamp(caret, 0, length);
  SelStart.Assign(std::min(anchor, caret));
  SelLength.Assign(std::max(anchor, caret) - std::min(anchor, caret));
  caretAtStart_ = caret < anchor;
}

std::string EditBox::SelectedText() const {
  return base::Mid(Shown(), static_cast<std::size_t>(SelStart()) + 1,
                   static_cast<std::size_t>(SelLength()));
}

void EditBox::SelectAll() {
  Select(0, LengthOf(Shown()));
}

bool EditBox::IsTyping(const KeyStroke& stroke) const {
  switch (stroke.key) {
    case Key::kCharacter:
    case Key::kSpace:
      return !stroke.control && !stroke.alt;
    case Key::kBackspace:
    case Key::kDelete:
      return true;
    case Key::kEnter:
      return multiline;
    default:
      return false;
  }
}

bool EditBox::TakeKey(const KeyStroke& stroke) {
  if (IsTyping(stroke)) {
    if (Locked()) return true;
    switch (stroke.key) {
      case Key::kBackspace:
        Erase(false);
        break;
      case Key::kDelete:
        Erase(true);
        break;
      case Key::kEnter:
        Insert(U'\n');
        break;
      default:
        Insert(stroke.character);
    }
    return true;
  }
  switch (stroke.key) {
    case Key::kLeft:
      MoveCaret(SelLength() > 0 && !stroke.shift ? SelStart() : Caret() - 1, stroke.shift);
      return true;
    case Key::kRight:
      MoveCaret(SelLength() > 0 && !stroke.shift ? SelStart() + SelLength() : Caret() + 1,
                stroke.shift);
      return true;
    case Key::kHome:
      MoveCaret(0, stroke.shift);
      return true;
    case Key::kEnd:
      MoveCaret(LengthOf(Shown()), stroke.shift);
      return true;
    default:
      return false;
  }
}

void EditBox::MoveCaret(std::int32_t to, bool extend) {
  const std::int32_t anchor = caretAtStart_ ? SelStart() + SelLength() : SelStart();
  Select(extend ? anchor : to, to);
}

void EditBox::Insert(char32_t character) {
  // A pasted tab would part the columns of a grid; no other control character can be seen.
  if ((character < U' ' && !(multiline && character == U'\n')) || character == 0x7F) return;
  std::u32string text = base::ToCharacters(Shown());
  const auto start = static_cast<std::size_t>(SelStart());
  text.erase(start, static_cast<std::size_t>(SelLength()));
  if (MaxLength() > 0 && text.size() >= static_cast<std::size_t>(MaxLength())) return;
  text.insert(start, 1, character);
  Replace(text, start + 1);
}

void EditBox::Erase(bool forward) {
  std::u32string text = base::ToCharacters(Shown());
  auto start = static_cast<std::size_t>(SelStart());
  auto length = static_cast<std::size_t>(SelLength());
  if (length == 0) {
    if (forward ? start == text.size() : start == 0) return;
    if (!forward) --start;
    length = 1;
  }
  text.erase(start, length);
  Replace(text, start);
}

void EditBox::Replace(std::u32string_view text, std::size_t caret) {
  Edited(base::FromCharacters(text));
  Select(static_cast<std::int32_t>(caret), static_cast<std::int32_t>(caret));
}

}  // namespace platform
