#include "desktop/views/CheckBox.h"

#include <QPainter>

#include "desktop/Convert.h"
#include "desktop/Fonts.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"

namespace desktop {

CheckBoxView::CheckBoxView(platform::CheckBox& box, QWidget& parent) : ClickView(box, parent) {
  setFocusPolicy(Qt::TabFocus);
}

QRectF CheckBoxView::TickBox() const {
  constexpr double kSide = 18;
  return {0, (height() - kSide) / 2, kSide, kSide};
}

QRectF CheckBoxView::RingBox() const {
  return TickBox();
}

QString CheckBoxView::Spoken() const {
  return Shows() != nullptr && Box().Value() ? QStringLiteral("marcado")
                                             : QStringLiteral("desmarcado");
}

void CheckBoxView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  paint::Tick(painter, TickBox(), Box().Value(), IsUsable());
  painter.setFont(fonts::Text());
  painter.setPen(IsUsable() ? palette::kText : palette::kPaleText);
  WordsCut(paint::Words(painter, QRectF(rect()).adjusted(26, 0, 0, 0),
                        Qt::AlignLeft | Qt::AlignVCenter, ToQt(Box().Caption())));
}

}  // namespace desktop
