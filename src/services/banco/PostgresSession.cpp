#include "services/banco/PostgresSession.h"

#include <libpq-fe.h>
#include <sodium.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

#include "services/banco/DatabaseError.h"

namespace services {
namespace {

constexpr std::chrono::seconds kConnecting{5};
constexpr std::chrono::seconds kReconnecting{2};
constexpr std::chrono::seconds kRollingBack{2};
constexpr std::chrono::milliseconds kBetweenLooks{100};

/// Durable commits whatever the server was set to, readable dates, no endless waits for a row that
/// another computer holds, nor by others for one that this computer left in mid-transaction; no
/// compiling or sharing out of plans that run for microseconds. What is not asked for as a
/// transaction may not write: its answer could be lost without a trace.
constexpr const char* kSettings =
    "SET datestyle = 'ISO'; SET standard_conforming_strings = on; SET client_encoding = 'UTF8';"
    "SET lock_timeout = '5s'; SET idle_in_transaction_session_timeout = '30s'; SET jit = off;"
    "SET max_parallel_workers_per_gather = 0; SET client_min_messages = 'warning';"
    "SELECT set_config('synchronous_commit', 'on', false)"
    " WHERE current_setting('synchronous_commit') IN ('off', 'local');"
    "SELECT current_setting('default_transaction_read_only');"
    "SET default_transaction_read_only = on";

/// What not every server can be told: by these it notices that this computer has gone.
constexpr std::array<std::pair<const char*, const char*>, 5> kWishes{
    {{"client_connection_check_interval", "2s"},
     {"tcp_keepalives_idle", "15"},
     {"tcp_keepalives_interval", "5"},
     {"tcp_keepalives_count", "3"},
     {"tcp_user_timeout", "20s"}}};

class PostgresRow final : public Row {
 public:
  PostgresRow(const PGresult* result, int row) : result_(result), row_(row) {}

  bool IsNull(int column) const override { return PQgetisnull(result_, row_, column) != 0; }
  std::int64_t Integer(int column) const override {
    const std::string_view text = View(column);
    std::int64_t value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
  }
  std::string Text(int column) const override { return std::string(View(column)); }

 private:
  std::string_view View(int column) const {
    return {PQgetvalue(result_, row_, column),
            static_cast<std::size_t>(PQgetlength(result_, row_, column))};
  }

