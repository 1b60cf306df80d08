#pragma once

#include "desktop/views/EditBox.h"
#include "platform/ZVFind.h"

namespace desktop {

/// A field with its search button inside at the right.
class ZVFindView final : public EditBoxView {
 public:
  ZVFindView(platform::ZVFind& find, QWidget& parent);

 private:
  QRectF TextBox() const override;
  QRectF ButtonBox() const;
  void PaintExtras(QPainter& painter) override;
  /// A click on the text searches nothing.
  void Clicked() override {}
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

  bool pressed_ = false;
  bool hovered_ = false;
};

}  // namespace desktop
