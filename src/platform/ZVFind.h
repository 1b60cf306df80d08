#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/EditBox.h"

namespace platform {

/// A field with a button that searches for what it holds. Enter and the button raise Click; typing
/// raises KeyDown first, then changes the text.
class ZVFind final : public EditBox {
 public:
  enum : std::int16_t { kFound = 0, kTyped = 1, kEmpty = 2 };
  enum : std::int16_t { kTextStyle = 1, kCodeStyle = 2 };

  ZVFind(Container& parent, std::string_view name) : EditBox(parent, name, Kind::kFind) {}

  /// kFound: an item was found and fills the field; kTyped: a click searches; kEmpty: a click
  /// clears.
  Property<std::int16_t> Status{*this, "Status", std::int16_t{kEmpty}};
  /// kTextStyle for a field of text, kCodeStyle for a field of codes.
  Property<std::int16_t> Style{*this, "Style", std::int16_t{kTextStyle}};
  /// What the operator sees; written with Text, and cleared apart from it.
  Property<std::string> DisplayText{*this, "DisplayText"};

  bool RaisesKeyDown(const KeyStroke& stroke) const override {
    return IsTyping(stroke) && !Locked();
  }
  bool TakeKey(const KeyStroke& stroke) override;
  /// Enter or the button. A field whose display code has cleared goes by what the operator sees.
  void Trigger();

 protected:
  const Property<std::string>& ShownText() const override { return DisplayText; }
  void Written(const PropertyBase& property) override;
  void Edit(const Change& change) override;

 private:
  /// Makes what the operator sees what the field holds.
  void TakeShown();

  bool isApart_ = false;  ///< Code has written what is shown apart from the text.
};

}  // namespace platform
