#include "services/SqliteSession.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <algorithm>
#include <random>
#include <thread>

#include "services/DatabaseError.h"

namespace services {
namespace {

/// How long opening waits for a file that another program holds for itself.
constexpr auto kOpeningPatience = std::chrono::seconds(2);

constexpr const char* kSettings =
    "PRAGMA foreign_keys = ON;"
    "PRAGMA synchronous = FULL;"
    "PRAGMA temp_store = MEMORY;"
    "PRAGMA cache_size = -32768;";

/// Waits for a lock by short naps of uneven length: whoever sells without a pause leaves gaps that
/// the library's own, ever longer naps would miss.
int Nap(void* waiting, int count) {
  auto& wait = *static_cast<SqliteSession::Wait*>(waiting);
  const auto now = std::chrono::steady_clock::now();
  if (count == 0) wait.end = now + wait.patience;
  if (now >= wait.end) return 0;
  thread_local std::minstd_rand chance{std::random_device{}()};
  std::uniform_int_distribution<int> microseconds(200, 2'000);
  std::this_thread::sleep_for(std::chrono::microseconds(microseconds(chance)));
  return 1;
}

class SqliteRow final : public Row {
 public:
  explicit SqliteRow(SQLite::Statement& statement) : statement_(statement) {}

  bool IsNull(int column) const override { return statement_.isColumnNull(column); }
  std::int64_t Integer(int column) const override {
    return statement_.getColumn(column).getInt64();
  }
  std::string Text(int column) const override { return statement_.getColumn(column).getString(); }

 private:
  SQLite::Statement& statement_;
};

/// Gives a kept statement its values, and takes them and the read lock away in the end.
class Execution {
 public:
  Execution(SQLite::Statement& statement, const Params& params) : statement_(statement) {
    for (std::size_t i = 0; i < params.size(); ++i) Bind(static_cast<int>(i) + 1, params[i]);
  }
  ~Execution() {
    statement_.tryReset();
    try {
      statement_.clearBindings();
    } catch (const SQLite::Exception&) {
      // The next use binds every place anew.
    }
  }
  Execution(const Execution&) = delete;
  Execution& operator=(const Execution&) = delete;

 private:
  void Bind(int place, const Param& param) {
    if (const auto* number = param.Integer()) {
      statement_.bind(place, *number);
    } else if (const auto* text = param.Text()) {
      statement_.bindNoCopy(place, *text);
    } else {
      statement_.bind(place);
    }
  }

  SQLite::Statement& statement_;
};

/// SQLite numbers its places with a question mark.
std::string WithNumberedPlaces(std::string text) {
  std::ranges::replace(text, '$', '?');
  return text;
}

}  // namespace

template <class Work>
auto SqliteSession::Translated(Work work) {
  try {
    return work();
  } catch (const SQLite::Exception& error) {
    throw DatabaseError(
        TroubleOfSqlite(error.getExtendedErrorCode()),
        "SQLite " + std::to_string(error.getExtendedErrorCode()) + ": " + error.what());
  }
}

SqliteSession::SqliteSession(const std::string& path, File file) {
  Translated([&] {
    const int creating = file == File::kMayBeNew ? SQLite::OPEN_CREATE : 0;
    database_ = std::make_unique<SQLite::Database>(path, SQLite::OPEN_READWRITE | creating);
    wait_.patience = kOpeningPatience;
    sqlite3_busy_handler(database_->getHandle(), Nap, &wait_);
    sqlite3_extended_result_codes(database_->getHandle(), 1);
    database_->exec(kSettings);
  });
}

void SqliteSession::BePatientFor(std::chrono::steady_clock::duration patience) {
  wait_.patience = patience;
}

SqliteSession::~SqliteSession() {
  prepared_.clear();
}

SQLite::Statement& SqliteSession::Prepared(const Statement& statement) {
  if (statement.Id() >= prepared_.size()) prepared_.resize(statement.Id() + 1);
  auto& prepared = prepared_[statement.Id()];
  if (!prepared) {
    prepared = std::make_unique<SQLite::Statement>(
        *database_, WithNumberedPlaces(statement.Text(Engine::kSqlite)));
  }
  return *prepared;
}

std::int64_t SqliteSession::DoRun(const Statement& statement, const Params& params) {
  return Translated([&] {
    Count();
    SQLite::Statement& prepared = Prepared(statement);
    const Execution execution(prepared, params);
    while (prepared.executeStep()) {
    }
    return std::int64_t{database_->getChanges()};
  });
}

std::int64_t SqliteSession::DoSelect(const Statement& statement, const Params& params,
                                     const EachRow& each) {
  return Translated([&] {
    Count();
    SQLite::Statement& prepared = Prepared(statement);
    const Execution execution(prepared, params);
    const SqliteRow row(prepared);
    std::int64_t rows = 0;
    for (; prepared.executeStep(); ++rows) each(row);
    return rows;
  });
}

std::vector<std::int64_t> SqliteSession::DoRunTogether(const std::vector<Request>& requests) {
  std::vector<std::int64_t> rows;
  rows.reserve(requests.size());
  for (const Request& each : requests) {
    rows.push_back(DoSelect(
        each.statement, each.params, each.each ? each.each : [](const Row&) {}));
  }
  return rows;
}

void SqliteSession::DoRunScript(const std::string& script) {
  Translated([&] {
    Count();
    database_->exec(script);
  });
}

void SqliteSession::DoBegin() {
  static const Statement begin("BEGIN IMMEDIATE");
  DoRun(begin, {});
}

void SqliteSession::DoCommit(const Proof&) {
  static const Statement commit("COMMIT");
  DoRun(commit, {});
}

void SqliteSession::DoRollback() noexcept {
  // Some errors end the transaction by themselves; then there is nothing left to do here.
  if (sqlite3_get_autocommit(database_->getHandle()) != 0) return;
  sqlite3_exec(database_->getHandle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

Standing SqliteSession::DoFindOut(const Doubt& doubt) {
  if (doubt.proof.statement == nullptr) return Standing::kUnknown;
  const auto found = DoSelect(*doubt.proof.statement, doubt.proof.params, [](const Row&) {});
  return found > 0 ? Standing::kStands : Standing::kDoesNotStand;
}

}  // namespace services
