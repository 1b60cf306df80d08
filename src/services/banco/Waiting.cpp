#include "services/banco/Waiting.h"

#include <poll.h>

#include <algorithm>
#include <thread>

namespace services {

using std::chrono::ceil;
using std::chrono::milliseconds;

Waiting::Waiting(const Waiting& whole, Clock::time_point end)
    : meanwhile_(whole.meanwhile_),
      end_(std::min(whole.end_, end)),
      nextBreath_(whole.nextBreath_) {}

milliseconds Waiting::Nap() const {
  const auto until = *meanwhile_ ? std::min(end_, nextBreath_) : end_;
  return std::max(ceil<milliseconds>(until - Clock::now()), milliseconds(0));
}

void Waiting::Breathe() {
  if (!*meanwhile_ || Clock::now() < nextBreath_) return;
  (*meanwhile_)();
  nextBreath_ = Clock::now() + kNext;
}

bool Waiting::ForSocket(int socket, short events) {
  while (true) {
    pollfd ready{socket, events, 0};
    // An interrupted poll is a short sleep.
    if (poll(&ready, 1, static_cast<int>(Nap().count())) > 0) return true;
    if (IsOver()) return false;
    Breathe();
  }
}

void Waiting::Sleep(milliseconds duration) {
  const auto end = std::min(end_, Clock::now() + duration);
  while (Clock::now() < end) {
    std::this_thread::sleep_for(std::min(Nap(), ceil<milliseconds>(end - Clock::now())));
    Breathe();
  }
}

}  // namespace services
