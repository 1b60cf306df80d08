#pragma once

#include <QEventLoop>
#include <functional>
#include <vector>

namespace desktop {

/// The nested waits for the operator: one for each modal screen, box or popup menu that is up. A
/// wait ends only when no handler that it let run is still running.
class Loops {
 public:
  /// Lets events run until `over` says so. Throws platform::Shutdown when the host closes meanwhile
  /// or was already closing.
  void Run(const std::function<bool()>& over);
  /// Lets the events run that have arrived; when there are none, rests for a moment so that a
  /// waiting screen does not keep the processor busy. Throws like Run.
  void ProcessEvents();
  /// Something happened that may have ended the innermost wait.
  void Check();

  /// The innermost wait is over and about to return.
  bool IsEnding() const { return !waits_.empty() && waits_.back()->ending; }
  /// The system waits for the operator, no handler running.
  bool IsResting() const;
  /// Nothing runs and nothing waits: the host may go at once.
  bool IsIdle() const;

  /// From now on every wait ends with platform::Shutdown; `unwound` is called once, from the event
  /// loop, when all have.
  void ShutDown(std::function<void()> unwound);
  bool IsShuttingDown() const { return shuttingDown_; }

 private:
  struct Wait {
    const std::function<bool()>& over;
    int depth;
    bool ending = false;
    QEventLoop loop = QEventLoop();
  };

  std::vector<Wait*> waits_;
  bool shuttingDown_ = false;
  std::function<void()> unwound_;
};

}  // namespace desktop
