#pragma once

#include <QScrollBar>

namespace desktop {

/// A slim scroll bar in the look of the cash desk, without arrows.
class ScrollBar final : public QScrollBar {
 public:
  static constexpr int kThickness = 12;

  ScrollBar(Qt::Orientation orientation, QWidget* parent);
};

}  // namespace desktop
