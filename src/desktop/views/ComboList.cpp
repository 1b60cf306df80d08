#include "desktop/views/ComboList.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/Convert.h"
#include "desktop/Fonts.h"
#include "desktop/Keys.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"
#include "desktop/ScrollBar.h"
#include "platform/ZVComboBox.h"

namespace desktop {
namespace {

constexpr int kItemHeight = 30;
constexpr int kMost = 10;
constexpr int kFrame = 4;
constexpr int kWidest = 460;

}  // namespace

ComboList::ComboList(const platform::ZVComboBox& combo, QWidget& owner)
    : QWidget(&owner, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint),
      combo_(combo),
      owner_(owner),
      bar_(new ScrollBar(Qt::Vertical, this)) {
  setMouseTracking(true);
  setCursor(Qt::ArrowCursor);
  QObject::connect(bar_, &QScrollBar::valueChanged, this, [this] { update(); });
}

int ComboList::Room() const {
  return std::clamp(combo_.ListCount(), 1, kMost);
}

int ComboList::WidestItem() const {
  const QFontMetrics metrics(fonts::Text());
  int widest = 0;
  for (int i = 0; i < combo_.ListCount(); ++i) {
    const QString item = ToQt(platform::ZVComboBox::ShownForm(combo_.List(i)));
    widest = std::max(widest, metrics.horizontalAdvance(item));
  }
  return widest;
}

void ComboList::Open() {
  pointed_ = false;
  const int tall = Room() * kItemHeight + 2 * kFrame;
  const QRect field(owner_.mapToGlobal(QPoint(0, 0)), owner_.size());
  const QRect screen = owner_.screen()->availableGeometry();
  const int wide = std::max(owner_.width(), std::min(WidestItem() + 40, kWidest));
  QPoint at = field.bottomLeft() + QPoint(0, 3);
  if (screen.contains(field)) {
    if (at.y() + tall > screen.bottom()) at.setY(field.top() - tall - 2);
    at.setX(std::max(std::min(at.x(), screen.right() - wide), screen.left()));
  }
  setGeometry(QRect(at, QSize(wide, tall)));
  Reload();
  show();
}

void ComboList::Reload() {
  const bool scrolls = combo_.ListCount() > kMost;
  bar_->setVisible(scrolls);
  bar_->setRange(0, std::max(combo_.ListCount() - kMost, 0));
  bar_->setPageStep(kMost);
  if (isVisible()) resize(width(), Room() * kItemHeight + 2 * kFrame);
  Mark(combo_.ListIndex());
}

QRect ComboList::ItemBox(int index) const {
  const int right = bar_->isHidden() ? 0 : ScrollBar::kThickness;
  return {kFrame, kFrame + (index - bar_->value()) * kItemHeight, width() - 2 * kFrame - right,
          kItemHeight};
}

void ComboList::Mark(int index) {
  marked_ = std::clamp(index, -1, combo_.ListCount() - 1);
  if (marked_ >= 0) Reveal(marked_);
  update();
}

void ComboList::Reveal(int index) {
  bar_->setValue(std::clamp(bar_->value(), index - kMost + 1, index));
}

int ComboList::ItemAt(const QPoint& place) const {
  if (!rect().adjusted(0, kFrame, 0, -kFrame).contains(place)) return -1;
  const int index = (place.y() - kFrame) / kItemHeight + bar_->value();
  return index < combo_.ListCount() ? index : -1;
}

void ComboList::Pick(int index) {
  hide();
  if (index >= 0) onPick(index);
}

void ComboList::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette::kPanel);
  painter.setPen(palette::kFieldBorder);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setFont(fonts::Text());
  if (combo_.ListCount() == 0) {
    painter.setPen(palette::kQuietText);
    painter.drawText(ItemBox(0).adjusted(8, 0, 0, 0), Qt::AlignVCenter,
                     QStringLiteral("Nenhum item"));
  }
  const int end = std::min(bar_->value() + kMost, combo_.ListCount());
  for (int i = bar_->value(); i < end; ++i) {
    const QRect box = ItemBox(i);
    if (i == marked_) paint::Box(painter, box, 3, palette::kPale);
    painter.setPen(i == marked_ ? palette::kAccent : palette::kText);
    paint::Words(painter, QRectF(box).adjusted(8, 0, -8, 0), Qt::AlignLeft | Qt::AlignVCenter,
                 ToQt(platform::ZVComboBox::ShownForm(combo_.List(i))));
  }
}

void ComboList::keyPressEvent(QKeyEvent* event) {
  if (IsHeldCommand(*event, false)) return;
  const int last = combo_.ListCount() - 1;
  const bool alt = event->modifiers() & Qt::AltModifier;
  switch (event->key()) {
    case Qt::Key_Up:
      if (alt) return hide();
      return Mark(std::max(marked_ - 1, 0));
    case Qt::Key_Down:
      if (alt) return hide();
      return Mark(std::min(marked_ + 1, last));
    case Qt::Key_PageUp:
      return Mark(std::max(marked_ - kMost, 0));
    case Qt::Key_PageDown:
      return Mark(std::min(marked_ + kMost, last));
    case Qt::Key_Home:
      return Mark(0);
    case Qt::Key_End:
      return Mark(last);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Pick(marked_);
    case Qt::Key_Escape:
    case Qt::Key_F4:
      return hide();
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      hide();
      break;
    default:
      break;
  }
  onKey(*event);
}

void ComboList::mousePressEvent(QMouseEvent* event) {
  if (rect().contains(event->pos())) {
    pointed_ = true;
    return;
  }
  // A press on the field itself only closes the list; elsewhere it also does what it does there.
  const QPoint field = owner_.mapFromGlobal(event->globalPosition().toPoint());
  setAttribute(Qt::WA_NoMouseReplay, owner_.rect().contains(field));
  hide();
}

void ComboList::mouseMoveEvent(QMouseEvent* event) {
  pointed_ = true;
  if (const int index = ItemAt(event->pos()); index >= 0) Mark(index);
}

void ComboList::mouseReleaseEvent(QMouseEvent* event) {
  // The release of the press that opened the list picks nothing by accident.
  if (!pointed_ || event->button() != Qt::LeftButton) return;
  if (const int index = ItemAt(event->pos()); index >= 0) Pick(index);
}

void ComboList::wheelEvent(QWheelEvent* event) {
  bar_->setValue(bar_->value() - event->angleDelta().y() / 40);
}

void ComboList::resizeEvent(QResizeEvent*) {
  bar_->setGeometry(width() - ScrollBar::kThickness - 1, 1, ScrollBar::kThickness, height() - 2);
}

}  // namespace desktop
