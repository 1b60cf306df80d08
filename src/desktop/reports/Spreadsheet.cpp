#include "desktop/reports/Spreadsheet.h"

#include <xlsxwriter.h>

#include <QFile>
#include <QSaveFile>
#include <QTemporaryFile>
#include <cstdint>

#include "base/Text.h"
#include "desktop/Convert.h"
#include "desktop/reports/Saving.h"

namespace desktop::reports {
namespace {

constexpr const char* kWhat = "a planilha";
/// A sheet takes no more rows, and a cell no more characters, by the format's own limits.
constexpr lxw_row_t kMostRows = LXW_ROW_MAX;
constexpr std::size_t kMostCharacters = 32'767;

void WriteCsv(const platform::ReportTable& table, const QString& path) {
  QSaveFile file(path);
  const std::string text = platform::AsCsv(table);
  if (!file.open(QIODevice::WriteOnly)) FailToSave(kWhat, path);
  file.write(text.data(), static_cast<qint64>(text.size()));
  if (!file.commit()) FailToSave(kWhat, path);
}

/// The formats of the cells, which belong to their book.
struct Formats {
  explicit Formats(lxw_workbook& book)
      : head(workbook_add_format(&book)),
        money(workbook_add_format(&book)),
        day(workbook_add_format(&book)) {
    format_set_bold(head);
    format_set_num_format(money, "#,##0.00");
    format_set_num_format(day, "dd/mm/yyyy");
  }
  lxw_format *head, *money, *day;
};

void Write(lxw_worksheet& sheet, lxw_row_t row, lxw_col_t column, const base::Value& value,
           const Formats& formats) {
  if (base::IsNull(value)) return;
  if (value.Is<base::Currency>()) {
    worksheet_write_number(&sheet, row, column, base::ToDouble(value), formats.money);
  } else if (value.Is<double>() || value.Is<std::int32_t>()) {
    worksheet_write_number(&sheet, row, column, base::ToDouble(value), nullptr);
  } else if (value.Is<base::DateTime>()) {
    const base::DateTime day = base::ToDate(value);
    lxw_datetime moment{day.Year(), day.Month(),  day.Day(),
                        day.Hour(), day.Minute(), static_cast<double>(day.Second())};
    worksheet_write_datetime(&sheet, row, column, &moment, formats.day);
  } else {
    const std::string text = base::Left(base::ToText(value), kMostCharacters);
    worksheet_write_string(&sheet, row, column, text.c_str(), nullptr);
  }
}

/// Fills the book and closes it; whether it could be written.
bool Fill(lxw_workbook& book, const platform::ReportTable& table) {
  constexpr double kWidth = 18;
  const Formats formats(book);
  lxw_worksheet& sheet = *workbook_add_worksheet(&book, nullptr);
  const auto columns = static_cast<lxw_col_t>(table.columns.size());
  worksheet_set_column(&sheet, 0, static_cast<lxw_col_t>(columns - 1), kWidth, nullptr);
  worksheet_freeze_panes(&sheet, 1, 0);
  for (lxw_col_t i = 0; i < columns; ++i) {
    worksheet_write_string(&sheet, 0, i, table.columns[i].title.c_str(), formats.head);
  }
  lxw_row_t row = 0;
  base::ForEachRow(*table.rows, [&] {
    ++row;
    for (lxw_col_t i = 0; i < columns && row < kMostRows; ++i) {
      Write(sheet, row, i, table.rows->Fields(table.columns[i].field), formats);
    }
  });
  return workbook_close(&book) == LXW_NO_ERROR;
}

void WriteXlsx(const platform::ReportTable& table, const QString& path) {
  // Beside its place, so that it can be moved there at once.
  QTemporaryFile beside(path + QStringLiteral(".XXXXXX"));
  if (!beside.open()) FailToSave(kWhat, path);
  const std::string name = FromQt(beside.fileName());
  lxw_workbook_options options{};
  options.constant_memory = LXW_TRUE;
  lxw_workbook* const book = workbook_new_opt(name.c_str(), &options);
  if (book == nullptr || !Fill(*book, table)) FailToSave(kWhat, path);
  QFile::remove(path);
  beside.setAutoRemove(!QFile::rename(beside.fileName(), path));
  if (beside.autoRemove()) FailToSave(kWhat, path);
}

}  // namespace

void WriteTable(const platform::ReportTable& table, const std::string& path) {
  const bool isText = base::Lower(path).ends_with(".csv");
  (isText ? WriteCsv : WriteXlsx)(table, ToQt(path));
}

}  // namespace desktop::reports
