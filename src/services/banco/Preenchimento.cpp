#include "services/banco/Preenchimento.h"

namespace services {

std::string Places(std::size_t count, std::size_t first) {
  std::string places;
  for (std::size_t place = first; place < first + count; ++place) {
    if (place > first) places += ", ";
    places.append("$").append(std::to_string(place));
  }
  return places;
}

void InsertRows(Session& session, const std::string& table, const std::string& columns,
                const std::vector<Params>& rows) {
  if (rows.empty()) return;
  const Statement insert("INSERT INTO " + table + " (" + columns + ") VALUES (" +
                         Places(rows.front().size()) + ")");
  for (const Params& row : rows) session.Run(insert, row);
}

void ContinueKeys(Session& session, const std::string& table, const std::string& key) {
  // SQLite goes on after the greatest key by itself.
  if (session.Kind() == Engine::kSqlite) return;
  const Statement next("SELECT setval(pg_get_serial_sequence('" + table + "', '" + key +
                       "'), (SELECT max(" + key + ") FROM " + table + "))");
  session.Select(next, {}, [](const Row&) {});
}

}  // namespace services
