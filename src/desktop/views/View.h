#pragma once

#include <QRectF>
#include <QWidget>
#include <vector>

#include "platform/Control.h"
#include "platform/Object.h"

class QKeyEvent;
class QMouseEvent;

namespace desktop {

/// Shows one control and reports to platform::input what the operator does to it. A view keeps no
/// state of its own but where the mouse is: it paints what the control says.
class View : public QWidget, public platform::Observer {
 public:
  View(platform::Control& control, QWidget& parent);
  ~View() override;

  /// The control, null once it was let go.
  platform::Control* Shows() const { return control_; }
  /// The control is about to go: it is not touched any more. The widget itself is deleted later,
  /// since it may still stand on the stack.
  virtual void LetGo();

  /// What the focus ring goes around, in coordinates of this view, and how round it is.
  virtual QRectF RingBox() const { return rect(); }
  virtual double RingRadius() const;
  /// The pointer over the view while the screen has no other.
  virtual Qt::CursorShape Pointer() const { return Qt::ArrowCursor; }
  /// Whether its words did not fit when they were last painted.
  bool IsCut() const { return cut_; }
  /// What a screen reader says after the name.
  virtual QString Spoken() const;

 protected:
  /// The control, or one of those listened to, has a new value.
  void Changed(platform::Object& object, const platform::PropertyBase& property) override;
  /// A property of the control that is not its place or visibility; the view repaints anyway.
  virtual void Follow(const platform::PropertyBase&) {}
  /// Hears of another object too; the view repaints when it changes.
  void Listen(platform::Object& object);
  /// What the pointer may say of the view at this place; empty for nothing.
  virtual QString ToolTipAt(const QPoint& at) const;
  /// Where the words are cut, the tool tip tells them.
  void WordsCut(bool cut) { cut_ = cut; }

  /// Whether characters may repeat while their key is held.
  virtual bool IsEditing() const { return false; }
  /// The operator pressed a key; passes it on to the module. False when it has no use for it.
  virtual bool TakeKey(QKeyEvent& event);

  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  // The mouse goes no further than the control it is on; the wheel does.
  void mousePressEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent*) override {}
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseDoubleClickEvent(QMouseEvent*) override {}
  bool focusNextPrevChild(bool) override { return false; }

  /// Whether the operator can use the control now, for how it looks.
  bool IsUsable() const { return control_ != nullptr && control_->IsUsable(); }
  /// Whether the mouse may leave a trace on it: usable, and its screen in reach.
  bool IsWarm() const;
  /// Whether the mouse is on it and leaves a trace; a list that was open over it hides from Qt that
  /// the mouse has left.
  bool IsHovered() const;

 private:
  void Place();
  void Name();

  platform::Control* control_;
  std::vector<platform::Object*> listened_;
  bool cut_ = false;
};

}  // namespace desktop
