#pragma once

#include "desktop/views/View.h"

namespace desktop {

/// What views have in common that are clicked as a whole: the press, the release inside, and the
/// trace that the mouse leaves. The second half of a double click is no second click.
class ClickView : public View {
 public:
  using View::View;

 protected:
  bool IsPressed() const { return pressed_ && inside_; }
  /// Whether the mouse means anything to the control now.
  virtual bool HearsMouse() const { return true; }

  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent*) override {}
  void enterEvent(QEnterEvent*) override { update(); }
  void leaveEvent(QEvent*) override { update(); }

 private:
  bool pressed_ = false;
  bool inside_ = false;
};

}  // namespace desktop
