#pragma once

#include <vector>

#include "desktop/views/GridColumns.h"
#include "desktop/views/View.h"
#include "platform/MSFlexGrid.h"

namespace desktop {

class ScrollBar;

/// A table with its header, whole-row selection and scroll bars. It is painted from the grid's
/// cells, once for any number of changes.
class MSFlexGridView final : public View {
 public:
  MSFlexGridView(platform::MSFlexGrid& grid, QWidget& parent);

  double RingRadius() const override;
  QString Spoken() const override;
  /// Where a cell is seen, in coordinates of the view; empty when it is not.
  QRectF CellBox(std::int32_t row, std::int32_t col) const;

 private:
  struct Cell {
    std::int32_t row = -1, col = -1;
  };

  platform::MSFlexGrid& Grid() const { return static_cast<platform::MSFlexGrid&>(*Shows()); }
  void Follow(const platform::PropertyBase& property) override;
  QString ToolTipAt(const QPoint& at) const override;
  bool TakeKey(QKeyEvent& event) override;
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

  // Where things stand.
  void Arrange();
  void ArrangeBars();
  void MeasureCells();
  double HeaderHeight() const;
  double RowHeight(std::int32_t row) const;
  /// The area in which unfixed rows are seen.
  QRectF Body() const;
  /// The first row below the body.
  std::int32_t EndOfView() const;
  Cell CellAt(const QPointF& at) const;
  void ShowCurrentRow();
  void PressCell(QMouseEvent& event);

  // What they look like.
  QFont CellFont(std::int32_t row, std::int32_t col) const;
  QString CellText(std::int32_t row, std::int32_t col) const;
  bool StandsBack(std::int32_t row) const;
  bool IsSelected(std::int32_t row) const;
  bool IsBlank(std::int32_t row) const;
  void PaintHeader(QPainter& painter);
  void PaintRow(QPainter& painter, std::int32_t row, double top);
  void PaintCell(QPainter& painter, std::int32_t row, const GridColumns::Column& column,
                 const QRectF& box);

  ScrollBar* down_;
  ScrollBar* across_;
  GridColumns columns_;
  std::vector<double> needs_;
  bool stale_ = false;
  int wheel_ = 0;
};

}  // namespace desktop
