#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Currency.h"
#include "base/DateTime.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Param.h"
#include "services/banco/Statement.h"
#include "services/banco/Waiting.h"

namespace services {

/// One row of a result, read by column number from 0 and by type. A null reads as 0 or an empty
/// text.
class Row {
 public:
  virtual bool IsNull(int column) const = 0;
  virtual std::int64_t Integer(int column) const = 0;
  virtual std::string Text(int column) const = 0;

  std::int32_t Number(int column) const { return static_cast<std::int32_t>(Integer(column)); }
  bool Flag(int column) const { return Integer(column) != 0; }
  base::Currency Money(int column) const {
    return base::Currency::FromTenThousandths(Integer(column));
  }
  /// Not for nulls.
  base::DateTime Moment(int column) const { return MomentOf(Text(column)); }

 protected:
  ~Row() = default;
};

/// How a transaction whose commit was cut off is looked for afterwards: it stands when this
/// selection gives a row.
struct Proof {
  const Statement* statement = nullptr;
  Params params;
};

/// A transaction whose commit got no answer: all that is needed to find out later whether it
/// stands.
struct Doubt {
  std::string label;  ///< Session::Name of the one that lost its connection.
  Proof proof;
};

/// Lost while it was being kept, and not found out since. Thrown by Commit.
class InDoubt : public DatabaseError {
 public:
  InDoubt(Doubt doubt, std::string_view detail)
      : DatabaseError(Trouble::kInDoubt, detail), doubt_(std::move(doubt)) {}

  const Doubt& Which() const { return doubt_; }

