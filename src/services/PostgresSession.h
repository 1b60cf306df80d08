#pragma once

#include <memory>
#include <string>
#include <vector>

#include "services/Session.h"

namespace services {

/// A database on a server that several computers share. A connection that is found dead before
/// anything was asked of it, or while reading outside a transaction, is made again in silence; one
/// that dies in a transaction makes that transaction fail, and the next use connects again.
class PostgresSession : public Session {
 public:
  /// Connects. `connection` is a connection text or address of libpq; `computer` is shown behind
  /// the name of this program in the server's list of sessions.
  PostgresSession(std::string connection, std::string computer);
  ~PostgresSession() override;

  Engine Kind() const override { return Engine::kPostgres; }
  bool IsConnected() const override { return connection_ != nullptr; }
  bool TryToReconnect() noexcept override;

 private:
  struct Connection;

  std::int64_t DoRun(const Statement& statement, const Params& params) override;
  std::int64_t DoSelect(const Statement& statement, const Params& params,
                        const EachRow& each) override;
  std::vector<std::int64_t> DoRunTogether(const std::vector<Request>& requests) override;
  void DoRunScript(const std::string& script) override;
  void DoBegin() override;
  void DoCommit(const Proof& proof) override;
  void DoRollback() noexcept override;
  Standing DoFindOut(const Doubt& doubt) override;

  void Connect();
  void EnsureConnected();
  /// The connection; throws when it broke in mid-transaction.
  Connection& Alive();
  /// Carries out `work` on the connection, turning the library's exceptions into ours and letting
  /// go of a connection that is dead.
  template <class Work>
  auto Translated(Work work);
  /// The same, and once more over a new connection when the old one turns out dead. For what may
  /// be done twice.
  template <class Work>
  auto Persistently(Work work);
  bool IsGone(const std::string& label);

  std::string text_;
  std::string computer_;
  bool inTransaction_ = false;
  bool wasConnected_ = false;
  std::unique_ptr<Connection> connection_;
};

}  // namespace services
