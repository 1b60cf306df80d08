#pragma once

#include <QWidget>
#include <functional>

namespace desktop {

/// The close box of a dialog.
class CloseButton final : public QWidget {
 public:
  static constexpr int kSide = 28;

  CloseButton(QWidget& parent, std::function<void()> onClick);

 private:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void enterEvent(QEnterEvent*) override { update(); }
  void leaveEvent(QEvent*) override { update(); }

  std::function<void()> onClick_;
  bool pressed_ = false;
};

}  // namespace desktop
