#pragma once

#include <functional>
#include <utility>

namespace platform {

/// One event of a control: the handler that the screen gave it, and whether it is running.
template <class... Arguments>
class Event {
 public:
  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  template <class Handler>
  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }

  /// Runs the handler, if there is one.
  void operator()(Arguments... arguments) const {
    if (!handler_) return;
    const Running running(running_);
    handler_(std::forward<Arguments>(arguments)...);
  }

  bool HasHandler() const { return static_cast<bool>(handler_); }
  /// The operator does not enter a handler that has not ended.
  bool IsRunning() const { return running_ > 0; }

 private:
  struct Running {
    explicit Running(int& count) : count_(count) { ++count_; }
    ~Running() { --count_; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    int& count_;
  };

  std::function<void(Arguments...)> handler_;
  mutable int running_ = 0;
};

}  // namespace platform
