#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/CharacterIndex.h"
#include "platform/Control.h"

namespace platform {

/// What all fields share in which the operator edits a text: the text, the caret and selection, and
/// what each key does. Positions count characters. A renderer shows Shown(), passes keys on, and
/// reports what the mouse selects; it never edits by itself. A key costs the same however long the
/// text is: a scanner gone mad and a book that lies on the keyboard must not stop the cash desk.
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

  /// The operator has typed into the field, or pasted.
  Event<> Edited;

  /// The text on display.
  const std::string& Shown() const { return ShownText()(); }
  /// Its characters.
  std::int32_t Length() const;
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
  /// What the operator's editing puts in place of a part of the shown text, counted in bytes.
  struct Change {
    std::size_t from = 0, length = 0;
    std::string_view text;
  };

  /// The characters from one position to another.
  struct Part {
    std::int32_t from = 0, to = 0;
  };

  virtual const Property<std::string>& ShownText() const { return Text; }
  void Written(const PropertyBase& property) override;
  void Renewed(const PropertyBase& property) override;
  /// The operator typed a character, which replaces the selection.
  virtual void Insert(char32_t character);
  /// The operator pressed Delete (`forward`) or Backspace.
  virtual void Erase(bool forward);
  /// What that takes away: the selection, or the character beside the caret if there is one.
  Part Erased(bool forward) const;
  /// The operator's editing changes the text.
  virtual void Edit(const Change& change) { Apply(change, Text); }
  static void Apply(const Change& change, Property<std::string>& text);
  /// Puts a text in place of the characters from `from` to `to`, and the caret behind it.
  void Splice(std::int32_t from, std::int32_t to, std::string_view text);
  /// Puts a text in place of all that is shown, and the caret at `caret`.
  void Replace(std::string_view text, std::size_t caret);

 private:
  void MoveCaret(std::int32_t to, bool extend);

  bool caretAtStart_ = false;
  mutable CharacterIndex index_;
};

}  // namespace platform
