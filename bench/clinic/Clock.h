#pragma once

#include "base/Clock.h"

namespace bench {

/// A clock that stands at 22 November 2026, 14:30.
class StandingClock final : public base::Clock {
 public:
  base::DateTime Now() const override { return {2026, 11, 22, 14, 30, 0}; }
  double Elapsed() const override { return 0; }
};

}  // namespace bench
