#pragma once

#include <cstdint>

namespace platform {

/// A colour as the screens tell it: red + 256 x green + 65536 x blue.
using Color = std::int32_t;

constexpr Color Rgb(int red, int green, int blue) {
  return red + 256 * green + 65536 * blue;
}

inline constexpr Color kWhite = Rgb(255, 255, 255);
inline constexpr Color kBlack = 0;
/// No colour of its own: the renderer's.
inline constexpr Color kDefaultColor = -1;

}  // namespace platform
