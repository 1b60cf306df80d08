#pragma once

#include "desktop/views/ClickView.h"
#include "platform/CheckBox.h"

namespace desktop {

/// A box to tick, with its words.
class CheckBoxView final : public ClickView {
 public:
  CheckBoxView(platform::CheckBox& box, QWidget& parent);

  QRectF RingBox() const override;
  QString Spoken() const override;

 private:
  platform::CheckBox& Box() const { return static_cast<platform::CheckBox&>(*Shows()); }
  QRectF TickBox() const;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace desktop
