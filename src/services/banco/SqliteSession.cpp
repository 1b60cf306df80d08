#include "services/banco/SqliteSession.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <thread>

#include "services/banco/DatabaseError.h"

namespace services {
namespace {

/// A held file is told within five seconds, whatever else an operation does.
constexpr auto kPatience = std::chrono::seconds(4);

/// In pages of the log: some 4 MB.
constexpr std::uint32_t kCheckpointEvery = 1'000;
/// When readers keep a log from being used anew, the next try waits for so many more.
constexpr std::uint32_t kCheckpointAgain = 500;

constexpr const char* kSettings =
    "PRAGMA foreign_keys = ON;"
    "PRAGMA synchronous = FULL;"
    "PRAGMA temp_store = MEMORY;"
    "PRAGMA cache_size = -32768;";

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

/// At once with the right to write, which is what others are waited for.
const Statement& Beginning() {
  static const Statement begin("BEGIN IMMEDIATE");
  return begin;
}

/// A file that is made by the library could be read by every user of the computer; the log and its
/// index get the rights of the database.
void CreatePrivately(const std::string& path) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  if (file >= 0) close(file);
}

/// The library's wrapper keeps its handle to itself.
bool OnlyReads(sqlite3* database, const std::string& text) {
  for (auto* each = sqlite3_next_stmt(database, nullptr); each != nullptr;
       each = sqlite3_next_stmt(database, each)) {
    if (text == sqlite3_sql(each)) return sqlite3_stmt_readonly(each) != 0;
  }
  return false;
}

std::unique_ptr<SQLite::Database> Opened(const std::string& path) {
  auto database = std::make_unique<SQLite::Database>(path, SQLite::OPEN_READWRITE);
  sqlite3_extended_result_codes(database->getHandle(), 1);
  sqlite3_wal_autocheckpoint(database->getHandle(),
                             SqliteSession::HoldsWritersAtCheckpoints() ? 0 : kCheckpointEvery);
  return database;
}

/// Uneven, so that who waits for who sells without a pause does not always come too late.
std::chrono::microseconds ShortNap() {
  thread_local std::minstd_rand chance{std::random_device{}()};
  std::uniform_int_distribution<int> microseconds(200, 2'000);
  return std::chrono::microseconds(microseconds(chance));
}

}  // namespace

/// A statement that the connection has prepared.
struct SqliteSession::Kept {
  Kept(SQLite::Database& database, const std::string& text)
      : statement(database, text), onlyReads(OnlyReads(database.getHandle(), text)) {}

