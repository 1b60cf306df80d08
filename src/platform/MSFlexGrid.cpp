#include "platform/MSFlexGrid.h"

#include <algorithm>
#include <functional>

#include "base/RuntimeError.h"

namespace platform {

using base::Fault;
using base::RuntimeError;

/// A property whose value is worked out by the grid, so that tools can read it by name.
class MSFlexGrid::Computed final : public PropertyBase {
 public:
  Computed(MSFlexGrid& grid, std::string_view name, std::function<base::Value()> get,
           std::function<void(const base::Value&)> set)
      : PropertyBase(grid, name), get_(std::move(get)), set_(std::move(set)) {}

  base::Value Get() const override { return get_(); }
  void Set(const base::Value& value) override { set_(value); }

 private:
  std::function<base::Value()> get_;
  std::function<void(const base::Value&)> set_;
};

MSFlexGrid::MSFlexGrid(Container& parent, std::string_view name)
    : Control(parent, name, Kind::kGrid), columns_(2) {
  lines_.assign(2, EmptyLine());
  using Getter = std::int32_t (MSFlexGrid::*)() const;
  using Setter = void (MSFlexGrid::*)(std::int32_t);
  const auto add = [this](std::string_view property, Getter get, Setter set) {
    computed_.push_back(std::make_unique<Computed>(
        *this, property, [this, get] { return base::Value((this->*get)()); },
        [this, set](const base::Value& value) {
          if (set == nullptr) throw RuntimeError(Fault::kNoSuchMember);
          (this->*set)(base::ToInt32(value));
        }));
  };
  add("Rows", &MSFlexGrid::Rows, &MSFlexGrid::Rows);
  add("Cols", &MSFlexGrid::Cols, &MSFlexGrid::Cols);
  add("FixedRows", &MSFlexGrid::FixedRows, &MSFlexGrid::FixedRows);
  add("Row", &MSFlexGrid::Row, &MSFlexGrid::Row);
  add("Col", &MSFlexGrid::Col, &MSFlexGrid::Col);
  add("RowSel", &MSFlexGrid::RowSel, &MSFlexGrid::RowSel);
  add("ColSel", &MSFlexGrid::ColSel, &MSFlexGrid::ColSel);
  add("TopRow", &MSFlexGrid::TopRow, &MSFlexGrid::TopRow);
  add("MouseRow", &MSFlexGrid::MouseRow, nullptr);
  add("MouseCol", &MSFlexGrid::MouseCol, nullptr);
  computed_.push_back(std::make_unique<Computed>(
      *this, "Text", [this] { return base::Value(Text()); },
      [this](const base::Value& value) { Text(base::ToText(value)); }));
  computed_.push_back(std::make_unique<Computed>(
      *this, "Redraw", [this] { return base::Value(redraw_); },
      [this](const base::Value& value) { Redraw(base::ToBool(value)); }));
}

MSFlexGrid::~MSFlexGrid() = default;

const MSFlexGrid::Line& MSFlexGrid::RowAt(std::int32_t row) const {
  if (row < 0 || row >= Rows()) throw RuntimeError(Fault::kIndexOutOfRange);
  return lines_[static_cast<std::size_t>(row)];
}
MSFlexGrid::Line& MSFlexGrid::RowAt(std::int32_t row) {
  return const_cast<Line&>(std::as_const(*this).RowAt(row));
}

const MSFlexGrid::Column& MSFlexGrid::ColumnAt(std::int32_t col) const {
  if (col < 0 || col >= Cols()) throw RuntimeError(Fault::kIndexOutOfRange);
  return columns_[static_cast<std::size_t>(col)];
}
MSFlexGrid::Column& MSFlexGrid::ColumnAt(std::int32_t col) {
  return const_cast<Column&>(std::as_const(*this).ColumnAt(col));
}

MSFlexGrid::Line MSFlexGrid::EmptyLine() const {
  Line line;
  line.cells.resize(columns_.size());
  return line;
}

void MSFlexGrid::Change() {
  Touch();
  changed_ = true;
  if (!redraw_) return;
  changed_ = false;
  Revision.Assign(Revision() + 1);
}

void MSFlexGrid::Redraw(bool redraw) {
  redraw_ = redraw;
  if (redraw_ && changed_) Change();
}

void MSFlexGrid::KeepInside() {
  const auto keep = [](std::int32_t& index, std::int32_t count) {
    index = std::clamp(index, 0, std::max(count - 1, 0));
  };
  keep(row_, Rows());
  keep(rowSel_, Rows());
  keep(topRow_, Rows());
  keep(col_, Cols());
  keep(colSel_, Cols());
  topRow_ = std::max(topRow_, std::min(fixedRows_, Rows() - 1));
}

std::int32_t MSFlexGrid::Rows() const {
  return static_cast<std::int32_t>(lines_.size());
}

void MSFlexGrid::Rows(std::int32_t count) {
  if (count < fixedRows_) throw RuntimeError(Fault::kInvalidArgument);
  lines_.resize(static_cast<std::size_t>(count), EmptyLine());
  KeepInside();
  Change();
}

std::int32_t MSFlexGrid::Cols() const {
  return static_cast<std::int32_t>(columns_.size());
}

void MSFlexGrid::Cols(std::int32_t count) {
  if (count < 1) throw RuntimeError(Fault::kInvalidArgument);
  columns_.resize(static_cast<std::size_t>(count));
  for (Line& line : lines_) line.cells.resize(columns_.size());
  KeepInside();
  Change();
}

void MSFlexGrid::FixedRows(std::int32_t count) {
  if (count < 0 || count >= Rows()) throw RuntimeError(Fault::kInvalidArgument);
  fixedRows_ = count;
  KeepInside();
  Change();
}

const std::string& MSFlexGrid::TextMatrix(std::int32_t row, std::int32_t col) const {
  ColumnAt(col);
  return RowAt(row).cells[static_cast<std::size_t>(col)];
}

void MSFlexGrid::TextMatrix(std::int32_t row, std::int32_t col, std::string_view text) {
  ColumnAt(col);
  RowAt(row).cells[static_cast<std::size_t>(col)] = text;
  Change();
}

void MSFlexGrid::AddItem(std::string_view texts, std::int32_t at) {
  if (at != -1 && (at < fixedRows_ || at > Rows())) throw RuntimeError(Fault::kIndexOutOfRange);
  Line line = EmptyLine();
  for (std::string& cell : line.cells) {
    const std::size_t tab = std::min(texts.find('\t'), texts.size());
    cell = texts.substr(0, tab);
    texts.remove_prefix(std::min(tab + 1, texts.size()));
  }
  lines_.insert(at == -1 ? lines_.end() : lines_.begin() + at, std::move(line));
  KeepInside();
  Change();
}

void MSFlexGrid::RemoveItem(std::int32_t row) {
  RowAt(row);
  if (row < fixedRows_ || Rows() == fixedRows_ + 1) throw RuntimeError(Fault::kInvalidArgument);
  lines_.erase(lines_.begin() + row);
  KeepInside();
  Change();
}

void MSFlexGrid::Clear() {
  for (Line& line : lines_) {
    for (std::string& cell : line.cells) cell.clear();
    line.formats.clear();
  }
  Change();
}

void MSFlexGrid::Row(std::int32_t row) {
  RowAt(row);
  row_ = rowSel_ = row;
  Change();
}

void MSFlexGrid::Col(std::int32_t col) {
  ColumnAt(col);
  col_ = colSel_ = col;
  Change();
}

void MSFlexGrid::RowSel(std::int32_t row) {
  RowAt(row);
  rowSel_ = row;
  Change();
}

void MSFlexGrid::ColSel(std::int32_t col) {
  ColumnAt(col);
  colSel_ = col;
  Change();
}

void MSFlexGrid::TopRow(std::int32_t row) {
  RowAt(row);
  topRow_ = std::max(row, std::min(fixedRows_, Rows() - 1));
  Change();
}

void MSFlexGrid::ColWidth(std::int32_t col, std::int32_t width) {
  ColumnAt(col).width = width;
  Change();
}

void MSFlexGrid::ColAlignment(std::int32_t col, Align alignment) {
  ColumnAt(col).alignment = alignment;
  Change();
}

void MSFlexGrid::ColData(std::int32_t col, std::int32_t data) {
  ColumnAt(col).data = data;
}

void MSFlexGrid::RowHeight(std::int32_t row, std::int32_t height) {
  RowAt(row).height = height;
  Change();
}

CellFormat& MSFlexGrid::CurrentFormat() {
  return RowAt(row_).formats[col_];
}

void MSFlexGrid::CellFontName(std::string_view name) {
  CurrentFormat().fontName = name;
  Change();
}
void MSFlexGrid::CellFontSize(std::int32_t size) {
  CurrentFormat().fontSize = size;
  Change();
}
void MSFlexGrid::CellAlignment(Align alignment) {
  CurrentFormat().alignment = alignment;
  Change();
}
void MSFlexGrid::CellBackColor(Color color) {
  CurrentFormat().back = color;
  Change();
}
void MSFlexGrid::CellForeColor(Color color) {
  CurrentFormat().fore = color;
  Change();
}
void MSFlexGrid::CellPicture(std::string_view key) {
  CurrentFormat().picture = key;
  Change();
}
void MSFlexGrid::CellPictureAlignment(Align alignment) {
  CurrentFormat().pictureAlignment = alignment;
  Change();
}

const CellFormat& MSFlexGrid::FormatOf(std::int32_t row, std::int32_t col) const {
  static const CellFormat kPlain;
  ColumnAt(col);
  const auto& formats = RowAt(row).formats;
  const auto found = formats.find(col);
  return found == formats.end() ? kPlain : found->second;
}

void MSFlexGrid::MouseAt(std::int32_t row, std::int32_t col) {
  RowAt(row);
  ColumnAt(col);
  mouseRow_ = row;
  mouseCol_ = col;
}

std::int32_t MSFlexGrid::RowsInView() const {
  std::int32_t header = 0;
  for (std::int32_t row = 0; row < fixedRows_; ++row) header += RowHeight(row);
  const std::int32_t height = fixedRows_ < Rows() ? RowHeight(fixedRows_) : 450;
  return height <= 0 ? 1 : std::max((Height() - header) / height, 1);
}

void MSFlexGrid::SelectCell(std::int32_t row, std::int32_t col) {
  RowAt(row);
  ColumnAt(col);
  if (row < fixedRows_) return;
  const bool moved = row != row_ || col != col_;
  const bool selected = moved || rowSel_ != row || colSel_ != col;
  row_ = rowSel_ = row;
  col_ = colSel_ = col;
  if (row_ < topRow_) topRow_ = row_;
  if (row_ >= topRow_ + RowsInView()) topRow_ = row_ - RowsInView() + 1;
  Change();
  if (moved) RowColChange();
  if (selected) SelChange();
}

bool MSFlexGrid::TakeKey(const KeyStroke& stroke) {
  const std::int32_t last = Rows() - 1;
  if (last < fixedRows_) return false;
  std::int32_t to = row_;
  switch (stroke.key) {
    case Key::kUp:
      --to;
      break;
    case Key::kDown:
      ++to;
      break;
    case Key::kHome:
      to = fixedRows_;
      break;
    case Key::kEnd:
      to = last;
      break;
    case Key::kPageUp:
      to -= RowsInView();
      break;
    case Key::kPageDown:
      to += RowsInView();
      break;
    default:
      return false;
  }
  SelectCell(std::clamp(to, fixedRows_, last), col_);
  return true;
}

}  // namespace platform
