#pragma once

#include "platform/Screens.h"

namespace vitrine {

/// The screen that the operator works on: the modal one, else the one in front; null without any.
inline platform::Form* InFront() {
  platform::Form* const modal = platform::screens::Modal();
  return modal != nullptr ? modal : platform::screens::Front();
}

}  // namespace vitrine
