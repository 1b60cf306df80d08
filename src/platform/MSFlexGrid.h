#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/GradeLida.h"
#include "platform/Control.h"

namespace platform {

/// Where text or a picture stands in a cell.
enum class Align : std::int16_t {
  kLeftTop = 0,
  kLeftCenter = 1,
  kLeftBottom = 2,
  kCenterTop = 3,
  kCenterCenter = 4,
  kCenterBottom = 5,
  kRightTop = 6,
  kRightCenter = 7,
  kRightBottom = 8,
  kGeneral = 9,
};

/// The ways of sorting that the screens use.
enum class SortMode : std::int16_t {
  kNumericAscending = 3,
  kNumericDescending = 4,
  kTextAscending = 7,
  kTextDescending = 8,
};

/// What one cell has of its own; what it has not is the grid's.
struct CellFormat {
  std::string fontName;
  std::int32_t fontSize = 0;
  Align alignment = Align::kGeneral;  ///< kGeneral: that of the column.
  Color back = kDefaultColor;
  Color fore = kDefaultColor;
  std::string picture;  ///< The key of a picture, empty for none.
  Align pictureAlignment = Align::kLeftTop;
};

/// A table of text cells with fixed header rows, a current cell and a selection. Rows and columns
/// count from 0; one out of range is error 9. From code nothing here raises an event.
class MSFlexGrid final : public Control, public base::GradeLida {
 public:
  MSFlexGrid(Container& parent, std::string_view name);
  ~MSFlexGrid() override;

  // Size.
  std::int32_t Rows() const override;
  /// New rows are empty; error 5 below the fixed rows.
  void Rows(std::int32_t count);
  std::int32_t Cols() const override;
  void Cols(std::int32_t count);
  std::int32_t FixedRows() const { return fixedRows_; }
  /// Error 5 unless at least one row stays unfixed.
  void FixedRows(std::int32_t count);

  // Content.
  const std::string& TextMatrix(std::int32_t row, std::int32_t col) const override;
  void TextMatrix(std::int32_t row, std::int32_t col, std::string_view text);
  /// The current cell.
  const std::string& Text() const { return TextMatrix(row_, col_); }
  void Text(std::string_view text) { TextMatrix(row_, col_, text); }
  /// Appends a row of tab-separated texts, or puts it before row `at`; texts past the last column
  /// are left out.
  void AddItem(std::string_view texts, std::int32_t at = -1);
  /// Error 9 for a row that does not exist, error 5 for a fixed row and for the last unfixed one.
  void RemoveItem(std::int32_t row);
  /// Empties every cell, the header too, with the cells' formats. Sizes stay.
  void Clear();
  /// Sorts the selected rows, or with a selection of one row all unfixed rows, by the selected
  /// columns. Stable; text as a Portuguese reader sorts it, numbers in the Brazilian form.
  void Sort(SortMode mode);

  // Current cell and selection. Writing Row or Col brings the selection's end along.
  std::int32_t Row() const { return row_; }
  void Row(std::int32_t row);
  std::int32_t Col() const { return col_; }
  void Col(std::int32_t col);
  std::int32_t RowSel() const { return rowSel_; }
  void RowSel(std::int32_t row);
  std::int32_t ColSel() const { return colSel_; }
  void ColSel(std::int32_t col);
  std::int32_t TopRow() const { return topRow_; }
  void TopRow(std::int32_t row);
  /// The row and column that the last act of the mouse fell on.
  std::int32_t MouseRow() const { return mouseRow_; }
  std::int32_t MouseCol() const { return mouseCol_; }

  // Columns and rows. Sizes in twips; width 0 hides a column.
  std::int32_t ColWidth(std::int32_t col) const { return ColumnAt(col).width; }
  void ColWidth(std::int32_t col, std::int32_t width);
  Align ColAlignment(std::int32_t col) const { return ColumnAt(col).alignment; }
  void ColAlignment(std::int32_t col, Align alignment);
  std::int32_t ColData(std::int32_t col) const { return ColumnAt(col).data; }
  void ColData(std::int32_t col, std::int32_t data);
  std::int32_t RowHeight(std::int32_t row) const { return RowAt(row).height; }
  void RowHeight(std::int32_t row, std::int32_t height);

  // The current cell's format.
  void CellFontName(std::string_view name);
  void CellFontSize(std::int32_t size);
  void CellAlignment(Align alignment);
  void CellBackColor(Color color);
  void CellForeColor(Color color);
  /// The key of a picture; empty takes the picture away.
  void CellPicture(std::string_view key);
  void CellPictureAlignment(Align alignment);
  const CellFormat& FormatOf(std::int32_t row, std::int32_t col) const;

  /// While false, observers hear nothing of changes; they hear once when it is true again.
  bool Redraw() const { return redraw_; }
  void Redraw(bool redraw);
  /// Grows with each change of what is seen.
  Property<std::int32_t> Revision{*this, "Revision"};

  // Events. MouseDown comes before the press changes the selection.
  Event<MouseButton> MouseDown;
  Event<> DblClick;
  /// The operator moved to another cell.
  Event<> RowColChange;
  /// The operator changed the selection.
  Event<> SelChange;

  // What a renderer reports and asks.

  /// The mouse is at this cell.
  void MouseAt(std::int32_t row, std::int32_t col);
  /// The operator selects a cell of an unfixed row; raises RowColChange and SelChange.
  void SelectCell(std::int32_t row, std::int32_t col);
  bool TakeKey(const KeyStroke& stroke) override;
  /// How many rows of the usual height fit; at least 1.
  std::int32_t RowsInView() const;

  /// 0: no highlight, 1: always, 2: with the focus.
  std::int16_t highLight = 1;
  /// Which rows stand back, as one does that cannot be changed here: a renderer may write them in a
  /// quieter ink. Empty for none.
  std::function<bool(std::int32_t row)> standsBack;
  std::string fontName;
  std::int32_t fontSize = 0;

 private:
  struct Column {
    std::int32_t width = 960;
    Align alignment = Align::kLeftCenter;
    std::int32_t data = 0;
  };
  struct Line {
    std::vector<std::string> cells;
    std::map<std::int32_t, CellFormat> formats;
    std::int32_t height = 450;
  };
  class Computed;

  const Line& RowAt(std::int32_t row) const;
  Line& RowAt(std::int32_t row);
  const Column& ColumnAt(std::int32_t col) const;
  Column& ColumnAt(std::int32_t col);
  CellFormat& CurrentFormat();
  Line EmptyLine() const;
  void KeepInside();
  void Change();

  std::vector<Line> lines_;
  std::vector<Column> columns_;
  std::int32_t fixedRows_ = 1;
  std::int32_t row_ = 1, col_ = 0, rowSel_ = 1, colSel_ = 0, topRow_ = 1;
  std::int32_t mouseRow_ = 0, mouseCol_ = 0;
  bool redraw_ = true;
  bool changed_ = false;
  std::vector<std::unique_ptr<Computed>> computed_;
};

}  // namespace platform
