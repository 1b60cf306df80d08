#pragma once

#include "desktop/views/ClickView.h"
#include "platform/PictureBox.h"

namespace desktop {

/// A panel, with the views of what lies on it as its children.
class PictureBoxView final : public ClickView {
 public:
  PictureBoxView(platform::PictureBox& panel, QWidget& parent);

  double RingRadius() const override;

 private:
  platform::PictureBox& Panel() const { return static_cast<platform::PictureBox&>(*Shows()); }
  /// The height of the coloured band behind the title of a strip, 0 without one.
  int TitleBand() const;
  bool HearsMouse() const override { return Panel().Click.HasHandler(); }
  void Follow(const platform::PropertyBase& property) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace desktop
