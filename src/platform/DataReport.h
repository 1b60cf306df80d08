#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/Record.h"
#include "platform/Layout.h"
#include "platform/Object.h"
#include "platform/Property.h"

namespace platform {

class DataReport;
class ReportSection;

/// What a report is printed on, in twips (1440 to an inch).
struct Paper {
  enum class Kind { kA4, kRoll80 };

  Kind kind = Kind::kA4;
  std::int32_t width = 0;
  std::int32_t height = 0;  ///< 0 on a roll: one page, as long as what stands on it.
  std::int32_t sideMargin = 0;
  std::int32_t endMargin = 0;  ///< At the top and at the bottom.

  constexpr std::int32_t InnerWidth() const { return width - 2 * sideMargin; }
};

/// 210 x 297 mm with margins of 15 mm.
inline constexpr Paper kA4Paper{Paper::Kind::kA4, 11906, 16838, 850, 850};
/// The same sheet on its side.
inline constexpr Paper kA4SidewaysPaper{Paper::Kind::kA4, 16838, 11906, 850, 850};
/// The roll of a receipt printer: 80 mm wide, of which its head reaches 72.
inline constexpr Paper kRoll80Paper{Paper::Kind::kRoll80, 4535, 0, 227, 170};

struct ReportFont {
  std::int16_t points = 9;
  bool bold = false;
  bool italic = false;

  friend bool operator==(const ReportFont&, const ReportFont&) = default;
};

enum class ReportAlign { kLeft, kCenter, kRight };

/// One thing on a report. Positions are in twips from the upper left corner of its section.
class ReportControl : public Object {
 public:
  enum class Kind { kLabel, kText, kSum, kLine, kBox, kBar };

  ReportControl(ReportSection& section, std::string_view name, Kind kind);

  Property<bool> Visible{*this, "Visible", true};
  Property<std::int32_t> Left{*this, "Left"};
  Property<std::int32_t> Top{*this, "Top"};
  Property<std::int32_t> Width{*this, "Width"};
  Property<std::int32_t> Height{*this, "Height"};

  Kind GetKind() const { return kind_; }
  ReportSection& Section() const { return section_; }
  /// Takes the words that the layout gives it.
  virtual void DesignWords(std::string_view) {}

  // Design-time traits, told once in the report's layout.
  ReportFont font;
  ReportAlign align = ReportAlign::kLeft;
  /// A text that is too long for its line is wrapped at its words, a word that is too wide between
  /// its characters, and pushes down what stands below it in the section; an empty one takes no
  /// more than its height, which may be 0. Otherwise it is cut with an ellipsis, also after the
  /// last line that its height has room for. A line break in the text always begins a new line.
  /// What is aligned to the right is never cut nor broken within a word, since it may be an amount:
  /// where it is too wide it runs out to the left.
  bool canGrow = false;

 private:
  ReportSection& section_;
  Kind kind_;
};

/// Words that do not come from the rows. In the layout's words "%p" stands for the number of the
/// page, "%P" for how many there are, "%d" for today as dd/mm/yyyy, "%t" for the time as hh:mm,
/// "%%" for a percent sign. A caption that is written later is printed as it stands: names and
/// addresses may hold a percent sign.
class ReportLabel final : public ReportControl {
 public:
  ReportLabel(ReportSection& section, std::string_view name)
      : ReportControl(section, name, Kind::kLabel) {}

  Property<std::string> Caption{*this, "Caption"};

  void DesignWords(std::string_view words) override { Caption.Assign(std::string(words)); }
  bool HasCodes() const { return hasCodes_; }

 private:
  void Written(const PropertyBase& property) override {
    if (&property == &Caption) hasCodes_ = false;
  }

  bool hasCodes_ = true;
};

/// A field of the current row. The layout's words are the name of the field.
class ReportText final : public ReportControl {
 public:
  ReportText(ReportSection& section, std::string_view name)
      : ReportControl(section, name, Kind::kText) {}

  Property<std::string> DataField{*this, "DataField"};
  /// A mask of base::Format such as "#,##0.00", for numbers; empty for the field as text. A field
  /// that is no number stays as it is, a null is empty.
  Property<std::string> DataFormat{*this, "DataFormat"};

