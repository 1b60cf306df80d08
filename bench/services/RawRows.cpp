#include "services/RawRows.h"

#include <charconv>
#include <memory>
#include <string_view>
#include <vector>

#include "support/Bench.h"
#include "support/RawPostgres.h"
#include "support/RawSqlite.h"

namespace bench {
namespace {

struct Kept {
  std::vector<std::int64_t> numbers;
  std::vector<std::string> texts;
};

RawRows::Select OverSqlite(const std::string& file, std::string sql, RawRows::Columns columns) {
  struct Open {
    Open(const std::string& path, const std::string& text)
        : database(path), select(database, text) {}
    RawSqlite database;
    RawStatement select;
  };
  sql.replace(sql.find("$1"), 2, "?1");
  const auto open = std::make_shared<Open>(file, sql);
  return [open, columns](const std::string& value) {
    sqlite3_stmt* const select = open->select;
    sqlite3_bind_text(select, 1, value.data(), static_cast<int>(value.size()), SQLITE_STATIC);
    std::int64_t rows = 0;
    Kept kept;
    for (; sqlite3_step(select) == SQLITE_ROW; ++rows) {
      int column = 0;
      for (int i = 0; i < columns.numbers; ++i) {
        kept.numbers.push_back(sqlite3_column_int64(select, column++));
      }
      for (int i = 0; i < columns.texts; ++i, ++column) {
        const void* const text = sqlite3_column_blob(select, column);
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(select, column));
        kept.texts.emplace_back(static_cast<const char*>(text), size);
      }
    }
    open->database.Expect(sqlite3_reset(select));
    benchmark::DoNotOptimize(kept);
    return rows;
  };
}

RawRows::Select OverPostgres(const std::string& connection, const std::string& sql,
                             RawRows::Columns columns, bool planned) {
  const auto link = std::make_shared<RawPostgres>(connection);
  link->Execute("SET jit = off; SET max_parallel_workers_per_gather = 0");
  if (planned) link->Prepare("kept", sql);
  return [=](const std::string& value) {
    const auto found =
        planned ? link->Run("kept", {value.c_str()}) : link->Execute(sql, {value.c_str()});
    const int rows = PQntuples(found.get());
    Kept kept;
    for (int row = 0; row < rows; ++row) {
      int column = 0;
      for (int i = 0; i < columns.numbers; ++i, ++column) {
        const std::string_view text = PQgetvalue(found.get(), row, column);
        std::from_chars(text.data(), text.data() + text.size(), kept.numbers.emplace_back());
      }
      for (int i = 0; i < columns.texts; ++i, ++column) {
        const auto size = static_cast<std::size_t>(PQgetlength(found.get(), row, column));
        kept.texts.emplace_back(PQgetvalue(found.get(), row, column), size);
      }
    }
    benchmark::DoNotOptimize(kept);
    return std::int64_t{rows};
  };
}

}  // namespace

RawRows::Select RawRows::Over(const Database& database, const std::string& sql, Columns columns,
                              Plan plan) {
  if (database.engine == services::Engine::kSqlite) {
    return OverSqlite(database.target, sql, columns);
  }
  return OverPostgres(database.target, sql, columns, plan == Plan::kOnce);
}

}  // namespace bench
