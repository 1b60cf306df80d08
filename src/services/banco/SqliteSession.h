#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "services/banco/Session.h"
#include "services/banco/SqliteFiles.h"

namespace SQLite {
class Database;
}  // namespace SQLite

namespace services {

/// A database in one file: durable at every commit, one writer at a time, readers never waiting.
class SqliteSession : public Session {
 public:
  enum class File { kMustExist, kMayBeNew };

  SqliteSession(const std::string& path, File file);
  ~SqliteSession() override;

  Engine Kind() const override { return Engine::kSqlite; }
  /// How long an operation waits for a file that others hold.
  void BePatientFor(Clock::duration patience) { patience_ = patience; }
  /// For a file that is known to be ours: puts it into write-ahead mode, which it keeps, and from
  /// here on watches over its files (Trouble::kFileGone).
  void UseLog();

  /// Before 3.51.3 SQLite can lose a commit when a checkpoint runs beside it. There, none of ours
  /// runs but while the writing is held up.
  static bool HoldsWritersAtCheckpoints();

 private:
  std::int64_t DoRun(const Statement& statement, const Params& params) override;
  std::int64_t DoSelect(const Statement& statement, const Params& params,
                        const EachRow& each) override;
  std::vector<std::int64_t> DoRunTogether(const std::vector<Request>& requests) override;
  void DoRunScript(const std::string& script) override;
  void DoBegin() override;
  void DoCommit(const Proof& proof) override;
  void DoRollback() noexcept override;
  Standing DoFindOut(const Doubt& doubt) override;

  struct Kept;

  Kept& Prepared(const Statement& statement);
  /// The same, of a statement that may run now.
  Kept& Allowed(const Statement& statement);
  /// Runs what neither binds nor gives anything.
  void Step(const Statement& statement);
  /// Tells how a lock is waited for; called by the library between its tries.
  static int Nap(void* session, int count);
  void RequireFiles(bool areThere);
  void Execute(const char* sql);
  /// Writes over the place in the log where a commit that failed may stand, so that no crash can
  /// bring it back; whether that could be done.
  bool SealLog() noexcept;
  bool Stands(const Proof& proof);
  void CheckpointIfDue() noexcept;
  void Checkpoint();
  /// Carries out `work`, turning the library's exceptions into ours.
  template <class Work>
  auto Translated(Work work);

  std::string path_;
  Clock::duration patience_;
  std::optional<Clock::time_point> lockBy_;  ///< In place of the patience.
  std::optional<Waiting> waiting_;
  std::unique_ptr<SQLite::Database> database_;
  std::unique_ptr<SQLite::Database> checkpointer_;
  std::optional<SqliteFiles> files_;
  bool isGone_ = false;
  std::uint32_t nextCheckpoint_;
  std::vector<std::unique_ptr<Kept>> prepared_;  ///< By the statement's number.
};

}  // namespace services