  void DesignWords(std::string_view words) override { DataField.Assign(std::string(words)); }
};

/// The sum of a field over the rows of its group in the group's header or footer, of the whole
/// report elsewhere; added as currency, a null counting nothing. The layout's words are the name of
/// the field.
class ReportSum final : public ReportControl {
 public:
  ReportSum(ReportSection& section, std::string_view name)
      : ReportControl(section, name, Kind::kSum) {}

  Property<std::string> DataField{*this, "DataField"};
  Property<std::string> DataFormat{*this, "DataFormat", "#,##0.00"};

  void DesignWords(std::string_view words) override { DataField.Assign(std::string(words)); }
};

/// A thin line from the upper left corner of its place to the lower right one: flat when its
/// height is 0.
class ReportLine final : public ReportControl {
 public:
  ReportLine(ReportSection& section, std::string_view name)
      : ReportControl(section, name, Kind::kLine) {}
};

/// A thin frame around its place; it grows with what stands in it.
class ReportBox final : public ReportControl {
 public:
  ReportBox(ReportSection& section, std::string_view name)
      : ReportControl(section, name, Kind::kBox) {}
};

/// A place that is filled: the bar of a chart.
class ReportBar final : public ReportControl {
 public:
  ReportBar(ReportSection& section, std::string_view name)
      : ReportControl(section, name, Kind::kBar) {}
};

enum class Band {
  kReportHeader,
  kPageHeader,
  kGroupHeader,
  kDetail,
  kGroupFooter,
  kReportFooter,
  kPageFooter,
};

/// One band of a report: printed once, on each page, for each group or for each row.
class ReportSection : public Object {
 public:
  /// `groupField`, for the header and footer of a group: the field whose change begins another one.
  /// Groups nest in the order in which their headers are declared, the outermost first; groups that
  /// have but footers lie within these, the last declared outside. A group begins and ends also
  /// where its sections are hidden.
  ReportSection(DataReport& report, std::string_view name, Band band,
                std::string_view groupField = {});

  Property<bool> Visible{*this, "Visible", true};
  /// The least height; the section grows with its controls, and what is left free below them stays
  /// so.
  Property<std::int32_t> Height{*this, "Height"};

  Band GetBand() const { return band_; }
  const std::string& GroupField() const { return groupField_; }
  const std::vector<ReportControl*>& Controls() const { return controls_; }

 private:
  friend class ReportControl;

  Band band_;
  std::string groupField_;
  std::vector<ReportControl*> controls_;
};

/// Where and how one control of a report stands, and its words: a caption or the name of a field.
struct ReportPlace {
  ReportControl& control;
  Place::Box box;
  std::string_view words = {};
  ReportFont font = {};
  ReportAlign align = ReportAlign::kLeft;
  bool canGrow = false;
};

/// A report's design for one paper.
struct ReportLayout {
  struct BandHeight {
    ReportSection& section;
    std::int32_t height = 0;
  };

  Paper paper;
  std::vector<BandHeight> bands;
  std::vector<ReportPlace> places;
};

/// A column of the rows of a report, saved as a table.
struct ReportColumn {
  std::string title, field;
};

/// A printed document in bands: a class of its own for each report, with its sections and controls
/// as members under their given names, its constructor ending with Arrange. It is filled by its
/// caller, then shown or printed.
class DataReport : public Object {
 public:
  explicit DataReport(std::string_view name) : Object(name) {}

  /// The title of the preview and of the print job.
  Property<std::string> Title{*this, "Title"};
  /// The rows that the details are printed from. Null or without rows, the headers and footers of
  /// the report and its page are printed alone.
  base::RecordSetPtr DataSource;
  /// What a table of the rows shows, for reports that may be saved as one; empty for none.
  std::vector<ReportColumn> columns;

  const std::vector<ReportSection*>& Sections() const { return sections_; }
  const Paper& GetPaper() const { return paper_; }

  /// Shows the report in a preview, from where it may be printed; returns when that is closed.
  void Show();
  /// Prints the report without asking.
  void PrintReport();

 protected:
  void Arrange(const ReportLayout& layout);

 private:
  friend class ReportSection;

  Paper paper_ = kA4Paper;
  std::vector<ReportSection*> sections_;
};

}  // namespace platform
