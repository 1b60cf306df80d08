#pragma once

#include "desktop/views/ClickView.h"
#include "platform/Label.h"

namespace desktop {

/// A text on its panel; what it looks like follows from its look, its colours and the panel.
class LabelView final : public ClickView {
 public:
  LabelView(platform::Label& label, QWidget& parent) : ClickView(label, parent) {}

 private:
  platform::Label& Caption() const { return static_cast<platform::Label&>(*Shows()); }
  bool HearsMouse() const override { return Caption().Click.HasHandler(); }
  void paintEvent(QPaintEvent* event) override;

  struct Style {
    QFont font;
    QColor ink;
    Qt::Alignment alignment;
  };
  Style StyleOf() const;
  void PaintBadge(QPainter& painter);
  /// Whether the label stands above an amount, and how its own words look then.
  bool NamesAmount() const;
  platform::Look LookOfWords() const;
};

}  // namespace desktop
