#include "services/banco/Cells.h"

#include <memory>
#include <vector>

#include "base/Numbers.h"
#include "frame/servicos/Codigos.h"

namespace services {
namespace {

std::string TextOf(const Row& row, int column, Cell::Form form, int kind) {
  constexpr std::size_t kTimeBegins = 11;
  switch (form) {
    case Cell::Form::kDay:
      return base::Format(row.Moment(column), base::DateMask::kDayMonthYear);
    case Cell::Form::kTime:
      return row.Text(column).substr(kTimeBegins);
    case Cell::Form::kMoney:
      return base::FormatMoney(row.Money(column));
    case Cell::Form::kDiscount:
      return base::FormatMoney(-row.Money(column));
    case Cell::Form::kQuantity:
      return base::Format(row.Money(column),
                          row.Integer(kind) == servicos::kServico ? "0" : base::kMoneyMask);
    case Cell::Form::kAsIs:
      break;
  }
  return row.Text(column);
}

}  // namespace

std::string ColumnsOf(std::span<const Cell> cells) {
  std::string columns;
  for (const Cell& cell : cells) {
    if (!columns.empty()) columns += ", ";
    columns += cell.column;
  }
  return columns;
}

base::RecordSetPtr SelectCells(Session& session, std::span<const Cell> cells,
                               const Statement& statement, const Params& params, int kind) {
  std::vector<std::string> names;
  names.reserve(cells.size());
  for (const Cell& cell : cells) names.emplace_back(cell.name);
  const auto rows = std::make_shared<base::RecordSet>(std::move(names));
  session.Select(statement, params, [&](const Row& row) {
    std::vector<base::Value> texts;
    texts.reserve(cells.size());
    int column = 0;
    for (const Cell& cell : cells) texts.emplace_back(TextOf(row, column++, cell.form, kind));
    rows->Append(std::move(texts));
  });
  return rows;
}

}  // namespace services
