#include <algorithm>
#include <numeric>

#include "base/Numbers.h"
#include "base/Text.h"
#include "platform/MSFlexGrid.h"

namespace platform {
namespace {

/// What a cell is sorted by, worked out once.
struct SortKey {
  double number = 0;
  std::string text, folded;
};

SortKey KeyOf(const std::string& cell, bool numeric) {
  if (!numeric) return {0, cell, base::Fold(cell)};
  // Leading number or nothing: a cell such as "1.234,50 kg" still finds its place.
  return {base::IsNumeric(cell) ? base::ToDouble(cell) : base::ValOfNormalised(cell), {}, {}};
}

int Compare(const SortKey& a, const SortKey& b, bool numeric) {
  if (numeric) return a.number < b.number ? -1 : a.number > b.number ? 1 : 0;
  if (const int byLetters = a.folded.compare(b.folded); byLetters != 0) return byLetters;
  return base::CompareAsRead(a.text, b.text);
}

}  // namespace

void MSFlexGrid::Sort(SortMode mode) {
  const bool numeric = mode == SortMode::kNumericAscending || mode == SortMode::kNumericDescending;
  const bool descending = mode == SortMode::kNumericDescending || mode == SortMode::kTextDescending;
  std::int32_t first = std::max(std::min(row_, rowSel_), fixedRows_);
  std::int32_t last = std::max(row_, rowSel_);
  if (row_ == rowSel_) {
    first = fixedRows_;
    last = Rows() - 1;
  }
  if (first >= last) return;

  const std::int32_t firstCol = std::min(col_, colSel_), lastCol = std::max(col_, colSel_);
  const std::size_t count = static_cast<std::size_t>(last - first) + 1;
  std::vector<std::vector<SortKey>> keys(count);
  for (std::size_t i = 0; i < count; ++i) {
    for (std::int32_t col = firstCol; col <= lastCol; ++col) {
      keys[i].push_back(KeyOf(TextMatrix(first + static_cast<std::int32_t>(i), col), numeric));
    }
  }
  std::vector<std::size_t> order(count);
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
    for (std::size_t k = 0; k < keys[a].size(); ++k) {
      const int compared = Compare(keys[a][k], keys[b][k], numeric);
      if (compared != 0) return descending ? compared > 0 : compared < 0;
    }
    return false;
  });
  std::vector<Line> sorted;
  sorted.reserve(count);
  for (const std::size_t i : order)
    sorted.push_back(std::move(lines_[static_cast<std::size_t>(first) + i]));
  std::ranges::move(sorted, lines_.begin() + first);
  Change();
}

}  // namespace platform