 private:
  Doubt doubt_;
};

/// What became of a transaction in doubt. One that does not stand can never land any more.
enum class Standing { kStands, kDoesNotStand, kUnknown };

/// One of several statements that are sent together, and who reads its rows, if anybody does.
struct Request {
  const Statement& statement;
  Params params;
  std::function<void(const Row&)> each = {};
};

/// How long a database may take at work; what takes longer is given up and told.
struct Limits {
  std::chrono::milliseconds reading{10'000};
  std::chrono::milliseconds writing{20'000};  ///< A whole transaction, its tries and its commit.
  std::chrono::milliseconds findingOut{10'000};
};

/// One connection to a database of either engine. Everything throws DatabaseError. For one thread.
class Session {
 public:
  using Clock = Waiting::Clock;
  using EachRow = std::function<void(const Row&)>;
  /// Told of every step before and after it is taken; tests stop the process or the server there.
  using Observer = std::function<void(std::string_view step)>;

  virtual ~Session() = default;
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  virtual Engine Kind() const = 0;
  /// What the server knows this session by, the same over all its connections; empty where there is
  /// no server.
  virtual std::string Name() const { return {}; }

  /// Runs a statement of a transaction; the count of rows that it wrote.
  std::int64_t Run(const Statement& statement, const Params& params = {});
  /// Calls `each` for every row of the result; their count. The rows may not be kept. Outside a
  /// transaction nothing that writes is let through.
  std::int64_t Select(const Statement& statement, const Params& params, const EachRow& each);
  /// Runs statements of a transaction one after the other, over a network in a single trip: each
  /// sees what those before it did, and what others have committed meanwhile. Those behind one that
  /// fails do not run. Gives the counts of the rows, in their order.
  std::vector<std::int64_t> RunTogether(const std::vector<Request>& requests);
  /// Runs the parts of a script, which binds nothing: definitions of tables. Outside a transaction,
  /// PostgreSQL gets it as one of its own; SQLite gets it as it is, for some settings stand in
  /// none.
  void RunScript(const std::string& script);

  void Begin();
  /// Keeps the work of the transaction for good, or throws. Where no answer comes, it is looked for
  /// by its proof: the answer is never a guess, and InDoubt is thrown when it cannot be known.
  void Commit(const Proof& proof = {});
  /// Never throws: what cannot be rolled back is gone with its connection.
  void Rollback() noexcept;

  /// `paint` is called now and then while a call lasts, to keep the screens alive; what it throws
  /// is dropped. Nothing may be asked of the session from in there: it would be refused
  /// (kUnderWay).
  void WhileWaiting(std::function<void()> paint);
  void KeepTo(const Limits& limits) { limits_ = limits; }

  /// Looks for a transaction in doubt, outside any other one. Takes 10 s at most.
  Standing FindOut(const Doubt& doubt) noexcept;
  /// Whether the database was there when it was last asked.
  virtual bool IsConnected() const { return true; }
  /// Makes a lost connection again, within 2 s or not at all; for a host's timer, at rest.
  virtual bool TryToReconnect() noexcept { return true; }
  /// `listener`, one of any number, is told whenever a connection was made again after a loss, once
  /// no call and no transaction is under way: it may use the session. What it throws is dropped.
  void OnReconnected(std::function<void()> listener) {
    onReconnected_.push_back(std::move(listener));
  }

  void Observe(Observer observer) { observer_ = std::move(observer); }
  /// How often the engine was asked so far: over a network, the round trips.
  std::int64_t Calls() const { return calls_; }

 protected:
  Session() = default;

  virtual std::int64_t DoRun(const Statement& statement, const Params& params) = 0;
  virtual std::int64_t DoSelect(const Statement& statement, const Params& params,
                                const EachRow& each) = 0;
  virtual std::vector<std::int64_t> DoRunTogether(const std::vector<Request>& requests) = 0;
  virtual void DoRunScript(const std::string& script) = 0;
  virtual void DoBegin() = 0;
  virtual void DoCommit(const Proof& proof) = 0;
  virtual void DoRollback() noexcept = 0;
  virtual Standing DoFindOut(const Doubt& doubt) = 0;

  void Count() { ++calls_; }
  bool IsInTransaction() const { return isInTransaction_; }
  Waiting Until(Clock::time_point end) const { return {meanwhile_, end}; }
  /// When the operation under way began; now, where there is none.
  Clock::time_point Start() const { return start_ ? *start_ : Clock::now(); }
  const Limits& LimitsNow() const { return limits_; }
  /// To be told when the session rests.
  void NoteReconnection() { hasReconnected_ = true; }
  void TellReconnection() noexcept;

 private:
  friend class Operation;
  friend class Unhurried;

  template <class Step>
  auto Observed(std::string_view name, Step step);

  Observer observer_;
  std::function<void()> meanwhile_;
  Limits limits_;
  std::optional<Clock::time_point> start_;
  std::vector<std::function<void()>> onReconnected_;
  std::int64_t calls_ = 0;
  bool isInTransaction_ = false;
  bool hasReconnected_ = false;
  bool isPainting_ = false;
};

/// All that is asked of a session while this lives is one operation towards its limits of time.
/// Inside another one it changes nothing.
class Operation {
 public:
  explicit Operation(Session& session) : session_(session), isOutermost_(!session.start_) {
    if (isOutermost_) session_.start_ = Session::Clock::now();
  }
  ~Operation() {
    if (isOutermost_) session_.start_.reset();
  }
  Operation(const Operation&) = delete;
  Operation& operator=(const Operation&) = delete;

 private:
  Session& session_;
  bool isOutermost_;
};

/// Lifts the limits of time while it lives: for the care of a database, which nobody waits for at a
/// screen.
class Unhurried {
 public:
  explicit Unhurried(Session& session) : session_(session), before_(session.limits_) {
    constexpr std::chrono::hours kLong{4};
    session_.limits_.reading = kLong;
    session_.limits_.writing = kLong;
  }
  ~Unhurried() { session_.limits_ = before_; }
  Unhurried(const Unhurried&) = delete;
  Unhurried& operator=(const Unhurried&) = delete;

 private:
  Session& session_;
  Limits before_;
};

/// A transaction: rolled back when it is left without Commit.
class Transaction {
 public:
  explicit Transaction(Session& session) : session_(session) { session_.Begin(); }
  ~Transaction() {
    if (open_) session_.Rollback();
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  void ProvedBy(const Statement& statement, Params params) {
    proof_ = {&statement, std::move(params)};
  }
  void Commit() {
    open_ = false;
    session_.Commit(proof_);
  }

 private:
  Session& session_;
  Proof proof_;
  bool open_ = true;
};

/// Runs `body` as one transaction, and again, a few times at most, when it came into the way of
/// another one. All of it is one operation.
void InTransaction(Session& session, const std::function<void(Transaction&)>& body);

}  // namespace services
