#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <deque>
#include <functional>
#include <memory>
#include <vector>

class QMouseEvent;
class QKeyEvent;

namespace desktop {

class Loops;

/// Sees the operator's events before any window does, and holds back those that must not arrive:
/// acts beneath a box, the second half of a double click that closed a screen. What is typed while
/// a screen is just closing is not lost: it arrives when the screen beneath is ready for it.
class InputGate final : public QObject {
 public:
  explicit InputGate(const Loops& loops);
  ~InputGate() override;

  /// A screen or a box came or went.
  void ScreenChanged() { changedSincePress_ = true; }
  /// While a box is up, nothing outside it hears the operator. The box on top holds.
  void Hold(QWidget& box) { boxes_.push_back(&box); }
  void Release(QWidget& box);
  QWidget* Box() const;

  /// Called when the operator begins an act: a press, a key, the wheel.
  std::function<void()> onAct;

 private:
  bool eventFilter(QObject* receiver, QEvent* event) override;
  bool IsBarred(const QObject& receiver) const;
  bool DropsPress(const QMouseEvent& event);
  bool Defers(const QEvent& event);
  void DeliverDeferred();

  const Loops& loops_;
  std::vector<QPointer<QWidget>> boxes_;
  QElapsedTimer sincePress_;
  QPoint pressedAt_;
  bool changedSincePress_ = false;
  bool dropsRelease_ = false;
  bool delivering_ = false;
  std::deque<std::unique_ptr<QEvent>> deferred_;
};

}  // namespace desktop
