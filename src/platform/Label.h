#pragma once

#include "platform/Captioned.h"

namespace platform {

/// A text beside or above what it names.
class Label final : public Captioned {
 public:
  Label(Container& parent, std::string_view name) : Captioned(parent, name, Kind::kLabel) {}
};

}  // namespace platform
