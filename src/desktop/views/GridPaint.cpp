#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "desktop/Convert.h"
#include "desktop/Fonts.h"
#include "desktop/Icons.h"
#include "desktop/Paint.h"
#include "desktop/Palette.h"
#include "desktop/ScrollBar.h"
#include "desktop/views/MSFlexGrid.h"

namespace desktop {
namespace {

using platform::Align;
using platform::CellFormat;

constexpr double kArrow = 13;
constexpr auto kCalmWord = "pré-venda";
/// The two cells that stand for a box to tick, in the font that draws them so.
constexpr auto kTickFont = "Wingdings";
constexpr auto kTicked = "þ";
constexpr auto kUnticked = "q";

Qt::Alignment QtAlignment(Align align, bool rightwards) {
  switch (align) {
    case Align::kLeftTop:
    case Align::kLeftCenter:
    case Align::kLeftBottom:
      return Qt::AlignLeft | Qt::AlignVCenter;
    case Align::kCenterTop:
    case Align::kCenterCenter:
    case Align::kCenterBottom:
      return Qt::AlignHCenter | Qt::AlignVCenter;
    case Align::kRightTop:
    case Align::kRightCenter:
    case Align::kRightBottom:
      return Qt::AlignRight | Qt::AlignVCenter;
    default:
      return (rightwards ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
  }
}

Qt::Alignment AlignmentOf(const platform::MSFlexGrid& grid, std::int32_t row, std::int32_t col) {
  const Align own = grid.FormatOf(row, col).alignment;
  return QtAlignment(own == Align::kGeneral ? grid.ColAlignment(col) : own,
                     IsRightwards(grid, col));
}

/// A date that was not given, such as "__/__/____", is nothing to read.
bool IsEmptyMask(const QString& text) {
  return text.startsWith(u'_') &&
         std::ranges::all_of(text, [](QChar each) { return each == u'_' || each == u'/'; });
}

/// Figures stand in columns, and are never cut: what does not fit is set smaller.
void PaintFigures(QPainter& painter, const QRectF& box, const QString& text) {
  QFont font = painter.font();
  double wide = fonts::figures::Advance(font, text);
  if (wide > box.width() && wide > 0) {
    font.setPointSizeF(font.pointSizeF() * std::max(box.width(), 8.0) / wide);
    painter.setFont(font);
    wide = fonts::figures::Advance(font, text);
  }
  const QFontMetricsF metrics(font);
  const double base = box.center().y() - metrics.height() / 2 + metrics.ascent();
  fonts::figures::Draw(painter, {box.right() - wide, base}, text);
}

}  // namespace

QString MSFlexGridView::CellText(std::int32_t row, std::int32_t col) const {
  return ToQt(Grid().TextMatrix(row, col));
}

QFont MSFlexGridView::CellFont(std::int32_t row, std::int32_t col) const {
  if (row < Grid().FixedRows()) return fonts::Sized(fonts::kLabelSize, QFont::DemiBold);
  // The module tells sizes in points.
  constexpr double kPixelsPerPoint = 96.0 / 72.0;
  const CellFormat& format = Grid().FormatOf(row, col);
  const std::int32_t points = format.fontSize > 0 ? format.fontSize : Grid().fontSize;
  return fonts::Sized(points > 0 ? points * kPixelsPerPoint : fonts::kGridSize);
}

bool MSFlexGridView::StandsBack(std::int32_t row) const {
  return Grid().standsBack && Grid().standsBack(row);
}

bool MSFlexGridView::IsSelected(std::int32_t row) const {
  const std::int16_t when = Grid().highLight;
  if (when == 0 || (when == 2 && !hasFocus())) return false;
  const auto [low, high] = std::minmax({Grid().Row(), Grid().RowSel()});
  // The one blank line of an empty grid is nothing to select.
  return row >= low && row <= high && !IsBlank(row);
}

bool MSFlexGridView::IsBlank(std::int32_t row) const {
  for (std::int32_t col = 0; col < Grid().Cols(); ++col) {
    if (!Grid().TextMatrix(row, col).empty()) return false;
  }
  return true;
}

void MSFlexGridView::PaintHeader(QPainter& painter) {
  const double height = HeaderHeight();
  if (height <= 0) return;
  painter.fillRect(QRectF(1, 1, width() - 2, height), palette::kBand);
  for (std::int32_t row = 0; row < Grid().FixedRows(); ++row) {
    for (const GridColumns::Column& column : columns_.Shown()) {
      QRectF box = CellBox(row, column.index).adjusted(kCellMargin, 1, -kCellMargin, -1);
      const std::string& picture = Grid().FormatOf(row, column.index).picture;
      painter.setFont(CellFont(row, column.index));
      if (!picture.empty() && box.width() > 2 * kArrow) {
        // Beside the words, on the side where they end.
        const QString words = CellText(row, column.index);
        const double wide = QFontMetricsF(painter.font()).horizontalAdvance(words);
        QRectF arrow(0, box.center().y() - kArrow / 2, kArrow, kArrow);
        if (column.rightwards) {
          arrow.moveLeft(std::max(box.right() - wide - kArrow - 2, box.left()));
          box.setLeft(std::max(box.left(), arrow.right()));
        } else {
          arrow.moveLeft(std::min(box.left() + wide + 2, box.right() - kArrow));
          box.setRight(arrow.left());
        }
        icons::Draw(painter, picture, arrow, palette::kAccent);
      }
      painter.setPen(palette::kText);
      paint::WrappedWords(painter, box, AlignmentOf(Grid(), row, column.index),
                          CellText(row, column.index));
    }
  }
  painter.fillRect(QRectF(1, height, width() - 2, 1), palette::kPanelBorder);
}

void MSFlexGridView::PaintCell(QPainter& painter, std::int32_t row,
                               const GridColumns::Column& column, const QRectF& box) {
  const CellFormat& format = Grid().FormatOf(row, column.index);
  const QString text = CellText(row, column.index);
  if (format.back != platform::kDefaultColor && !IsSelected(row)) {
    painter.fillRect(box, ToQt(format.back));
  }
  if (format.fontName == kTickFont &&
      (text == QString::fromUtf8(kTicked) || text == QString::fromUtf8(kUnticked))) {
    constexpr double kSide = 17;
    const QRectF tick(box.center() - QPointF(kSide, kSide) / 2, QSizeF(kSide, kSide));
    paint::Tick(painter, tick, text == QString::fromUtf8(kTicked), IsUsable());
    return;
  }
  if (text.isEmpty() || IsEmptyMask(text)) return;
  const bool back = StandsBack(row);
  QColor ink = back ? palette::kQuietText : palette::kText;
  if (format.fore != platform::kDefaultColor) ink = ToQt(format.fore);
  painter.setFont(CellFont(row, column.index));
  painter.setPen(ink);
  QRectF room = box.adjusted(kCellMargin, 0, -kCellMargin, 0);
  if (column.rightwards) return PaintFigures(painter, room, text);
  if (back && column.index == columns_.Main()) {
    const QString word = QStringLiteral("  ·  ") + QString::fromUtf8(kCalmWord);
    const double wide = QFontMetricsF(painter.font()).horizontalAdvance(word);
    const double name = QFontMetricsF(painter.font()).horizontalAdvance(text);
    const QRectF words(room.left(), room.top(), std::min(name, room.width() - wide), room.height());
    paint::Words(painter, words, Qt::AlignLeft | Qt::AlignVCenter, text);
    room.setLeft(words.right());
    paint::Words(painter, room, Qt::AlignLeft | Qt::AlignVCenter, word);
    return;
  }
  paint::Words(painter, room, AlignmentOf(Grid(), row, column.index), text);
}

void MSFlexGridView::PaintRow(QPainter& painter, std::int32_t row, double top) {
  if (IsBlank(row)) return;
  const QRectF body = Body();
  const double height = RowHeight(row);
  if (IsSelected(row)) {
    painter.fillRect(QRectF(body.left(), top, body.width(), height), palette::kPale);
    painter.fillRect(QRectF(body.left(), top, 3, height), palette::kAccent);
  }
  const double shift = body.left() - across_->value();
  for (const GridColumns::Column& column : columns_.Shown()) {
    const QRectF box(shift + column.left, top, column.width, height - 1);
    if (box.right() > body.left() && box.left() < body.right()) {
      PaintCell(painter, row, column, box);
    }
  }
  painter.fillRect(QRectF(body.left(), top + height - 1, body.width(), 1), palette::kHairline);
}

void MSFlexGridView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  paint::Box(painter, rect(), paint::kPanelRadius, palette::kPanel, palette::kPanelBorder);
  QPainterPath inside;
  inside.addRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), paint::kPanelRadius - 1,
                        paint::kPanelRadius - 1);
  painter.setClipPath(inside);
  const QRectF body = Body();
  PaintHeader(painter);
  painter.setClipRect(body, Qt::IntersectClip);
  double top = body.top();
  for (std::int32_t row = std::max(Grid().TopRow(), Grid().FixedRows());
       row < Grid().Rows() && top < body.bottom(); ++row) {
    PaintRow(painter, row, top);
    top += RowHeight(row);
  }
}

}  // namespace desktop
