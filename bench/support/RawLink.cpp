#include "support/RawLink.h"

#include <regex>

#include "support/RawPostgres.h"
#include "support/RawSqlite.h"

namespace bench {
namespace {

class SqliteLink final : public RawLink {
 public:
  explicit SqliteLink(const std::string& file) : database_(file) {}

  std::size_t Prepare(const std::string& sql) override {
    static const std::regex place(R"(\$(\d))");
    kept_.push_back(
        std::make_unique<RawStatement>(database_, std::regex_replace(sql, place, "?$1")));
    return kept_.size() - 1;
  }
  std::vector<Row> Run(std::size_t statement, const Row& values) override {
    sqlite3_stmt* const each = *kept_.at(statement);
    int place = 0;
    for (const std::string& value : values) {
      sqlite3_bind_text(each, ++place, value.data(), static_cast<int>(value.size()), SQLITE_STATIC);
    }
    std::vector<Row> rows;
    while (sqlite3_step(each) == SQLITE_ROW) {
      Row& row = rows.emplace_back();
      for (int i = 0; i < sqlite3_column_count(each); ++i) {
        const void* const text = sqlite3_column_blob(each, i);
        row.emplace_back(static_cast<const char*>(text),
                         static_cast<std::size_t>(sqlite3_column_bytes(each, i)));
      }
    }
    database_.Expect(sqlite3_reset(each));
    return rows;
  }
  void Begin() override { begin_.Run(); }
  void Commit() override { commit_.Run(); }

 private:
  RawSqlite database_;
  RawStatement begin_{database_, "BEGIN IMMEDIATE"};
  RawStatement commit_{database_, "COMMIT"};
  std::vector<std::unique_ptr<RawStatement>> kept_;
};

class PostgresLink final : public RawLink {
 public:
  explicit PostgresLink(const std::string& connection) : link_(connection) {}

  std::size_t Prepare(const std::string& sql) override {
    names_.push_back("kept" + std::to_string(names_.size()));
    link_.Prepare(names_.back().c_str(), sql);
    return names_.size() - 1;
  }
  std::vector<Row> Run(std::size_t statement, const Row& values) override {
    std::vector<const char*> texts;
    for (const std::string& value : values) texts.push_back(value.c_str());
    const auto found = link_.Run(names_.at(statement).c_str(), texts);
    std::vector<Row> rows(static_cast<std::size_t>(PQntuples(found.get())));
    for (std::size_t row = 0; row < rows.size(); ++row) {
      for (int i = 0; i < PQnfields(found.get()); ++i) {
        rows[row].emplace_back(PQgetvalue(found.get(), static_cast<int>(row), i));
      }
    }
    return rows;
  }
  void Begin() override { link_.Execute("BEGIN"); }
  void Commit() override { link_.Execute("COMMIT"); }

 private:
  RawPostgres link_;
  std::vector<std::string> names_;
};

}  // namespace

std::unique_ptr<RawLink> RawLink::To(const Database& database) {
  if (database.engine == services::Engine::kSqlite) {
    return std::make_unique<SqliteLink>(database.target);
  }
  return std::make_unique<PostgresLink>(database.target);
}

}  // namespace bench
