#pragma once

#include <vector>

#include "platform/Captioned.h"

namespace platform {

/// One of several choices on the same container, of which at most one is on. Coming on raises
/// Click, whether by the operator or by code; being chosen again raises nothing.
class OptionButton final : public Captioned {
 public:
  OptionButton(Container& parent, std::string_view name)
      : Captioned(parent, name, Kind::kOptionButton) {}

  Property<bool> Value{*this, "Value"};

  /// Design time: this choice is on from the start.
  void Preset();
  bool TakeKey(const KeyStroke& stroke) override;

 protected:
  void Written(const PropertyBase& property) override;

 private:
  std::vector<OptionButton*> Group() const;

  bool was_ = false;
};

}  // namespace platform
