#include "desktop/host/Notice.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "desktop/Fonts.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"

namespace host {
namespace {

constexpr int kWidest = 620;
constexpr int kMargin = 24;
constexpr int kPadding = 16;
constexpr int kFlags = Qt::TextWordWrap | Qt::AlignCenter;

}  // namespace

Notice::Notice(QWidget& window, const QString& sentence) : QWidget(&window), sentence_(sentence) {
  setObjectName(QStringLiteral("aviso"));
  setAccessibleName(sentence);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  window.installEventFilter(this);
  Place();
  show();
  raise();
}

void Notice::Place() {
  const QRect room = parentWidget()->rect();
  const int wide = std::min(kWidest, room.width() - 2 * kMargin);
  const QRect text(0, 0, wide - 2 * kPadding, room.height());
  const int tall =
      QFontMetrics(desktop::fonts::Text()).boundingRect(text, kFlags, sentence_).height();
  setGeometry((room.width() - wide) / 2, room.height() - tall - 2 * kPadding - kMargin, wide,
              tall + 2 * kPadding);
}

bool Notice::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && watched == parent()) Place();
  return false;
}

void Notice::paintEvent(QPaintEvent*) {
  using namespace desktop;
  QPainter painter(this);
  paint::Box(painter, rect(), paint::kPanelRadius, palette::kDeep);
  painter.setFont(fonts::Text());
  painter.setPen(palette::kPanel);
  painter.drawText(rect().adjusted(kPadding, kPadding, -kPadding, -kPadding), kFlags, sentence_);
}

}  // namespace host
