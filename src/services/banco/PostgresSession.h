#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "services/banco/PostgresLink.h"
#include "services/banco/Session.h"

namespace services {

/// A database on a server that several computers share. No call lasts longer than its limit: a
/// connection on which no answer comes is given up. One that is found dead before anything was done
/// over it is made again in silence; one that dies in a transaction makes that transaction fail,
/// and the next use connects again.
class PostgresSession : public Session {
 public:
  /// Connects. `connection` is a connection text or address of libpq; `computer` is shown behind
  /// the name of this program in the server's list of sessions.
  PostgresSession(std::string connection, const std::string& computer);
  ~PostgresSession() override;

  Engine Kind() const override { return Engine::kPostgres; }
  std::string Name() const override { return name_; }
  bool IsConnected() const override { return link_ != nullptr && !link_->HasNews(); }
  bool TryToReconnect() noexcept override;

 private:
  using Queries = std::span<const PostgresLink::Query>;
  using Results = std::vector<PostgresLink::Result>;

  std::int64_t DoRun(const Statement& statement, const Params& params) override;
  std::int64_t DoSelect(const Statement& statement, const Params& params,
                        const EachRow& each) override;
  std::vector<std::int64_t> DoRunTogether(const std::vector<Request>& requests) override;
  void DoRunScript(const std::string& script) override;
  void DoBegin() override;
  void DoCommit(const Proof& proof) override;
  void DoRollback() noexcept override;
  Standing DoFindOut(const Doubt& doubt) override;

  void Connect(Clock::time_point end);
  void EnsureConnected(Clock::time_point end);
  /// The connection; throws when it broke in mid-transaction.
  PostgresLink& Alive();
  /// Carries out `work` on the connection, and lets go of it when it is lost.
  template <class Work>
  auto Watched(Work work);
  /// The same, and once more over a new connection when the old one turns out dead at once. For
  /// what may be done twice.
  template <class Work>
  auto Persistently(Clock::time_point end, Work work);
  Results Fly(Queries queries, Clock::time_point end);
  /// Asks in the transaction that is open, or else reads.
  Results Ask(Queries queries);
  Results Read(Queries queries);
  Results AskInTransaction(Queries queries);
  const Statement& BeginningNow() const;

  Standing LookFor(const Doubt& doubt, Clock::time_point end);
  /// Nothing when the backend of the lost connection is still at work.
  std::optional<Standing> Seen(const Doubt& doubt, Clock::time_point end);

  std::string text_;
  std::string label_, name_;  ///< As it is asked for, and as the server lists it.
  std::string lastHost_;
  std::unique_ptr<PostgresLink> link_;
  bool wasConnected_ = false;
  bool wasLate_ = false;        ///< The last connection that was lost was given up.
  bool isSetReadOnly_ = false;  ///< By the administrator, for all who do not ask otherwise.
  bool hasBegun_ = false;       ///< The server knows of the transaction.
  Clock::time_point transactionStart_;
};

}  // namespace services
