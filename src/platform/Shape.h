#pragma once

#include "platform/Control.h"

namespace platform {

/// A frame or a rule, drawn and nothing else.
class Shape final : public Control {
 public:
  Shape(Container& parent, std::string_view name) : Control(parent, name, Kind::kShape) {}
};

}  // namespace platform
