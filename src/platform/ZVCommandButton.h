#pragma once

#include "platform/Captioned.h"

namespace platform {

/// A button: Enter, Space and the mouse press it.
class ZVCommandButton final : public Captioned {
 public:
  ZVCommandButton(Container& parent, std::string_view name)
      : Captioned(parent, name, Kind::kCommandButton) {}

  bool TakeKey(const KeyStroke& stroke) override;
};

}  // namespace platform
