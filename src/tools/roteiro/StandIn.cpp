#include "tools/roteiro/StandIn.h"

namespace roteiro {

Json Logged(const base::Value& value) {
  return ToJson(value);
}

Json Logged(const base::GradeLida* grid) {
  if (grid == nullptr) return nullptr;
  Json rows = Json::array();
  for (std::int32_t row = 0; row < grid->Rows(); ++row) {
    Json cells = Json::array();
    for (std::int32_t col = 0; col < grid->Cols(); ++col) {
      cells.push_back(grid->TextMatrix(row, col));
    }
    rows.push_back(std::move(cells));
  }
  return {{"grid", std::move(rows)}};
}

Json Logged(const base::Record* record) {
  return record == nullptr ? Json() : Json{{"record", true}};
}

StandIn::StandIn(StandIns& all, std::string_view className)
    : all_(all),
      class_(className),
      last_(all.Used(className, Access::kCreate, "", Json::array())) {}

StandIn::~StandIn() {
  all_.Used(class_, Access::kRelease, "", Json::array());
}

Answered StandIn::Get(std::string_view member) {
  const Programmed own = all_.Used(class_, Access::kGet, member, Json::array());
  const auto told = last_.properties.find(member);
  if (told != last_.properties.end()) return {told->second};
  return {own.result.value_or(base::Value())};
}

base::RecordSetPtr StandIn::Selection(std::string_view member) {
  const Programmed own = all_.Used(class_, Access::kGet, member, Json::array());
  return own.fields.empty() ? last_.Selection() : own.Selection();
}

}  // namespace roteiro
