#pragma once

#include "platform/EditBox.h"

namespace platform {

/// A field for text of one line, or of several when `multiline` is set; or for a password.
class ZVTextBox final : public EditBox {
 public:
  ZVTextBox(Container& parent, std::string_view name) : EditBox(parent, name, Kind::kTextBox) {}

  /// The characters are shown as dots and cannot be copied.
  bool password = false;
};

}  // namespace platform
