#include "desktop/views/ZVTheme.h"

#include <QPainter>
#include <algorithm>

#include "desktop/Convert.h"
#include "desktop/Paint.h"
#include "platform/Form.h"

namespace desktop {

ZVThemeView::ZVThemeView(platform::ZVTheme& theme, QWidget& parent) : View(theme, parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  lower();
}

void ZVThemeView::paintEvent(QPaintEvent*) {
  constexpr int kTallest = 44;
  QPainter painter(this);
  paint::DialogTitle(painter, QRectF(0, 0, width(), std::min(height(), kTallest)),
                     ToQt(Shows()->OwnerForm().Title()));
}

}  // namespace desktop
