#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <memory>
#include <vector>

class QTextLayout;

namespace desktop {

/// Where the characters of a field's text stand, for the painter, the caret and the mouse.
/// Positions count UTF-16 units; places are in pixels from the upper left corner of the text.
class EditLayout {
 public:
  struct Setting {
    QFont font;
    double width = 0;      ///< Of the room: lines wrap at it or are aligned in it.
    bool wraps = false;    ///< Several lines.
    bool figures = false;  ///< Written from the right, in figures of one width.
    bool operator==(const Setting&) const = default;
  };

  EditLayout();
  ~EditLayout();
  /// Lays the text out anew when it or the setting differs from before.
  void Set(const QString& text, const Setting& setting);

  double Height() const;
  /// How far the text reaches to the right; more than the room when it does not fit in a line.
  double Right() const;
  /// How far it reaches to the left, below 0 when figures do not fit.
  double Left() const;
  double LineHeight() const;
  /// The caret before the unit at `position`.
  QRectF Caret(int position) const;
  /// The position that is nearest to a place.
  int PositionAt(QPointF place) const;
  /// First and last position of the line that holds `position`.
  std::pair<int, int> Line(int position) const;

  /// The area of the units from `from` to `to`, line by line.
  std::vector<QRectF> Area(int from, int to) const;
  void Draw(QPainter& painter, QPointF origin) const;

 private:
  void Measure();

  QString text_;
  Setting setting_;
  std::unique_ptr<QTextLayout> lines_;
  std::vector<double> edges_;  ///< Of figures: left edge of each unit, and the end.
};

}  // namespace desktop
