#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>
#include <QString>
#include <string_view>

/// Shapes and words that several views draw alike.
namespace desktop::paint {

inline constexpr double kFieldRadius = 4;
inline constexpr double kPanelRadius = 6;
inline constexpr double kDialogRadius = 8;

/// A rounded area with a border of one pixel inside `box`; an invalid colour leaves either out.
void Box(QPainter& painter, const QRectF& box, double radius, const QColor& fill,
         const QColor& border = QColor());

/// Which corners of an area are rounded.
struct Corners {
  bool topLeft = true, topRight = true, bottomRight = true, bottomLeft = true;
};
/// The outline of an area of which only some corners are round.
QPainterPath Outline(const QRectF& box, double radius, Corners corners);

/// One line of words in `box`, cut with an ellipsis where it is too long. True when it was cut.
bool Words(QPainter& painter, const QRectF& box, Qt::Alignment alignment, const QString& words);
/// Words over several lines in `box`, the last one cut where they are too long. True when cut.
bool WrappedWords(QPainter& painter, const QRectF& box, Qt::Alignment alignment,
                  const QString& words);

/// A button, whoever presses it.
struct ButtonState {
  bool primary = false, usable = true, hovered = false, pressed = false;
};
bool Button(QPainter& painter, const QRectF& box, const QString& words, std::string_view icon,
            ButtonState state);

/// The title of a dialog, with the line beneath it.
void DialogTitle(QPainter& painter, const QRectF& band, const QString& title);

/// A small box, ticked or not.
void Tick(QPainter& painter, const QRectF& box, bool ticked, bool usable);

/// A soft shadow around `box`, which is then drawn over it.
void Shadow(QPainter& painter, const QRectF& box, double radius);
inline constexpr int kShadow = 18;

}  // namespace desktop::paint
