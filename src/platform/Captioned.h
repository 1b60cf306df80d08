#pragma once

#include <string>
#include <string_view>

#include "platform/Control.h"

namespace platform {

/// A control that shows a caption.
class Captioned : public Control {
 public:
  using Control::Control;

  Property<std::string> Caption{*this, "Caption"};

  std::string Words() const override { return Caption(); }
  void DesignWords(std::string_view words) override { Caption.Assign(std::string(words)); }
};

}  // namespace platform
