#pragma once

#include <cstdint>
#include <vector>

namespace platform {
class MSFlexGrid;
}

namespace desktop {

/// Between the edges of a cell and its words, in pixels.
inline constexpr double kCellMargin = 9;

/// The columns of a grid as they are shown: those of width 0 left out, amounts as wide as they
/// need, and the room that is left, or missing, given to the main column of text.
class GridColumns {
 public:
  struct Column {
    std::int32_t index = 0;  ///< In the grid.
    double left = 0, width = 0;
    bool rightwards = false;  ///< Written from the right.
  };

  /// `needs` tells by column how much its contents need to be read whole.
  void Arrange(const platform::MSFlexGrid& grid, double room, const std::vector<double>& needs);

  const std::vector<Column>& Shown() const { return shown_; }
  /// More than the room where the columns cannot be narrowed any more.
  double Width() const { return width_; }
  /// The column that bears the words of a line, -1 when there is none.
  std::int32_t Main() const { return main_; }
  /// The column at a place, -1 beside all.
  std::int32_t At(double x) const;

 private:
  /// Gives the main column what the others have beyond their needs, until it has what is wanted.
  void Widen(Column& main, double wanted, const std::vector<double>& needs);

  std::vector<Column> shown_;
  double width_ = 0;
  std::int32_t main_ = -1;
};

/// Whether the column's texts are written from the right.
bool IsRightwards(const platform::MSFlexGrid& grid, std::int32_t col);

}  // namespace desktop
