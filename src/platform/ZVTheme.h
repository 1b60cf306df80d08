#pragma once

#include <string>
#include <string_view>

#include "platform/Control.h"

namespace platform {

/// The frame around a screen, with its title.
class ZVTheme final : public Control {
 public:
  ZVTheme(Container& parent, std::string_view name) : Control(parent, name, Kind::kTheme) {}

  Property<std::string> Titulo{*this, "Titulo"};

  std::string Words() const override { return Titulo(); }
  void DesignWords(std::string_view words) override { Titulo.Assign(std::string(words)); }
};

}  // namespace platform
