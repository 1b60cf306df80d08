#pragma once

#include <QFont>
#include <QPainter>
#include <QPointF>
#include <QString>

/// The faces of the cash desk: Inter where it is installed, else DejaVu Sans.
namespace desktop::fonts {

inline constexpr double kTextSize = 13;
inline constexpr double kLabelSize = 11.5;
inline constexpr double kTitleSize = 15;
inline constexpr double kGridSize = 14;

/// Sizes are in pixels at 96 dpi.
QFont Sized(double pixels, QFont::Weight weight = QFont::Normal);
inline QFont Text() {
  return Sized(kTextSize);
}

/// Amounts are set in figures of one width, so that they stand in columns. `Advance` is where the
/// next character would stand; `Draw` begins at `baseline`.
namespace figures {
double Advance(const QFont& font, QStringView text);
void Draw(QPainter& painter, QPointF baseline, QStringView text);
}  // namespace figures

}  // namespace desktop::fonts
