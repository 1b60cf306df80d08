#include "services/banco/Fields.h"

namespace services {
namespace {

base::Value ValueOf(const Row& row, int column, Field::Kind kind) {
  if (row.IsNull(column)) return base::Null{};
  switch (kind) {
    case Field::Kind::kNumber:
      return row.Number(column);
    case Field::Kind::kMoney:
      return row.Money(column);
    case Field::Kind::kText:
      return row.Text(column);
    case Field::Kind::kMoment:
      return row.Moment(column);
    case Field::Kind::kYesNo:
      return row.Flag(column) ? "Sim" : "Não";
    case Field::Kind::kTruth:
      return row.Flag(column);
  }
  return base::Null{};
}

}  // namespace

std::string ColumnsOf(std::span<const Field> fields) {
  std::string columns;
  for (const Field& field : fields) {
    if (!columns.empty()) columns += ", ";
    columns += field.column;
  }
  return columns;
}

Selected SelectRows(Session& session, std::span<const Field> fields, const Statement& statement,
                    const Params& params, std::int64_t most,
                    const std::function<void(std::vector<base::Value>&)>& finish) {
  std::vector<std::string> names;
  names.reserve(fields.size());
  for (const Field& field : fields) names.emplace_back(field.name);
  const auto rows = std::make_shared<base::RecordSet>(std::move(names));
  bool more = false;
  session.Select(statement, params, [&](const Row& row) {
    if (rows->RecordCount() >= most) {
      more = true;
      return;
    }
    std::vector<base::Value> values;
    values.reserve(fields.size());
    int column = 0;
    for (const Field& field : fields) values.push_back(ValueOf(row, column++, field.kind));
    if (finish) finish(values);
    rows->Append(std::move(values));
  });
  return {rows, more};
}

}  // namespace services
