#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/Control.h"

namespace platform {

/// Where and how one control stands at design time. Left, top, width and height are in twips.
struct Place {
  Control& control;
  struct Box {
    std::int32_t left = 0, top = 0, width = 0, height = 0;
  } box;
  std::string_view words = {};  ///< Caption, or the title of a theme control.
  Look look = Look::kNormal;
  unsigned hold = kHoldTopLeft;
  std::string_view toolTip = {};
  std::string_view icon = {};
};

/// A form's design: its size and its controls in tab order. A label that stands before a field in
/// this order names that field to the operator.
struct Layout {
  struct Size {
    std::int32_t width = 0, height = 0;
  } size;
  std::vector<Place> places;
};

}  // namespace platform
