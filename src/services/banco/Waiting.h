#pragma once

#include <chrono>
#include <functional>

namespace services {

/// One wait for a database: until when it may last, and what keeps the screens alive meanwhile.
class Waiting {
 public:
  using Clock = std::chrono::steady_clock;

  /// `meanwhile` may be empty, and is called again and again once the wait has lasted for 0.1 s. It
  /// outlives the wait.
  Waiting(const std::function<void()>& meanwhile, Clock::time_point end)
      : meanwhile_(&meanwhile), end_(end) {}
  /// A part of a wait, which ends with the whole at the latest.
  Waiting(const Waiting& whole, Clock::time_point end);

  Clock::time_point End() const { return end_; }
  bool IsOver() const { return Clock::now() >= end_; }
  /// How long to sleep at most until Breathe; nothing once it is over.
  std::chrono::milliseconds Nap() const;
  /// To be called after every sleep.
  void Breathe();
  /// Sleeps, breathing, until the socket is ready for `events` (of poll); false when it is over.
  bool ForSocket(int socket, short events);
  /// Sleeps, breathing, for so long, or until it is over.
  void Sleep(std::chrono::milliseconds duration);

 private:
  static constexpr std::chrono::milliseconds kFirst{100};
  static constexpr std::chrono::milliseconds kNext{30};

  const std::function<void()>* meanwhile_;
  Clock::time_point end_;
  Clock::time_point nextBreath_ = Clock::now() + kFirst;
};

}  // namespace services
