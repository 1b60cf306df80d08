#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>

#include "base/DateTime.h"

namespace roteiro {

/// The time that a script lives in, and what is to happen in it. Virtual time moves only when
/// somebody lets it pass; real time by itself.
class Timeline {
 public:
  enum class Mode { kVirtual, kReal };
  /// The outside world goes on while a screen is frozen; the operator's acts wait until it listens.
  enum class Cause { kOutside, kOperator };
  using Stop = std::function<bool()>;

  /// Begins at `start`.
  Timeline(Mode mode, base::DateTime start);

  bool IsVirtual() const { return mode_ == Mode::kVirtual; }
  base::DateTime Now() const;
  /// Seconds since the start.
  double Elapsed() const;

  /// Something that happens `seconds` from now.
  void At(double seconds, Cause cause, std::function<void()> happen);
  /// Lets time pass up to `seconds` from now, the screen frozen: the operator's acts stay due.
  void Freeze(double seconds);
  /// Lets time pass up to `moment`, a value of Elapsed, or less when `stop` says so; what is due
  /// happens on the way, each thing at its time.
  void PassUntil(double moment, const Stop& stop);
  /// Whether that moment is still to come.
  bool IsAhead(double moment) const;
  /// How long until something happens by itself; nothing when nothing will.
  std::optional<double> UntilNext() const;

 private:
  using Micros = std::int64_t;
  struct Happening {
    Cause cause;
    std::function<void()> happen;
  };

  Micros Clock() const;
  void Reach(Micros moment);
  void Pass(Micros until, bool frozen, const Stop& stop);

  Mode mode_;
  base::DateTime start_;
  std::chrono::steady_clock::time_point begun_ = std::chrono::steady_clock::now();
  Micros clock_ = 0;
  std::multimap<Micros, Happening> due_;
};

}  // namespace roteiro
