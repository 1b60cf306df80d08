#pragma once

#include "desktop/views/ClickView.h"
#include "platform/ZVCommandButton.h"

namespace desktop {

/// A button; the one that the screen is for stands out.
class ZVCommandButtonView final : public ClickView {
 public:
  ZVCommandButtonView(platform::ZVCommandButton& button, QWidget& parent);

 private:
  platform::ZVCommandButton& Button() const {
    return static_cast<platform::ZVCommandButton&>(*Shows());
  }
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace desktop
