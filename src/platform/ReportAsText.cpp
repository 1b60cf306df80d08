#include <algorithm>
#include <cmath>

#include "base/Text.h"
#include "platform/ReportPages.h"

namespace platform {
namespace {

constexpr std::int32_t kTwipsPerPoint = 20;

std::int32_t CharacterWidth(const ReportFont& font) {
  return font.points * kTwipsPerPoint / 2;
}

/// A text or a rule on its way to a row of characters.
struct Item {
  std::int32_t middle, height;  ///< In twips.
  std::int32_t start;           ///< The column where it would stand.
  std::string text;
  bool isRule;
};

/// The grid has the width of the smallest character, so that what fits on paper fits on it.
class Grid {
 public:
  explicit Grid(const ReportPages& report) : margin_(report.paper.sideMargin) {
    bool any = false;
    for (const ReportPage& page : report.pages) {
      for (const PrintedText& text : page.texts) {
        const std::int32_t width = CharacterWidth(text.font);
        column_ = any ? std::min(column_, width) : width;
        any = true;
      }
    }
    column_ = std::max(column_, 1);
  }

  std::string PageText(const ReportPage& page) const {
    std::vector<Item> items = ItemsOf(page);
    std::ranges::stable_sort(items, {}, &Item::middle);
    std::string text;
    std::int32_t end = 0;
    for (auto first = items.begin(); first != items.end();) {
      const auto next = std::find_if(first, items.end(), [&](const Item& each) {
        const std::int32_t near = std::max(1, std::min(each.height, first->height) / 2);
        return each.isRule != first->isRule || each.middle - first->middle >= near;
      });
      const bool apart = first->middle - first->height / 2 - end > first->height / 2;
      if (apart && !text.empty() && !first->isRule) text += '\n';
      for (auto each = first; each != next; ++each) {
        end = std::max(end, each->middle + each->height / 2);
      }
      std::stable_sort(first, next, [](const Item& a, const Item& b) { return a.start < b.start; });
      text += RowText(first, next) + '\n';
      first = next;
    }
    return text;
  }

 private:
  std::int32_t Column(std::int32_t twips) const {
    return static_cast<std::int32_t>(std::lround(double(twips - margin_) / column_));
  }

  std::int32_t StartOf(const PrintedText& text) const {
    const auto length = static_cast<std::int32_t>(base::Length(text.text));
    switch (text.align) {
      case ReportAlign::kRight:
        return Column(text.left + text.width) - length;
      case ReportAlign::kCenter:
        return Column(text.left + (text.width - length * column_) / 2);
      case ReportAlign::kLeft:
        break;
    }
    return Column(text.left);
  }

  std::vector<Item> ItemsOf(const ReportPage& page) const {
    std::vector<Item> items;
    for (const PrintedText& each : page.texts) {
      items.push_back({each.top + each.height / 2, each.height, StartOf(each), each.text, false});
    }
    const auto add = [&](const PrintedRule& rule, std::int32_t y, char ink) {
      const std::int32_t start = Column(rule.left);
      const std::int32_t length = std::max(1, Column(rule.left + rule.width) - start);
      items.push_back(
          {y, 0, start, std::string(static_cast<std::size_t>(length), ink), ink == '-'});
    };
    for (const PrintedRule& each : page.rules) {
      const bool isLine = each.kind == PrintedRule::Kind::kLine;
      if (isLine && each.height > each.width) continue;
      if (each.kind == PrintedRule::Kind::kBar) {
        add(each, each.top + each.height / 2, '#');
        continue;
      }
      add(each, each.top, '-');
      if (!isLine && each.height > 0) add(each, each.top + each.height, '-');
    }
    return items;
  }

  /// Neighbours that come too close move on to the right, a blank between them.
  template <class Iterator>
  static std::string RowText(Iterator first, Iterator last) {
    std::string row;
    std::int32_t length = 0;
    for (; first != last; ++first) {
      const std::int32_t start = std::max(first->start, length == 0 ? 0 : length + 1);
      row += base::Space(start - length) + first->text;
      length = start + static_cast<std::int32_t>(base::Length(first->text));
    }
    row.resize(row.find_last_not_of(' ') + 1);
    return row;
  }

  std::int32_t margin_;
  std::int32_t column_ = CharacterWidth(ReportFont());
};

}  // namespace

std::int32_t PlainMeasure::Width(std::string_view text, const ReportFont& font) const {
  return static_cast<std::int32_t>(base::Length(text)) * CharacterWidth(font);
}

std::int32_t PlainMeasure::LineHeight(const ReportFont& font) const {
  return font.points * kTwipsPerPoint * 6 / 5;
}

std::vector<std::string> AsText(const ReportPages& report) {
  const Grid grid(report);
  std::vector<std::string> pages;
  for (const ReportPage& page : report.pages) pages.push_back(grid.PageText(page));
  return pages;
}

}  // namespace platform
