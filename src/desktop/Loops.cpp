#include "desktop/Loops.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QThread>
#include <utility>

#include "platform/Desktop.h"
#include "platform/Input.h"

namespace desktop {
namespace {

constexpr unsigned long kRestMilliseconds = 4;

}  // namespace

void Loops::Run(const std::function<bool()>& over) {
  if (shuttingDown_) throw platform::Shutdown{};
  {
    Wait wait{over, platform::input::Depth()};
    waits_.push_back(&wait);
    struct Scope {
      ~Scope() { waits.pop_back(); }
      std::vector<Wait*>& waits;
    } scope{waits_};
    if (!over()) wait.loop.exec();
  }
  if (shuttingDown_) throw platform::Shutdown{};
}

void Loops::ProcessEvents() {
  if (shuttingDown_) throw platform::Shutdown{};
  QCoreApplication::sendPostedEvents();
  const bool some = QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
  if (shuttingDown_) throw platform::Shutdown{};
  if (!some) QThread::msleep(kRestMilliseconds);
}

void Loops::Check() {
  if (!waits_.empty()) {
    Wait& wait = *waits_.back();
    if (wait.ending || platform::input::Depth() != wait.depth) return;
    if (!shuttingDown_ && !wait.over()) return;
    wait.ending = true;
    wait.loop.exit();
  } else if (shuttingDown_ && unwound_ && IsIdle()) {
    // Not from here: the act that has just ended still stands on the stack.
    QMetaObject::invokeMethod(QCoreApplication::instance(), std::exchange(unwound_, nullptr),
                              Qt::QueuedConnection);
  }
}

bool Loops::IsResting() const {
  return platform::input::Depth() == (waits_.empty() ? 0 : waits_.back()->depth);
}

bool Loops::IsIdle() const {
  return waits_.empty() && platform::input::Depth() == 0;
}

void Loops::ShutDown(std::function<void()> unwound) {
  shuttingDown_ = true;
  unwound_ = std::move(unwound);
  Check();
}

}  // namespace desktop