  SQLite::Statement statement;
  bool onlyReads;
};

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

bool SqliteSession::HoldsWritersAtCheckpoints() {
  constexpr int kMended = 3'051'003;
  return sqlite3_libversion_number() < kMended;
}

SqliteSession::SqliteSession(const std::string& path, File file)
    // Absolute, so that no name means anything else to the library.
    : path_(std::filesystem::absolute(path)),
      patience_(kPatience),
      nextCheckpoint_(kCheckpointEvery) {
  Translated([&] {
    if (file == File::kMayBeNew) CreatePrivately(path_);
    database_ = Opened(path_);
    sqlite3_busy_handler(database_->getHandle(), Nap, this);
    database_->exec(kSettings);
  });
}

SqliteSession::~SqliteSession() {
  prepared_.clear();
}

int SqliteSession::Nap(void* session, int count) {
  auto& self = *static_cast<SqliteSession*>(session);
  if (count == 0 || !self.waiting_) {
    self.waiting_ = self.Until(self.lockBy_.value_or(self.Start() + self.patience_));
  }
  if (self.waiting_->IsOver()) return 0;
  std::this_thread::sleep_for(ShortNap());
  self.waiting_->Breathe();
  return 1;
}

void SqliteSession::UseLog() {
  static const Statement tables("SELECT count(*) FROM sqlite_schema");
  // The library does not wait for this change.
  for (Waiting waiting = Until(Start() + patience_);;) {
    try {
      const auto mode = Translated(
          [&] { return database_->execAndGet("PRAGMA journal_mode = WAL").getString(); });
      if (mode != "wal") throw DatabaseError(Trouble::kOther, "SQLite: journal_mode " + mode);
      break;
    } catch (const DatabaseError& error) {
      if (error.What() != Trouble::kBusy || waiting.IsOver()) throw;
    }
    std::this_thread::sleep_for(ShortNap());
    waiting.Breathe();
  }
  DoSelect(tables, {}, [](const Row&) {});
  files_.emplace(database_->getHandle(), path_);
}

void SqliteSession::RequireFiles(bool areThere) {
  isGone_ = isGone_ || !areThere;
  if (!isGone_) return;
  // What lies under the names may be another program's: this connection leaves it alone.
  sqlite3_db_config(database_->getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
  throw DatabaseError(Trouble::kFileGone, path_);
}

void SqliteSession::Execute(const char* sql) {
  Translated([&] { database_->exec(sql); });
}

SqliteSession::Kept& SqliteSession::Prepared(const Statement& statement) {
  if (statement.Id() >= prepared_.size()) prepared_.resize(statement.Id() + 1);
  auto& prepared = prepared_[statement.Id()];
  if (!prepared) {
    prepared =
        std::make_unique<Kept>(*database_, WithNumberedPlaces(statement.Text(Engine::kSqlite)));
  }
  return *prepared;
}

SqliteSession::Kept& SqliteSession::Allowed(const Statement& statement) {
  RequireFiles(true);
  Kept& kept = Prepared(statement);
  if (kept.onlyReads || IsInTransaction()) return kept;
  throw DatabaseError(Trouble::kReadOnly, "SQLite: " + statement.Text(Engine::kSqlite));
}

void SqliteSession::Step(const Statement& statement) {
  Translated([&] {
    Count();
    SQLite::Statement& prepared = Prepared(statement).statement;
    const Execution execution(prepared, {});
    prepared.executeStep();
  });
}

std::int64_t SqliteSession::DoRun(const Statement& statement, const Params& params) {
  return Translated([&] {
    Count();
    SQLite::Statement& prepared = Allowed(statement).statement;
    const Execution execution(prepared, params);
    while (prepared.executeStep()) {
    }
    return std::int64_t{database_->getChanges()};
  });
}

std::int64_t SqliteSession::DoSelect(const Statement& statement, const Params& params,
                                     const EachRow& each) {
  const auto rows = Translated([&] {
    Count();
    SQLite::Statement& prepared = Allowed(statement).statement;
    const Execution execution(prepared, params);
    const SqliteRow row(prepared);
    std::int64_t count = 0;
    for (; prepared.executeStep(); ++count) each(row);
    return count;
  });
  if (files_ && !IsInTransaction()) RequireFiles(files_->IsDatabaseThere());
  return rows;
}

std::vector<std::int64_t> SqliteSession::DoRunTogether(const std::vector<Request>& requests) {
  std::vector<std::int64_t> rows;
  rows.reserve(requests.size());
  for (const Request& each : requests) {
    const bool givesRows = Allowed(each.statement).statement.getColumnCount() > 0;
    const EachRow reader = each.each ? each.each : [](const Row&) {};
    rows.push_back(givesRows ? DoSelect(each.statement, each.params, reader)
                             : DoRun(each.statement, each.params));
  }
  return rows;
}

void SqliteSession::DoRunScript(const std::string& script) {
  RequireFiles(true);
  Count();
  Execute(script.c_str());
}

void SqliteSession::DoBegin() {
  RequireFiles(true);
  Step(Beginning());
  if (!files_ || files_->AreThere()) return;
  DoRollback();
  RequireFiles(false);
}

void SqliteSession::DoCommit(const Proof& proof) {
  static const Statement commit("COMMIT");
  try {
    Step(commit);
  } catch (const DatabaseError& error) {
    // What could not be made to last may lie in the log all the same.
    if (error.What() != Trouble::kStorage) throw;
    DoRollback();
    const bool isSealed = SealLog();
    if (!isSealed) throw InDoubt({.label = "", .proof = proof}, error.Detail());
    if (!Stands(proof)) throw;
  }
  if (files_) RequireFiles(files_->AreThere());
  CheckpointIfDue();
}

void SqliteSession::DoRollback() noexcept {
  // Some errors end the transaction by themselves; then there is nothing left to do here.
  if (sqlite3_get_autocommit(database_->getHandle()) != 0) return;
  sqlite3_exec(database_->getHandle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

Standing SqliteSession::DoFindOut(const Doubt& doubt) {
  if (doubt.proof.statement == nullptr || !SealLog()) return Standing::kUnknown;
  return Stands(doubt.proof) ? Standing::kStands : Standing::kDoesNotStand;
}

bool SqliteSession::SealLog() noexcept {
  try {
    RequireFiles(true);
    Step(Beginning());
    const int version = database_->execAndGet("PRAGMA user_version").getInt();
    Execute(("PRAGMA user_version = " + std::to_string(version)).c_str());
    Execute("COMMIT");
    if (files_) RequireFiles(files_->AreThere());
    return true;
  } catch (const std::exception&) {
    DoRollback();
    return false;
  }
}

bool SqliteSession::Stands(const Proof& proof) {
  // The library shows nothing of a commit that it has called failed: without a proof it is not
  // there.
  if (proof.statement == nullptr) return false;
  SQLite::Statement& prepared = Prepared(*proof.statement).statement;
  const Execution execution(prepared, proof.params);
  return prepared.executeStep();
}

void SqliteSession::CheckpointIfDue() noexcept {
  if (!files_ || !HoldsWritersAtCheckpoints()) return;
  const std::uint32_t pages = files_->PagesInLog();
  if (pages < kCheckpointEvery) nextCheckpoint_ = kCheckpointEvery;
  if (pages < nextCheckpoint_) return;
  nextCheckpoint_ = pages + kCheckpointAgain;
  // The operator waits meanwhile: not long, but where the log has grown for long.
  constexpr auto kUsually = std::chrono::milliseconds(200);
  lockBy_ = Clock::now() + (pages < 8 * kCheckpointEvery ? kUsually : 10 * kUsually);
  try {
    Checkpoint();
  } catch (const std::exception&) {
    // The sale stands; the log grows until the next one.
  }
  lockBy_.reset();
  DoRollback();
}

void SqliteSession::Checkpoint() {
  if (!checkpointer_) {
    checkpointer_ = Opened(path_);
    // It takes part in the log once it has read.
    checkpointer_->exec(kSettings);
    checkpointer_->execAndGet("SELECT count(*) FROM sqlite_schema");
  }
  // A transaction that writes nothing holds the writers up.
  Step(Beginning());
  sqlite3_wal_checkpoint_v2(checkpointer_->getHandle(), "main", SQLITE_CHECKPOINT_PASSIVE, nullptr,
                            nullptr);
}

}  // namespace services
