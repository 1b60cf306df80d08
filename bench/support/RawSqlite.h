#pragma once

#include <sqlite3.h>

#include <string>

namespace bench {

/// A database file as a program uses it that is written on SQLite's own library: the settings of
/// the cash desk, statements prepared once, nothing in between.
class RawSqlite {
 public:
  explicit RawSqlite(const std::string& file);
  ~RawSqlite();
  RawSqlite(const RawSqlite&) = delete;
  RawSqlite& operator=(const RawSqlite&) = delete;

  /// A statement that the caller keeps, and finalizes before the database goes.
  sqlite3_stmt* Prepare(const std::string& sql);
  sqlite3* Handle() const { return database_; }
  /// Throws std::runtime_error with the library's words unless `code` is `expected`.
  void Expect(int code, int expected = SQLITE_OK);

 private:
  sqlite3* database_ = nullptr;
};

/// A prepared statement that is finalized with the object.
class RawStatement {
 public:
  RawStatement(RawSqlite& database, const std::string& sql)
      : database_(database), statement_(database.Prepare(sql)) {}
  ~RawStatement() { sqlite3_finalize(statement_); }
  RawStatement(const RawStatement&) = delete;
  RawStatement& operator=(const RawStatement&) = delete;

  operator sqlite3_stmt*() const { return statement_; }
  /// Carries out a statement that gives no rows, and makes it ready for the next time.
  void Run() {
    database_.Expect(sqlite3_step(statement_), SQLITE_DONE);
    sqlite3_reset(statement_);
  }

 private:
  RawSqlite& database_;
  sqlite3_stmt* statement_;
};

}  // namespace bench
