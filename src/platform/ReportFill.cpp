#include "platform/ReportFill.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

#include "base/Numbers.h"

namespace platform::reports {
namespace {

using Sections = std::vector<const ReportSection*>;

/// The rows from one change of a field to the next. Groups are held from the outermost inwards.
struct Group {
  std::string field;
  Sections headers = {}, footers = {};
  std::string key = {};
};

/// A sum in the making, and the places that wait for it.
struct Sum {
  const ReportSum* control;
  std::size_t level;  ///< 0 for the whole report, n for the group number n from outside.
  base::Currency total = {};
  std::vector<std::string*> places = {};
};

std::string Formatted(const base::Value& value, const std::string& mask) {
  if (mask.empty()) return base::ToText(value);
  if (value.Is<base::Currency>()) return base::Format(std::get<base::Currency>(value), mask);
  if (value.Is<double>() || value.Is<std::int32_t>()) {
    return base::Format(base::ToDouble(value), mask);
  }
  return base::ToText(value);
}

bool ShowsFields(const ReportSection& section) {
  return std::ranges::any_of(section.Controls(), [](const ReportControl* each) {
    return each->GetKind() == ReportControl::Kind::kText && each->Visible();
  });
}

class Filler {
 public:
  explicit Filler(const DataReport& report) : rows_(report.DataSource.get()) {
    for (const ReportSection* section : report.Sections()) {
      if (section->Visible()) sections_[section->GetBand()].push_back(section);
    }
    FindGroups(report.Sections());
    FindSums();
    if (rows_ != nullptr) rows_->MoveFirst();
  }

  Fillings Run() {
    for (const ReportSection* each : sections_[Band::kReportHeader]) Add(FillIn(*each));
    filled_.headers = filled_.body.size();
    AddPageBands();
    for (const ReportSection* each : Footers()) ends_[each] = FillIn(*each);
    if (rows_ != nullptr) {
      for (; !rows_->Eof(); rows_->MoveNext(), ++row_) TakeRow();
    }
    if (row_ > 0) CloseGroups(0);
    for (const ReportSection* each : sections_[Band::kReportFooter]) Add(ends_[each]);
    Settle(0);
    return std::move(filled_);
  }

 private:
  /// Headers are declared from outside inwards, footers the other way round. A group whose sections
  /// are hidden still parts those within it.
  void FindGroups(const std::vector<ReportSection*>& all) {
    for (const ReportSection* each : all) {
      if (each->GetBand() == Band::kGroupHeader) GroupOf(*each);
    }
    for (auto each = all.rbegin(); each != all.rend(); ++each) {
      if ((*each)->GetBand() == Band::kGroupFooter) GroupOf(**each);
    }
    for (const ReportSection* each : sections_[Band::kGroupHeader]) {
      GroupOf(*each).headers.push_back(each);
    }
    for (const ReportSection* each : sections_[Band::kGroupFooter]) {
      GroupOf(*each).footers.push_back(each);
    }
  }

  Group& GroupOf(const ReportSection& section) {
    const auto found = std::ranges::find(groups_, section.GroupField(), &Group::field);
    return found != groups_.end() ? *found : groups_.emplace_back(Group{section.GroupField()});
  }

  void FindSums() {
    for (const auto& [band, sections] : sections_) {
      const bool isGroup = band == Band::kGroupHeader || band == Band::kGroupFooter;
      for (const ReportSection* section : sections) {
        const auto level = isGroup ? &GroupOf(*section) - groups_.data() + 1 : 0;
        for (const ReportControl* each : section->Controls()) {
          if (each->GetKind() != ReportControl::Kind::kSum || !each->Visible()) continue;
          sums_.push_back({static_cast<const ReportSum*>(each), static_cast<std::size_t>(level)});
        }
      }
    }
  }

  Sections Footers() {
    Sections all = sections_[Band::kReportFooter];
    for (const Group& each : groups_) {
      all.insert(all.end(), each.footers.begin(), each.footers.end());
    }
    return all;
  }

