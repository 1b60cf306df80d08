#pragma once

#include "desktop/views/View.h"
#include "platform/Shape.h"

namespace desktop {

/// A frame or a rule behind the controls.
class ShapeView final : public View {
 public:
  ShapeView(platform::Shape& shape, QWidget& parent);

 private:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace desktop
