#include "desktop/views/ZVCommandButton.h"

#include <QPainter>

#include "desktop/Convert.h"
#include "desktop/Paint.h"

namespace desktop {

ZVCommandButtonView::ZVCommandButtonView(platform::ZVCommandButton& button, QWidget& parent)
    : ClickView(button, parent) {
  setFocusPolicy(Qt::TabFocus);
}

void ZVCommandButtonView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  WordsCut(paint::Button(painter, rect(), ToQt(Button().Caption()), Button().icon,
                         {.primary = Button().look == platform::Look::kPrimary,
                          .usable = IsUsable(),
                          .hovered = IsHovered(),
                          .pressed = IsPressed()}));
}

}  // namespace desktop
