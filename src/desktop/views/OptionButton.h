#pragma once

#include "desktop/views/ClickView.h"
#include "platform/OptionButton.h"

namespace desktop {

/// One of several choices. Choices that touch side by side look like one switch in segments, others
/// like round buttons with their words.
class OptionButtonView final : public ClickView {
 public:
  OptionButtonView(platform::OptionButton& option, QWidget& parent);

  QRectF RingBox() const override;
  double RingRadius() const override;
  QString Spoken() const override;

 private:
  platform::OptionButton& Option() const { return static_cast<platform::OptionButton&>(*Shows()); }
  struct Neighbours {
    bool left = false, right = false;
  };
  Neighbours FindNeighbours() const;
  void PaintSegment(QPainter& painter, Neighbours neighbours);
  void PaintRound(QPainter& painter);
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace desktop
