#include "desktop/views/GridColumns.h"

#include <algorithm>

#include "desktop/Convert.h"
#include "platform/MSFlexGrid.h"

namespace desktop {
namespace {

constexpr double kNarrowestMain = 140;
/// The share of the room that the main column should have before others take more than they need.
constexpr double kShareOfMain = 0.36;

}  // namespace

bool IsRightwards(const platform::MSFlexGrid& grid, std::int32_t col) {
  switch (grid.ColAlignment(col)) {
    case platform::Align::kRightTop:
    case platform::Align::kRightCenter:
    case platform::Align::kRightBottom:
      return true;
    default:
      return false;
  }
}

void GridColumns::Arrange(const platform::MSFlexGrid& grid, double room,
                          const std::vector<double>& needs) {
  shown_.clear();
  Column* main = nullptr;
  double sum = 0;
  shown_.reserve(static_cast<std::size_t>(grid.Cols()));
  for (std::int32_t col = 0; col < grid.Cols(); ++col) {
    if (grid.ColWidth(col) <= 0) continue;
    const bool rightwards = IsRightwards(grid, col);
    const double told = ToPixels(grid.ColWidth(col));
    const auto at = static_cast<std::size_t>(col);
    const double need = rightwards && at < needs.size() ? needs[at] : 0;
    shown_.push_back({col, 0, std::max(told, need), rightwards});
    sum += shown_.back().width;
    if (!rightwards && (main == nullptr || shown_.back().width > main->width)) {
      main = &shown_.back();
    }
  }
  if (main == nullptr && !shown_.empty()) main = &shown_.back();
  if (main != nullptr) {
    main->width = std::max(main->width + room - sum, std::min(main->width, kNarrowestMain));
    Widen(*main, room * kShareOfMain, needs);
  }
  main_ = main == nullptr ? -1 : main->index;
  width_ = 0;
  for (Column& column : shown_) {
    column.left = width_;
    width_ += column.width;
  }
}

void GridColumns::Widen(Column& main, double wanted, const std::vector<double>& needs) {
  const double missing = wanted - main.width;
  const auto spare = [&](const Column& column) {
    const auto at = static_cast<std::size_t>(column.index);
    if (&column == &main || at >= needs.size() || needs[at] <= 0) return 0.0;
    return std::max(column.width - needs[at], 0.0);
  };
  double all = 0;
  for (const Column& column : shown_) all += spare(column);
  if (missing <= 0 || all <= 0) return;
  const double share = std::min(missing / all, 1.0);
  for (Column& column : shown_) {
    const double given = spare(column) * share;
    column.width -= given;
    main.width += given;
  }
}

std::int32_t GridColumns::At(double x) const {
  for (const Column& column : shown_) {
    if (x >= column.left && x < column.left + column.width) return column.index;
  }
  return -1;
}

}  // namespace desktop