  const PGresult* result_;
  int row_;
};

void TellRows(const PGresult* result, const Session::EachRow& each) {
  for (int row = 0; each && row < PQntuples(result); ++row) each(PostgresRow(result, row));
}

/// How many rows a statement gave, or wrote where it gives none.
std::int64_t RowsOf(PGresult* result) {
  if (PQresultStatus(result) == PGRES_TUPLES_OK) return PQntuples(result);
  const std::string_view text = PQcmdTuples(result);
  std::int64_t rows = 0;
  std::from_chars(text.data(), text.data() + text.size(), rows);
  return rows;
}

const Params& NoParams() {
  static const Params none;
  return none;
}

/// Tells this session's connections from all others. The server keeps no more than 63 characters of
/// it, so the number stands in front of the computer's name.
std::string RandomLabel(const std::string& computer) {
  return "caixa " + std::to_string(randombytes_random()) + ' ' + computer;
}

/// Settles a new connection; whether the administrator has set the database to be read only.
bool Greet(PostgresLink& link, const Waiting& waiting) {
  static const Statement wish(
      "SELECT set_config($1, $2, false) WHERE current_setting($1, true) IS NOT NULL");
  const bool isReadOnly = link.RunScript(kSettings, waiting) == "on";
  for (const auto& [name, value] : kWishes) {
    try {
      const Params params{name, value};
      link.Fly(std::array{PostgresLink::Query{wish, params}}, waiting);
    } catch (const DatabaseError&) {
      if (link.IsLost()) throw;
    }
  }
  return isReadOnly;
}

}  // namespace

PostgresSession::PostgresSession(std::string connection, const std::string& computer)
    : text_(std::move(connection)) {
  if (sodium_init() < 0) throw DatabaseError(Trouble::kOther, "libsodium");
  label_ = RandomLabel(computer);
  Connect(Start() + kConnecting);
}

PostgresSession::~PostgresSession() = default;

template <class Work>
auto PostgresSession::Watched(Work work) {
  try {
    return work(Alive());
  } catch (const DatabaseError&) {
    if (link_ && link_->IsLost()) {
      wasLate_ = link_->IsLate();
      link_.reset();
    }
    throw;
  }
}

template <class Work>
auto PostgresSession::Persistently(Clock::time_point end, Work work) {
  EnsureConnected(end);
  try {
    return Watched(work);
  } catch (const DatabaseError&) {
    if (link_ || wasLate_) throw;
  }
  Connect(end);
  return Watched(work);
}

PostgresLink& PostgresSession::Alive() {
  if (!link_) throw DatabaseError(Trouble::kConnectionLost, "");
  return *link_;
}

void PostgresSession::Connect(Clock::time_point end) {
  link_.reset();
  const Waiting whole = Until(std::min(end, Clock::now() + kConnecting));
  auto hosts = HostsOf(text_, whole);
  std::stable_partition(hosts.begin(), hosts.end(),
                        [this](const auto& each) { return each.name == lastHost_; });
  std::string words = "PostgreSQL: o nome do servidor não foi encontrado";
  auto left = static_cast<int>(hosts.size());
  for (const PostgresHost& host : hosts) {
    // A host that keeps silent leaves their share of the time to the others.
    const auto now = Clock::now();
    const Waiting waiting(whole, now + (whole.End() - now) / left--);
    try {
      auto fresh = std::make_unique<PostgresLink>(host, label_, waiting);
      isSetReadOnly_ = Greet(*fresh, waiting);
      link_ = std::move(fresh);
      name_ = link_->Label();
      lastHost_ = host.name;
      if (wasConnected_) NoteReconnection();
      wasConnected_ = true;
      return;
    } catch (const DatabaseError& error) {
      words = error.Detail();
    }
  }
  throw DatabaseError(Trouble::kConnectionLost, words);
}

void PostgresSession::EnsureConnected(Clock::time_point end) {
  if (!link_ || !link_->TakesNews()) Connect(end);
}

bool PostgresSession::TryToReconnect() noexcept {
  if (IsInTransaction()) return IsConnected();
  try {
    EnsureConnected(Clock::now() + kReconnecting);
  } catch (const std::exception&) {
    return false;
  }
  TellReconnection();
  return true;
}

PostgresSession::Results PostgresSession::Fly(Queries queries, Clock::time_point end) {
  return Watched([&](PostgresLink& link) {
    Count();
    return link.Fly(queries, Until(end));
  });
}

PostgresSession::Results PostgresSession::Ask(Queries queries) {
  return IsInTransaction() ? AskInTransaction(queries) : Read(queries);
}

PostgresSession::Results PostgresSession::Read(Queries queries) {
  const auto now = Clock::now();
  const auto end = std::min(now + LimitsNow().reading, Start() + LimitsNow().writing);
  try {
    return Persistently(end, [&](PostgresLink& link) {
      Count();
      return link.Fly(queries, Until(end));
    });
  } catch (const DatabaseError& error) {
    if (error.What() != Trouble::kConnectionLost) throw;
    throw DatabaseError(Trouble::kReadFailed, error.Detail());
  }
}

const Statement& PostgresSession::BeginningNow() const {
  static const Statement writing("BEGIN READ WRITE");
  static const Statement asSet("BEGIN");
  return isSetReadOnly_ ? asSet : writing;
}

PostgresSession::Results PostgresSession::AskInTransaction(Queries queries) {
  const auto end = transactionStart_ + LimitsNow().writing / 2;
  if (hasBegun_) return Fly(queries, end);
  // Nothing was asked yet: BEGIN goes along, and all of it may go over a new connection.
  hasBegun_ = true;
  auto results = Persistently(end, [&](PostgresLink& link) {
    Count();
    std::vector<PostgresLink::Query> all{{BeginningNow(), NoParams()}};
    for (const PostgresLink::Query& each : queries) all.push_back(each);
    return link.Fly(all, Until(end));
  });
  results.erase(results.begin());
  return results;
}

std::int64_t PostgresSession::DoRun(const Statement& statement, const Params& params) {
  const auto results = Ask(std::array{PostgresLink::Query{statement, params}});
  const std::string_view text = PQcmdTuples(results.front().get());
  std::int64_t rows = 0;
  std::from_chars(text.data(), text.data() + text.size(), rows);
  return rows;
}

std::int64_t PostgresSession::DoSelect(const Statement& statement, const Params& params,
                                       const EachRow& each) {
  const auto results = Ask(std::array{PostgresLink::Query{statement, params}});
  TellRows(results.front().get(), each);
  return PQntuples(results.front().get());
}

std::vector<std::int64_t> PostgresSession::DoRunTogether(const std::vector<Request>& requests) {
  std::vector<PostgresLink::Query> queries;
  for (const Request& each : requests) queries.push_back({each.statement, each.params});
  const auto results = Ask(queries);
  std::vector<std::int64_t> rows;
  for (std::size_t i = 0; i < results.size(); ++i) {
    TellRows(results[i].get(), requests[i].each);
    rows.push_back(RowsOf(results[i].get()));
  }
  return rows;
}

void PostgresSession::DoRunScript(const std::string& script) {
  const bool isAlone = !IsInTransaction();
  if (isAlone) DoBegin();
  const auto end = transactionStart_ + LimitsNow().writing / 2;
  if (!hasBegun_) EnsureConnected(end);
  const std::string beginning =
      hasBegun_ ? "" : BeginningNow().Text(Engine::kPostgres) + std::string("; ");
  hasBegun_ = true;
  try {
    Watched([&](PostgresLink& link) {
      Count();
      link.RunScript(beginning + script, Until(end));
    });
    if (isAlone) DoCommit({});
  } catch (const DatabaseError&) {
    if (isAlone) DoRollback();
    throw;
  }
}

void PostgresSession::DoBegin() {
  hasBegun_ = false;
  transactionStart_ = Start();
}

void PostgresSession::DoCommit(const Proof& proof) {
  static const Statement commit("COMMIT");
  if (!hasBegun_) return;
  const Doubt doubt{.label = Alive().Label(), .proof = proof};
  hasBegun_ = false;
  // A connection that is known to be gone gets no COMMIT, so that nothing is in doubt.
  if (!link_->TakesNews()) {
    link_.reset();
    throw DatabaseError(Trouble::kConnectionLost, "COMMIT");
  }
  try {
    const auto results = Fly(std::array{PostgresLink::Query{commit, NoParams()}},
                             transactionStart_ + LimitsNow().writing * 3 / 4);
    if (std::string_view(PQcmdStatus(results.front().get())) == "COMMIT") return;
    throw DatabaseError(Trouble::kOther, "PostgreSQL: COMMIT, ROLLBACK");
  } catch (const DatabaseError& error) {
    if (error.What() != Trouble::kConnectionLost) throw;
    const Standing standing = LookFor(doubt, transactionStart_ + LimitsNow().writing);
    if (standing == Standing::kUnknown) throw InDoubt(doubt, error.Detail());
    if (standing == Standing::kDoesNotStand) throw;
  }
}

void PostgresSession::DoRollback() noexcept {
  static const Statement rollback("ROLLBACK");
  if (!hasBegun_) return;
  hasBegun_ = false;
  if (!link_) return;
  try {
    Fly(std::array{PostgresLink::Query{rollback, NoParams()}}, Clock::now() + kRollingBack);
  } catch (const std::exception&) {
    link_.reset();
  }
}

Standing PostgresSession::DoFindOut(const Doubt& doubt) {
  return LookFor(doubt, Clock::now() + LimitsNow().findingOut);
}

Standing PostgresSession::LookFor(const Doubt& doubt, Clock::time_point end) {
  for (Waiting waiting = Until(end); !waiting.IsOver(); waiting.Sleep(kBetweenLooks)) {
    try {
      if (const auto standing = Seen(doubt, end)) return *standing;
    } catch (const DatabaseError&) {
      if (link_) return Standing::kUnknown;
    }
  }
  return Standing::kUnknown;
}

std::optional<Standing> PostgresSession::Seen(const Doubt& doubt, Clock::time_point end) {
  // The server may still be at the commit whose client it has lost, or yet to be told of it.
  static const Statement lingering(
      "SELECT pg_terminate_backend(pid) FROM pg_stat_activity"
      " WHERE application_name = $1 AND usename = current_user AND pid <> pg_backend_pid()");
  static const Statement follows("SELECT 1 WHERE pg_is_in_recovery()");
  if (doubt.proof.statement == nullptr) return Standing::kUnknown;
  EnsureConnected(end);
  const Params label{doubt.label};
  // Each sees what was committed before it was begun: the proof is looked for when all is over.
  const auto results = Fly(
      std::array{PostgresLink::Query{lingering, label}, PostgresLink::Query{follows, NoParams()},
                 PostgresLink::Query{*doubt.proof.statement, doubt.proof.params}},
      end);
  if (PQntuples(results[2].get()) > 0) return Standing::kStands;
  if (PQntuples(results[0].get()) > 0) return std::nullopt;
  // A server that follows another one may be yet to hear of it.
  return PQntuples(results[1].get()) > 0 ? Standing::kUnknown : Standing::kDoesNotStand;
}

}  // namespace services
