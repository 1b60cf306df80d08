#pragma once

#include "base/DateTime.h"

namespace base {

/// The time as the module and the services see it: the system's, or a test's own.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual DateTime Now() const = 0;
  /// Seconds since some fixed moment, never going back: what waits measure.
  virtual double Elapsed() const = 0;
};

}  // namespace base
