#pragma once

#include "tools/roteiro/Json.h"

namespace roteiro {
struct Hold;

/// Where the system rests: in that box or popup, else at the screen in front.
Json PlaceOf(const Hold* held);

}  // namespace roteiro
