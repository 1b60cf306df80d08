#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Control.h"

namespace platform {

/// What all fields share in which the operator edits a text: the text, the caret and selection, and
/// what each key does. Positions count characters. A renderer shows Shown(), passes keys on, and
/// reports what the mouse selects; it never edits by itself.
class EditBox : public Control {
 public:
  using Control::Control;

  Property<std::string> Text{*this, "Text"};
  /// Read-only: the caret moves, nothing changes.
  Property<bool> Locked{*this, "Locked"};
  Property<std::int32_t> SelStart{*this, "SelStart"};
  Property<std::int32_t> SelLength{*this, "SelLength"};
  /// The most characters that the operator can type; 0 for no limit.
  Property<std::int32_t> MaxLength{*this, "MaxLength"};

  /// The text on display.
  virtual const std::string& Shown() const { return Text(); }
  /// Where the caret stands: at one end of the selection.
  std::int32_t Caret() const { return caretAtStart_ ? SelStart() : SelStart() + SelLength(); }
  /// The mouse or the keyboard selects from `anchor` to `caret`.
  void Select(std::int32_t anchor, std::int32_t caret);
  std::string SelectedText() const;
  void SelectAll() override;
  std::string Words() const override { return Text(); }
  /// Whether the key edits, as against moving the caret.
  bool IsTyping(const KeyStroke& stroke) const;
  bool TakeKey(const KeyStroke& stroke) override;

  /// Enter begins a new line.
  bool multiline = false;

 protected:
  void Written(const PropertyBase& property) override;
  /// The operator typed a character, which replaces the selection.
  virtual void Insert(char32_t character);
  /// The operator pressed Delete (`forward`) or Backspace.
  virtual void Erase(bool forward);
  /// The operator's editing has brought forth this text.
  virtual void Edited(std::string text) { Text.Assign(std::move(text)); }
  /// Changes the shown text and puts the caret at `caret`.
  void Replace(std::u32string_view text, std::size_t caret);

 private:
  void MoveCaret(std::int32_t to, bool extend);

  bool caretAtStart_ = false;
};

}  // namespace platform
