#include "support/RawSqlite.h"

#include <stdexcept>

namespace bench {
namespace {

constexpr const char* kSettings =
    "PRAGMA journal_mode = WAL; PRAGMA foreign_keys = ON; PRAGMA synchronous = FULL;"
    "PRAGMA temp_store = MEMORY; PRAGMA cache_size = -32768;";

}  // namespace

RawSqlite::RawSqlite(const std::string& file) {
  Expect(sqlite3_open(file.c_str(), &database_));
  Expect(sqlite3_exec(database_, kSettings, nullptr, nullptr, nullptr));
}

RawSqlite::~RawSqlite() {
  sqlite3_close(database_);
}

sqlite3_stmt* RawSqlite::Prepare(const std::string& sql) {
  sqlite3_stmt* statement = nullptr;
  Expect(sqlite3_prepare_v3(database_, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement,
                            nullptr));
  return statement;
}

void RawSqlite::Expect(int code, int expected) {
  if (code != expected) throw std::runtime_error(sqlite3_errmsg(database_));
}

}  // namespace bench
