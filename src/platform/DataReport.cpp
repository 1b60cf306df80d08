#include "platform/DataReport.h"

#include "platform/Desktop.h"

namespace platform {

ReportControl::ReportControl(ReportSection& section, std::string_view name, Kind kind)
    : Object(name), section_(section), kind_(kind) {
  section.controls_.push_back(this);
}

ReportSection::ReportSection(DataReport& report, std::string_view name, Band band,
                             std::string_view groupField)
    : Object(name), band_(band), groupField_(groupField) {
  report.sections_.push_back(this);
}

void DataReport::Arrange(const ReportLayout& layout) {
  paper_ = layout.paper;
  for (const auto& [section, height] : layout.bands) section.Height.Assign(height);
  for (const ReportPlace& place : layout.places) {
    ReportControl& control = place.control;
    control.Left.Assign(place.box.left);
    control.Top.Assign(place.box.top);
    control.Width.Assign(place.box.width);
    control.Height.Assign(place.box.height);
    control.DesignWords(place.words);
    control.font = place.font;
    control.align = place.align;
    control.canGrow = place.canGrow;
  }
}

void DataReport::Show() {
  Desktop::Current().Preview(*this);
}

void DataReport::PrintReport() {
  Desktop::Current().Print(*this);
}

}  // namespace platform
