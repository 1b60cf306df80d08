#include <algorithm>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "platform/Form.h"
#include "platform/Input.h"
#include "platform/MSFlexGrid.h"
#include "platform/Screens.h"
#include "platform/ZVComboBox.h"
#include "tools/roteiro/Commands.h"
#include "tools/roteiro/HeadlessDesktop.h"
#include "tools/roteiro/Lookup.h"

namespace roteiro::reads {
namespace {

using platform::MSFlexGrid;

platform::PropertyBase& PropertyIn(const platform::Object& object, const std::string& name) {
  platform::PropertyBase* const property = object.FindProperty(name);
  if (property == nullptr) throw CannotDo(object.Name() + " has no property " + name);
  return *property;
}

/// The items of a combo box, or the numbers behind them; nothing for any other property.
std::optional<Json> ListOf(const platform::Object& object, std::string_view property) {
  const auto* const combo = dynamic_cast<const platform::ZVComboBox*>(&object);
  const std::string name = base::Lower(property);
  if (combo == nullptr || (name != "items" && name != "itemdata")) return std::nullopt;
  Json list = Json::array();
  for (std::int32_t i = 0; i < combo->ListCount(); ++i) {
    list.push_back(name == "items" ? Json(combo->List(i)) : Json(combo->ItemData(i)));
  }
  return list;
}

/// One value a column or row.
template <class Read>
Json Each(std::int32_t count, Read read) {
  Json values = Json::array();
  for (std::int32_t i = 0; i < count; ++i) values.push_back(read(i));
  return values;
}

/// The picture in the header, which shows how the rows are sorted.
Json HeaderPicture(const MSFlexGrid& grid) {
  for (std::int32_t row = 0; row < std::max(grid.FixedRows(), 1); ++row) {
    for (std::int32_t col = 0; col < grid.Cols(); ++col) {
      const std::string& key = grid.FormatOf(row, col).picture;
      if (!key.empty()) return {{"col", col}, {"name", key}};
    }
  }
  return nullptr;
}

}  // namespace

std::optional<Json> Get(Stage&, const Arguments& arguments) {
  const platform::Object& object = ObjectIn(arguments);
  const std::string name = arguments.Text("property");
  if (std::optional<Json> list = ListOf(object, name)) return list;
  return ToJson(PropertyIn(object, name).Get());
}

std::optional<Json> Set(Stage&, const Arguments& arguments) {
  platform::PropertyBase& property = PropertyIn(ObjectIn(arguments), arguments.Text("property"));
  const base::Value value = ToValue(arguments.Any("value"));
  std::string fault;
  platform::input::Run([&] {
    try {
      property.Set(value);
    } catch (const base::RuntimeError& error) {
      fault = std::to_string(error.Number()) + " - " + error.Description();
    }
  });
  if (!fault.empty()) throw CannotDo(fault);
  return std::nullopt;
}

std::optional<Json> Grid(Stage&, const Arguments& arguments) {
  const MSFlexGrid& grid = GridIn(arguments);
  const std::int32_t cols = grid.Cols();
  return Json{{"rows", Each(grid.Rows(),
                            [&](std::int32_t row) {
                              return Each(cols,
                                          [&](std::int32_t c) { return grid.TextMatrix(row, c); });
                            })},
              {"row", grid.Row()},
              {"col", grid.Col()},
              {"rowsel", grid.RowSel()},
              {"colsel", grid.ColSel()},
              {"toprow", grid.TopRow()},
              {"widths", Each(cols, [&](std::int32_t col) { return grid.ColWidth(col); })},
              {"coldata", Each(cols, [&](std::int32_t col) { return grid.ColData(col); })},
              {"picture", HeaderPicture(grid)}};
}

std::optional<Json> Cell(Stage&, const Arguments& arguments) {
  const MSFlexGrid& grid = GridIn(arguments);
  const std::int32_t row = arguments.Int("row", 0, grid.Rows() - 1);
  const std::int32_t col = arguments.Int("col", 0, grid.Cols() - 1);
  const platform::CellFormat& format = grid.FormatOf(row, col);
  const bool ownAlignment = format.alignment != platform::Align::kGeneral;
  return Json{
      {"text", grid.TextMatrix(row, col)},
      {"font", format.fontName.empty() ? grid.fontName : format.fontName},
      {"size", format.fontSize == 0 ? grid.fontSize : format.fontSize},
      {"alignment", static_cast<int>(ownAlignment ? format.alignment : grid.ColAlignment(col))},
      {"back", format.back},
      {"fore", format.fore},
      {"picture", format.picture.empty() ? Json() : Json(format.picture)},
      {"rowheight", grid.RowHeight(row)}};
}

std::optional<Json> Screen(Stage&, const Arguments& arguments) {
  Json controls = Json::array();
  for (const platform::Control* control : FormIn(arguments).Controls()) {
    const bool captioned =
        control->FindProperty("Caption") != nullptr || control->GetKind() == platform::Kind::kTheme;
    const platform::PropertyBase* const text = control->FindProperty("Text");
    Json told{{"name", control->Name()}, {"kind", KindName(*control)}};
    if (text != nullptr) {
      told["text"] = ToJson(text->Get());
    } else if (captioned) {
      told["caption"] = control->Words();
    }
    told["enabled"] = control->Enabled();
    told["visible"] = control->Visible();
    controls.push_back(std::move(told));
  }
  return controls;
}

std::optional<Json> Screens(Stage&, const Arguments&) {
  Json names = Json::array();
  for (const platform::Form* form : platform::screens::Loaded()) names.push_back(form->Name());
  return names;
}

std::optional<Json> Report(Stage& stage, const Arguments&) {
  const platform::ReportPages* const report = stage.desktop.LastReport();
  if (report == nullptr) throw CannotDo("there is no report");
  Json sections = Json::array();
  for (const platform::PrintedSection& section : report->sections) {
    Json controls = Json::object();
    for (const auto& [name, text] : section.controls) controls[name] = text;
    sections.push_back({{"section", section.name}, {"controls", std::move(controls)}});
  }
  return Json{{"name", report->name},
              {"title", report->title},
              {"sections", std::move(sections)},
              {"text", platform::AsText(*report)}};
}

}  // namespace roteiro::reads
