#include "desktop/FocusRing.h"

#include <QPainter>

#include "desktop/Palette.h"
#include "desktop/views/View.h"

namespace desktop {
namespace {

constexpr int kOuter = 3;
constexpr double kLine = 2;

}  // namespace

FocusRing::FocusRing(QWidget& form) : QWidget(&form) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  hide();
}

void FocusRing::Surround(const View* view) {
  if (view == nullptr || !view->isVisible()) return hide();
  const QRect box = view->RingBox().toAlignedRect().translated(view->pos());
  if (parentWidget() != view->parentWidget()) setParent(view->parentWidget());
  setGeometry(box.adjusted(-kOuter, -kOuter, kOuter, kOuter));
  radius_ = view->RingRadius();
  raise();
  show();
  update();
}

void FocusRing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  const QRectF box = QRectF(rect()).adjusted(kOuter, kOuter, -kOuter, -kOuter);
  const double pale = kOuter / 2.0;
  painter.setPen(QPen(palette::kOuterRing, kOuter));
  painter.drawRoundedRect(box.adjusted(-pale, -pale, pale, pale), radius_ + pale, radius_ + pale);
  painter.setPen(QPen(palette::kAccent, kLine));
  painter.drawRoundedRect(box.adjusted(kLine / 2, kLine / 2, -kLine / 2, -kLine / 2), radius_,
                          radius_);
}

}  // namespace desktop
