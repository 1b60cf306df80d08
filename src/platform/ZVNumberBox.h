#pragma once

#include "platform/EditBox.h"

namespace platform {

/// A field for a number, written from the right. What may be typed is for the screen's KeyPress to
/// say; what was typed is checked when the field is left.
class ZVNumberBox final : public EditBox {
 public:
  ZVNumberBox(Container& parent, std::string_view name) : EditBox(parent, name, Kind::kNumberBox) {}
};

}  // namespace platform