  std::string FieldText(const ReportText& text) const {
    if (rows_ == nullptr || rows_->Eof() || text.DataField().empty()) return {};
    return Formatted(rows_->Fields(text.DataField()), text.DataFormat());
  }

  Filling FillIn(const ReportSection& section) const {
    Filling filling{&section, row_, std::vector<std::string>(section.Controls().size())};
    for (std::size_t i = 0; i < filling.words.size(); ++i) {
      const ReportControl& control = *section.Controls()[i];
      if (control.GetKind() != ReportControl::Kind::kText || !control.Visible()) continue;
      filling.words[i] = FieldText(static_cast<const ReportText&>(control));
    }
    return filling;
  }

  /// The sums of this filling are told when their rows are over.
  void AwaitSums(Filling& filling) {
    for (Sum& sum : sums_) {
      if (&sum.control->Section() != filling.section) continue;
      const auto& controls = filling.section->Controls();
      const auto at = std::ranges::find(controls, sum.control) - controls.begin();
      sum.places.push_back(&filling.words[static_cast<std::size_t>(at)]);
    }
  }

  void Add(Filling filling) { AwaitSums(filled_.body.emplace_back(std::move(filling))); }

  void AddPageBands() {
    std::vector<Filling>& bands = filled_.pageBands.emplace_back();
    for (const Band band : {Band::kPageHeader, Band::kPageFooter}) {
      for (const ReportSection* each : sections_[band]) bands.push_back(FillIn(*each));
    }
    for (Filling& each : bands) AwaitSums(each);
    pagesShowFields_ =
        std::ranges::any_of(bands, [](const Filling& each) { return ShowsFields(*each.section); });
  }

  void TakeRow() {
    const std::size_t first = FirstChanged();
    if (row_ > 0) {
      CloseGroups(first);
      if (pagesShowFields_) AddPageBands();
    }
    for (std::size_t i = first; i < groups_.size(); ++i) {
      groups_[i].key = base::ToText(rows_->Fields(groups_[i].field));
      for (const ReportSection* each : groups_[i].headers) Add(FillIn(*each));
    }
    for (const ReportSection* each : sections_[Band::kDetail]) Add(FillIn(*each));
    for (Sum& each : sums_) {
      if (each.control->DataField().empty()) continue;
      each.total += base::ToCurrency(rows_->Fields(each.control->DataField()));
    }
    for (auto& [section, filling] : ends_) {
      filling.row = row_;
      if (ShowsFields(*section)) filling = FillIn(*section);
    }
  }

  /// The outermost group that this row begins anew; how many there are when it begins none.
  std::size_t FirstChanged() const {
    if (row_ == 0) return 0;
    const auto changed = std::ranges::find_if(groups_, [&](const Group& each) {
      return base::ToText(rows_->Fields(each.field)) != each.key;
    });
    return static_cast<std::size_t>(changed - groups_.begin());
  }

  void CloseGroups(std::size_t first) {
    for (std::size_t level = groups_.size(); level > first; --level) {
      for (const ReportSection* each : groups_[level - 1].footers) Add(ends_[each]);
      Settle(level);
    }
  }

  void Settle(std::size_t level) {
    for (Sum& sum : sums_) {
      if (sum.level != level) continue;
      for (std::string* place : sum.places) {
        *place = Formatted(sum.total, sum.control->DataFormat());
      }
      sum.places.clear();
      sum.total = {};
    }
  }

  base::RecordSet* rows_;
  std::map<Band, Sections> sections_;
  std::vector<Group> groups_;
  std::vector<Sum> sums_;
  /// The footers as the last row has them: when a group is over, the cursor is on the next one.
  std::map<const ReportSection*, Filling> ends_;
  bool pagesShowFields_ = false;
  std::size_t row_ = 0;
  Fillings filled_;
};

}  // namespace

Fillings Fill(const DataReport& report) {
  return Filler(report).Run();
}

}  // namespace platform::reports
