#include "platform/ReportPages.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

#include "platform/ReportBlock.h"
#include "platform/ReportFill.h"

namespace platform {
namespace {

using reports::Block;
using reports::Codes;
using reports::Filling;

/// Puts the blocks of a report on pages.
class Paginator {
 public:
  Paginator(const DataReport& report, const reports::Fillings& fillings, const TextMeasure& measure,
            base::DateTime now, Telling telling)
      : fillings_(fillings),
        measure_(measure),
        paper_(report.GetPaper()),
        telling_(telling),
        codes_{1, 1, now} {
    told_.name = report.Name();
    told_.title = report.Title();
    told_.paper = paper_;
    heights_.reserve(fillings_.body.size());
    for (const Filling& each : fillings_.body) {
      const bool changes = reports::ShowsPageNumber(*each.section);
      heights_.push_back(changes ? std::nullopt : std::optional(Lay(each).height));
    }
  }

  /// All pages, `count` being how many the labels speak of.
  const ReportPages& Paginate(std::size_t count) {
    codes_.page = 0;
    codes_.pages = count;
    told_.pages.clear();
    told_.sections.clear();
    Begin(0);
    for (std::size_t i = 0; i < fillings_.headers; ++i) Place(i);
    if (told_.pages.size() == 1) PutPageHeader();
    for (std::size_t i = fillings_.headers; i < fillings_.body.size(); ++i) Place(i);
    End();
    return told_;
  }
  /// Those of the last time, which this gives away.
  ReportPages Pages() { return std::move(told_); }

 private:
  Block Lay(const Filling& filling) const { return reports::LayOut(filling, codes_, measure_); }
  Block BlockAt(std::size_t i) const { return Lay(fillings_.body[i]); }
  std::int32_t HeightAt(std::size_t i) const {
    return heights_[i] ? *heights_[i] : BlockAt(i).height;
  }
  std::int32_t Room() const { return bottom_ - y_; }

  void Begin(std::size_t row) {
    ++codes_.page;
    ReportPage& page = told_.pages.emplace_back();
    page.width = paper_.width;
    page.height = paper_.height;
    header_.clear();
    footer_.clear();
    std::int32_t headerHeight = 0;
    std::int32_t footerHeight = 0;
    for (const Filling& each : fillings_.PageBandsAt(row)) {
      const bool isHeader = each.section->GetBand() == Band::kPageHeader;
      (isHeader ? headerHeight : footerHeight) +=
          (isHeader ? header_ : footer_).emplace_back(Lay(each)).height;
    }
    y_ = paper_.endMargin;
    bottom_ = paper_.height == 0 ? std::numeric_limits<std::int32_t>::max() / 2
                                 : paper_.height - paper_.endMargin - footerHeight;
    fullRoom_ = bottom_ - y_ - headerHeight;
    isFresh_ = true;
    if (codes_.page > 1) PutPageHeader();
  }

  void End() {
    if (paper_.height != 0) y_ = bottom_;
    for (Block& each : footer_) Put(std::move(each));
    if (paper_.height == 0) told_.pages.back().height = y_ + paper_.endMargin;
  }

  void Turn(std::size_t row) {
    End();
    Begin(row);
  }

  /// On the first page it comes below the header of the report.
  void PutPageHeader() {
    std::int32_t height = 0;
    for (const Block& each : header_) height += each.height;
    if (height > Room() && !isFresh_) return Turn(0);
    const bool wasFresh = isFresh_;
    for (Block& each : header_) Put(std::move(each));
    isFresh_ = wasFresh;
  }

  /// A block that is no higher than a page is not broken; the header of a group stays with what
  /// follows it.
  bool BelongsHere(std::size_t i) const {
    if (isFresh_) return true;
    const auto isHeader = [&](std::size_t at) {
      return fillings_.body[at].section->GetBand() == Band::kGroupHeader;
    };
    std::int32_t need = 0;
    for (; isHeader(i) && i + 1 < fillings_.body.size(); ++i) need += HeightAt(i);
    const std::int32_t height = HeightAt(i);
    return need + (height > fullRoom_ ? reports::FirstLine(BlockAt(i)) : height) <= Room();
  }

  void Place(std::size_t i) {
    const std::size_t row = fillings_.body[i].row;
    if (!BelongsHere(i)) Turn(row);
    Block block = BlockAt(i);
    while (block.height > Room()) {
      std::int32_t height = reports::WholeLines(block, Room());
      // Not even a page of its own has room for the line: it goes there all the same.
      if (height == 0) height = reports::FirstLine(block);
      Put(reports::TakeUpper(block, height));
      if (block.texts.empty() && block.rules.empty()) return;
      Turn(row);
    }
    Put(std::move(block));
  }

  void Put(Block block) {
    ReportPage& page = told_.pages.back();
    for (PrintedText& each : block.texts) {
      each.left += paper_.sideMargin;
      each.top += y_;
      page.texts.push_back(std::move(each));
    }
    for (PrintedRule& each : block.rules) {
      each.left += paper_.sideMargin;
      each.top += y_;
      page.rules.push_back(each);
    }
    y_ += block.height;
    isFresh_ = false;
    // The lower parts of a section that was broken have no name.
    if (telling_ == Telling::kSections && !block.said.name.empty()) {
      told_.sections.push_back(std::move(block.said));
    }
  }

  const reports::Fillings& fillings_;
  const TextMeasure& measure_;
  const Paper& paper_;
  const Telling telling_;
  Codes codes_;
  /// Of the body, which is laid out anew where it is put: a long report has room for its pages
  /// once. Nothing where the page decides what it says.
  std::vector<std::optional<std::int32_t>> heights_;

  ReportPages told_;
  std::vector<Block> header_, footer_;  ///< Of the present page.
  std::int32_t y_ = 0, bottom_ = 0;     ///< Where the next block goes, and where the footer begins.
  std::int32_t fullRoom_ = 0;           ///< Below the header of a page.
  bool isFresh_ = true;                 ///< Nothing but its header stands on the page.
};

bool SpeaksOfPageCount(const DataReport& report) {
  return std::ranges::any_of(report.Sections(), [](const ReportSection* each) {
    return each->Visible() && reports::ShowsPageCount(*each);
  });
}

}  // namespace

ReportPages Compose(const DataReport& report, const TextMeasure& measure, base::DateTime now,
                    Telling telling) {
  const reports::Fillings fillings = reports::Fill(report);
  Paginator paginator(report, fillings, measure, now, telling);
  std::size_t count = paginator.Paginate(1).pages.size();
  // Another count may take another digit and, where a label grows, another page.
  for (int again = 0; again < 3 && SpeaksOfPageCount(report); ++again) {
    if (again == 0 && count == 1) break;
    const std::size_t told = std::exchange(count, paginator.Paginate(count).pages.size());
    if (told == count) break;
  }
  return paginator.Pages();
}

}  // namespace platform
