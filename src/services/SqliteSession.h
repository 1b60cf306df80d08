#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "services/Session.h"

namespace SQLite {
class Database;
class Statement;
}  // namespace SQLite

namespace services {

/// A database in one file: durable at every commit, one writer at a time, readers never waiting.
class SqliteSession : public Session {
 public:
  enum class File { kMustExist, kMayBeNew };

  /// How long to wait for a lock, and until when the present wait lasts.
  struct Wait {
    std::chrono::steady_clock::duration patience{};
    std::chrono::steady_clock::time_point end;
  };

  SqliteSession(const std::string& path, File file);
  ~SqliteSession() override;

  Engine Kind() const override { return Engine::kSqlite; }
  /// How long to wait for other writers. Opening gives up early on a file that is held by another
  /// program; once it is known to be ours, it is worth waiting longer.
  void BePatientFor(std::chrono::steady_clock::duration patience);

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

  SQLite::Statement& Prepared(const Statement& statement);
  /// Carries out `work`, turning the library's exceptions into ours.
  template <class Work>
  auto Translated(Work work);

  Wait wait_;
  std::unique_ptr<SQLite::Database> database_;
  std::vector<std::unique_ptr<SQLite::Statement>> prepared_;  ///< By the statement's number.
};

}  // namespace services
