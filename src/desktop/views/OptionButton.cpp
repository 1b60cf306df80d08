#include "desktop/views/OptionButton.h"

#include <QPainter>
#include <QPainterPath>
#include <cstdlib>

#include "desktop/Convert.h"
#include "desktop/Fonts.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"
#include "platform/Container.h"

namespace desktop {
namespace {

constexpr double kRound = 18;

}  // namespace

OptionButtonView::OptionButtonView(platform::OptionButton& option, QWidget& parent)
    : ClickView(option, parent) {
  setFocusPolicy(Qt::TabFocus);
}

OptionButtonView::Neighbours OptionButtonView::FindNeighbours() const {
  constexpr std::int32_t kTouching = 30;
  Neighbours found;
  for (const platform::Control* other : Option().Parent().Children()) {
    if (other == Shows() || other->GetKind() != platform::Kind::kOptionButton ||
        !other->Visible() || other->Top() != Option().Top()) {
      continue;
    }
    const std::int32_t here = Option().Left();
    const std::int32_t there = other->Left();
    if (std::abs(there + other->Width() - here) <= kTouching) found.left = true;
    if (std::abs(here + Option().Width() - there) <= kTouching) found.right = true;
  }
  return found;
}

QRectF OptionButtonView::RingBox() const {
  const Neighbours neighbours = FindNeighbours();
  if (neighbours.left || neighbours.right) return rect();
  return {0, (height() - kRound) / 2, kRound, kRound};
}

double OptionButtonView::RingRadius() const {
  return RingBox().height() > kRound ? paint::kFieldRadius : kRound / 2;
}

QString OptionButtonView::Spoken() const {
  return Shows() != nullptr && Option().Value() ? QStringLiteral("selecionado") : QString();
}

void OptionButtonView::PaintSegment(QPainter& painter, Neighbours neighbours) {
  const bool on = Option().Value();
  QColor fill = on ? palette::kAccent : palette::kPanel;
  QColor ink = on ? palette::kPanel : palette::kText;
  QColor border = on ? palette::kAccent : palette::kFieldBorder;
  if (!IsUsable()) {
    fill = on ? QColor(0xd9, 0xdf, 0xe1) : palette::kLockedField;
    ink = on ? palette::kLabel : palette::kPaleText;
    border = palette::kPanelBorder;
  } else if (IsHovered() && !on) {
    fill = palette::kHover;
  }
  const paint::Corners corners{!neighbours.left, !neighbours.right, !neighbours.right,
                               !neighbours.left};
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(border);
  painter.setBrush(fill);
  // Neighbours share the line between them.
  const double right = neighbours.right ? 0.5 : -0.5;
  painter.drawPath(
      paint::Outline(QRectF(rect()).adjusted(0.5, 0.5, right, -0.5), paint::kFieldRadius, corners));
  painter.setFont(fonts::Sized(fonts::kTextSize, on ? QFont::DemiBold : QFont::Normal));
  painter.setPen(ink);
  WordsCut(paint::Words(painter, QRectF(rect()).adjusted(4, 0, -4, 0), Qt::AlignCenter,
                        ToQt(Option().Caption())));
}

void OptionButtonView::PaintRound(QPainter& painter) {
  const bool usable = IsUsable();
  const QRectF round = RingBox();
  const QColor ink = usable ? palette::kAccent : palette::kPaleText;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(usable ? palette::kPanel : palette::kLockedField);
  painter.setPen(QPen(Option().Value() ? ink : QColor(0x8a, 0x97, 0x9c), 1));
  painter.drawEllipse(round.adjusted(0.5, 0.5, -0.5, -0.5));
  if (Option().Value()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(round.center(), 4.5, 4.5);
  }
  painter.setFont(fonts::Text());
  painter.setPen(usable ? palette::kText : palette::kPaleText);
  WordsCut(paint::Words(painter, QRectF(rect()).adjusted(26, 0, 0, 0),
                        Qt::AlignLeft | Qt::AlignVCenter, ToQt(Option().Caption())));
}

void OptionButtonView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const Neighbours neighbours = FindNeighbours();
  if (neighbours.left || neighbours.right) {
    PaintSegment(painter, neighbours);
  } else {
    PaintRound(painter);
  }
}

}  // namespace desktop
