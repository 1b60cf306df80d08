#include "tools/roteiro/Timeline.h"

#include <algorithm>
#include <cmath>
#include <thread>
#include <utility>

namespace roteiro {
namespace {

constexpr double kMicrosASecond = 1'000'000;

std::int64_t ToMicros(double seconds) {
  return std::llround(seconds * kMicrosASecond);
}

}  // namespace

Timeline::Timeline(Mode mode, base::DateTime start) : mode_(mode), start_(start) {}

Timeline::Micros Timeline::Clock() const {
  if (IsVirtual()) return clock_;
  const auto passed = std::chrono::steady_clock::now() - begun_;
  return std::chrono::duration_cast<std::chrono::microseconds>(passed).count();
}

base::DateTime Timeline::Now() const {
  return start_.PlusSeconds(Clock() / static_cast<Micros>(kMicrosASecond));
}

double Timeline::Elapsed() const {
  // On a grid on which whole seconds add exactly: a wait of one second is twenty passes of 50 ms
  // wherever it begins, and never twenty-one.
  constexpr int kGridBits = 30;
  const double seconds = static_cast<double>(Clock()) / kMicrosASecond;
  return std::ldexp(std::round(std::ldexp(seconds, kGridBits)), -kGridBits);
}

void Timeline::At(double seconds, Cause cause, std::function<void()> happen) {
  due_.emplace(Clock() + ToMicros(seconds), Happening{cause, std::move(happen)});
}

void Timeline::Freeze(double seconds) {
  Pass(Clock() + ToMicros(seconds), true, [] { return false; });
}

void Timeline::PassUntil(double moment, const Stop& stop) {
  Pass(std::max(ToMicros(moment), Clock()), false, stop);
}

bool Timeline::IsAhead(double moment) const {
  return Clock() < ToMicros(moment);
}

std::optional<double> Timeline::UntilNext() const {
  if (IsVirtual() || due_.empty()) return std::nullopt;
  return std::max(static_cast<double>(due_.begin()->first - Clock()) / kMicrosASecond, 0.0);
}

void Timeline::Reach(Micros moment) {
  if (IsVirtual()) {
    clock_ = std::max(clock_, moment);
  } else {
    std::this_thread::sleep_until(begun_ + std::chrono::microseconds(moment));
  }
}

void Timeline::Pass(Micros until, bool frozen, const Stop& stop) {
  while (!stop()) {
    const auto end = due_.upper_bound(until);
    const auto next = std::find_if(due_.begin(), end, [&](const auto& each) {
      return !frozen || each.second.cause == Cause::kOutside;
    });
    if (next == end) {
      Reach(until);
      return;
    }
    // Taken off first: what happens may itself let time pass.
    const Happening happening = std::move(next->second);
    const Micros moment = next->first;
    due_.erase(next);
    Reach(moment);
    happening.happen();
  }
}

}  // namespace roteiro
