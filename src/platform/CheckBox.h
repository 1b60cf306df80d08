#pragma once

#include "platform/Captioned.h"

namespace platform {

class CheckBox final : public Captioned {
 public:
  CheckBox(Container& parent, std::string_view name) : Captioned(parent, name, Kind::kCheckBox) {}

  Property<bool> Value{*this, "Value"};

  /// The operator ticks or unticks it.
  void Toggle();
  bool TakeKey(const KeyStroke& stroke) override;
};

}  // namespace platform
