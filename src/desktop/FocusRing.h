#pragma once

#include <QWidget>

namespace desktop {

class View;

/// The ring around the control that has the keyboard: two pixels on its edge, with a pale one
/// outside. It lies over the control's neighbours and lets the mouse through.
class FocusRing final : public QWidget {
 public:
  explicit FocusRing(QWidget& form);

  /// Goes around a view, or away for null.
  void Surround(const View* view);

 private:
  void paintEvent(QPaintEvent* event) override;

  double radius_ = 0;
};

}  // namespace desktop
