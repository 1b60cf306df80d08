#include "desktop/Paint.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "desktop/Fonts.h"
#include "desktop/Icons.h"
#include "desktop/Palette.h"

namespace desktop::paint {

void Box(QPainter& painter, const QRectF& box, double radius, const QColor& fill,
         const QColor& border) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(border.isValid() ? QPen(border, 1) : QPen(Qt::NoPen));
  painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
  const double inset = border.isValid() ? 0.5 : 0;
  painter.drawRoundedRect(box.adjusted(inset, inset, -inset, -inset), radius, radius);
  painter.restore();
}

QPainterPath Outline(const QRectF& box, double radius, Corners corners) {
  const double r = std::min({radius, box.width() / 2, box.height() / 2});
  const auto at = [r](bool round) { return round ? r : 0; };
  QPainterPath path;
  path.moveTo(box.left() + at(corners.topLeft), box.top());
  path.lineTo(box.right() - at(corners.topRight), box.top());
  if (corners.topRight) path.arcTo(box.right() - 2 * r, box.top(), 2 * r, 2 * r, 90, -90);
  path.lineTo(box.right(), box.bottom() - at(corners.bottomRight));
  if (corners.bottomRight) {
    path.arcTo(box.right() - 2 * r, box.bottom() - 2 * r, 2 * r, 2 * r, 0, -90);
  }
  path.lineTo(box.left() + at(corners.bottomLeft), box.bottom());
  if (corners.bottomLeft) path.arcTo(box.left(), box.bottom() - 2 * r, 2 * r, 2 * r, 270, -90);
  path.lineTo(box.left(), box.top() + at(corners.topLeft));
  if (corners.topLeft) path.arcTo(box.left(), box.top(), 2 * r, 2 * r, 180, -90);
  path.closeSubpath();
  return path;
}

bool Words(QPainter& painter, const QRectF& box, Qt::Alignment alignment, const QString& words) {
  const QFontMetricsF metrics(painter.font());
  // A hair of tolerance, where the words do not begin: the box was often measured with them.
  const QString shown = metrics.elidedText(words, Qt::ElideRight, box.width() + 0.5);
  const bool rightwards = alignment & Qt::AlignRight;
  painter.drawText(box.adjusted(rightwards ? -1 : 0, 0, rightwards ? 0 : 1, 0),
                   static_cast<int>(alignment) | Qt::TextSingleLine, shown);
  return shown != words;
}

bool WrappedWords(QPainter& painter, const QRectF& box, Qt::Alignment alignment,
                  const QString& words) {
  const QFontMetricsF metrics(painter.font());
  const double pitch = metrics.height();
  // The leading below the last line may stand outside the box.
  const int room = std::max(static_cast<int>((box.height() + 2) / pitch), 1);
  QTextLayout layout(words, painter.font());
  QTextOption option;
  option.setWrapMode(QTextOption::WordWrap);
  layout.setTextOption(option);
  QStringList lines;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(box.width() + 0.5);
    // The last line that fits gets all the rest, and is cut.
    const bool last = lines.size() == room - 1;
    lines << words.mid(line.textStart(), last ? -1 : line.textLength()).trimmed();
    if (last) break;
  }
  layout.endLayout();
  bool cut = false;
  double top = box.top();
  const double height = pitch * static_cast<double>(lines.size());
  if (alignment & Qt::AlignBottom) top = box.bottom() - height;
  if (alignment & Qt::AlignVCenter) top = box.center().y() - height / 2;
  const Qt::Alignment across = (alignment & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter;
  for (const QString& line : lines) {
    cut = Words(painter, QRectF(box.left(), top, box.width(), pitch), across, line) || cut;
    top += pitch;
  }
  return cut;
}

bool Button(QPainter& painter, const QRectF& box, const QString& words, std::string_view icon,
            ButtonState state) {
  QColor fill = state.primary ? palette::kAccent : palette::kPanel;
  QColor border = state.primary ? palette::kAccent : palette::kFieldBorder;
  QColor ink = state.primary ? palette::kPanel : palette::kText;
  if (!state.usable) {
    fill = palette::kBand;
    border = palette::kPanelBorder;
    ink = palette::kPaleText;
  } else if (state.pressed) {
    fill = state.primary ? palette::kAccentPressed : palette::kPressed;
  } else if (state.hovered) {
    fill = state.primary ? palette::kAccentHover : palette::kHover;
  }
  Box(painter, box, kFieldRadius, fill, border);
  const double size = box.height() >= 38 ? 14.5 : fonts::kTextSize;
  painter.setFont(fonts::Sized(size, state.primary ? QFont::DemiBold : QFont::Medium));
  painter.setPen(ink);
  QRectF room = box.adjusted(8, 0, -8, 0);
  if (!icons::Outline(icon).isEmpty()) {
    constexpr double kIcon = 18;
    constexpr double kGap = 7;
    const double wide = QFontMetricsF(painter.font()).horizontalAdvance(words);
    const double whole = words.isEmpty() ? kIcon : kIcon + kGap + wide;
    const double left = std::max(room.left(), room.center().x() - whole / 2);
    icons::Draw(painter, icon, QRectF(left, box.center().y() - kIcon / 2, kIcon, kIcon), ink);
    room.setLeft(left + kIcon + kGap);
    return Words(painter, room, Qt::AlignLeft | Qt::AlignVCenter, words);
  }
  return Words(painter, room, Qt::AlignCenter, words);
}

void DialogTitle(QPainter& painter, const QRectF& band, const QString& title) {
  painter.setFont(fonts::Sized(fonts::kTitleSize, QFont::DemiBold));
  painter.setPen(palette::kText);
  // The close box stands at the right.
  Words(painter, band.adjusted(16, 0, -48, -1), Qt::AlignLeft | Qt::AlignVCenter, title);
  painter.fillRect(QRectF(band.left(), band.bottom() - 1, band.width(), 1), palette::kPanelBorder);
}

void Tick(QPainter& painter, const QRectF& box, bool ticked, bool usable) {
  const QColor color = usable ? palette::kAccent : palette::kPaleText;
  Box(painter, box, 3,
      ticked   ? color
      : usable ? palette::kPanel
               : palette::kLockedField,
      ticked ? color : QColor(0x8a, 0x97, 0x9c));
  if (ticked) icons::Draw(painter, "check", box.adjusted(1.5, 1.5, -1.5, -1.5), palette::kPanel);
}

void Shadow(QPainter& painter, const QRectF& box, double radius) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  for (int reach = kShadow; reach > 0; reach -= 2) {
    const double fade = 1.0 - static_cast<double>(reach) / (kShadow + 1);
    painter.setBrush(QColor(0x10, 0x20, 0x24, static_cast<int>(std::lround(14 * fade))));
    painter.drawRoundedRect(box.adjusted(-reach, -reach + 4, reach, reach + 4), radius + reach,
                            radius + reach);
  }
  painter.restore();
}

}  // namespace desktop::paint
