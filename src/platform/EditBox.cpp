#include "platform/EditBox.h"

#include <algorithm>

#include "base/Text.h"

namespace platform {

void EditBox::Written(const PropertyBase& property) {
  Control::Written(property);
  if (&property == &Text) {
    Select(0, 0);
  } else if (&property == &SelStart || &property == &SelLength) {
    const std::int32_t length = Length();
    SelStart.Assign(std::clamp(SelStart(), 0, length));
    SelLength.Assign(std::clamp(SelLength(), 0, length - SelStart()));
    caretAtStart_ = false;
  }
}

void EditBox::Renewed(const PropertyBase& property) {
  if (&property == &ShownText()) index_.Forget();
}

void EditBox::Select(std::int32_t anchor, std::int32_t caret) {
  const std::int32_t length = Length();
  anchor = std::clamp(anchor, 0, length);
  caret = std::clamp(caret, 0, length);
  SelStart.Assign(std::min(anchor, caret));
  SelLength.Assign(std::max(anchor, caret) - std::min(anchor, caret));
  caretAtStart_ = caret < anchor;
}

std::int32_t EditBox::Length() const {
  return static_cast<std::int32_t>(index_.Length(Shown()));
}

std::string EditBox::SelectedText() const {
  const std::string& text = Shown();
  const auto start = static_cast<std::size_t>(SelStart());
  const std::size_t from = index_.ByteOf(text, start);
  const auto length = static_cast<std::size_t>(SelLength());
  return text.substr(from, index_.ByteOf(text, start + length) - from);
}

void EditBox::SelectAll() {
  Select(0, Length());
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
    Edited();
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
      MoveCaret(Length(), stroke.shift);
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
  if (MaxLength() > 0 && Length() - SelLength() >= MaxLength()) return;
  std::string typed;
  base::AppendCharacter(typed, character);
  Splice(SelStart(), SelStart() + SelLength(), typed);
}

EditBox::Part EditBox::Erased(bool forward) const {
  const std::int32_t start = SelStart();
  if (SelLength() > 0) return {start, start + SelLength()};
  return forward ? Part{start, std::min(start + 1, Length())} : Part{std::max(start - 1, 0), start};
}

void EditBox::Erase(bool forward) {
  const auto [from, to] = Erased(forward);
  if (from < to) Splice(from, to, "");
}

void EditBox::Apply(const Change& change, Property<std::string>& text) {
  text.Amend([&](std::string& bytes) { bytes.replace(change.from, change.length, change.text); });
}

void EditBox::Splice(std::int32_t from, std::int32_t to, std::string_view text) {
  const std::size_t end = index_.ByteOf(Shown(), static_cast<std::size_t>(to));
  const std::size_t begin = index_.ByteOf(Shown(), static_cast<std::size_t>(from));
  const auto come = static_cast<std::int32_t>(base::Length(text));
  CharacterIndex after = index_;
  after.Resize(come - (to - from),
               static_cast<std::ptrdiff_t>(text.size()) - static_cast<std::ptrdiff_t>(end - begin));
  Edit({begin, end - begin, text});
  index_ = after;
  Select(from + come, from + come);
}

void EditBox::Replace(std::string_view text, std::size_t caret) {
  if (text != Shown()) Edit({0, Shown().size(), text});
  Select(static_cast<std::int32_t>(caret), static_cast<std::int32_t>(caret));
}

}  // namespace platform
