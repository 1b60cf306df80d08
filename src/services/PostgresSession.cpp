#include "services/PostgresSession.h"

#include <poll.h>
#include <sodium.h>

#include <charconv>
#include <chrono>
#include <pqxx/pqxx>
#include <thread>

#include "services/DatabaseError.h"

namespace services {
namespace {

/// Durable commits whatever the server was set to, readable dates, no endless waits for a row that
/// another computer holds, and no compiling or sharing out of plans that run for microseconds.
constexpr const char* kSettings =
    "SET datestyle = 'ISO'; SET standard_conforming_strings = on; SET client_encoding = 'UTF8';"
    "SET lock_timeout = '10s'; SET jit = off;"
    "SET max_parallel_workers_per_gather = 0; SET client_min_messages = 'warning';"
    "SELECT set_config('synchronous_commit', 'on', false)"
    " WHERE current_setting('synchronous_commit') IN ('off', 'local')";

class PostgresRow final : public Row {
 public:
  explicit PostgresRow(const pqxx::row& row) : row_(row) {}

  bool IsNull(int column) const override { return row_[column].is_null(); }
  std::int64_t Integer(int column) const override {
    const pqxx::field field = row_[column];
    std::int64_t value = 0;
    std::from_chars(field.c_str(), field.c_str() + field.size(), value);
    return value;
  }
  std::string Text(int column) const override {
    const pqxx::field field = row_[column];
    return {field.c_str(), field.size()};
  }

 private:
  const pqxx::row& row_;
};

/// The values of a statement in the text form that the server reads.
class Texts {
 public:
  explicit Texts(const Params& params) {
    numbers_.reserve(params.size());
    texts_.reserve(params.size());
    for (const Param& param : params) texts_.push_back(TextOf(param));
  }

  auto AsParameters() const { return pqxx::prepare::make_dynamic_params(texts_); }

 private:
  const char* TextOf(const Param& param) {
    if (const auto* text = param.Text()) return text->c_str();
    if (const auto* number = param.Integer()) {
      return numbers_.emplace_back(std::to_string(*number)).c_str();
    }
    return nullptr;
  }

  std::vector<std::string> numbers_;  ///< Never grows past its first size: `texts_` points into it.
  std::vector<const char*> texts_;
};

/// Tells this connection from every other one. The server keeps no more than 63 characters of it,
/// so the number stands in front of the computer's name.
std::string RandomLabel(const std::string& computer) {
  return "caixa " + std::to_string(randombytes_random()) + ' ' + computer;
}

}  // namespace

/// What goes away with a lost connection: the statements that it had prepared too.
struct PostgresSession::Connection {
  explicit Connection(const std::string& text) : link(text), silence(link), work(link) {}

  pqxx::connection link;
  pqxx::quiet_errorhandler silence;  ///< What the server says comes as an exception anyway.
  pqxx::nontransaction work;
  std::vector<std::string> prepared;  ///< Names, by the statement's number; empty ones are not yet.
  std::string label;

  pqxx::result Ask(const Statement& statement, const Params& params, PostgresSession& session);
  /// The name under which this connection knows the statement; prepares it at its first use.
  const std::string& NameOf(const Statement& statement, PostgresSession& session);

  /// Whether the server has sent something unasked, which it does when it says goodbye.
  bool HasNews() const {
    pollfd socket{link.sock(), POLLIN, 0};
    return poll(&socket, 1, 0) != 0;
  }
};

PostgresSession::PostgresSession(std::string connection, std::string computer)
    : text_(std::move(connection)), computer_(std::move(computer)) {
  if (sodium_init() < 0) throw DatabaseError(Trouble::kOther, "libsodium");
  Connect();
}

PostgresSession::~PostgresSession() = default;

template <class Work>
auto PostgresSession::Translated(Work work) {
  const auto failed = [this](Trouble trouble, const std::string& detail) {
    const bool isLost = !connection_ || !connection_->link.is_open();
    if (isLost || trouble == Trouble::kConnectionLost) {
      connection_.reset();
      trouble = Trouble::kConnectionLost;
    }
    throw DatabaseError(trouble, "PostgreSQL: " + detail);
  };
  try {
    return work();
  } catch (const pqxx::transaction_rollback& error) {
    failed(Trouble::kConflict, error.what());
  } catch (const pqxx::sql_error& error) {
    failed(TroubleOfSqlState(error.sqlstate()), error.sqlstate() + " " + error.what());
  } catch (const pqxx::broken_connection& error) {
    failed(Trouble::kConnectionLost, error.what());
  } catch (const pqxx::failure& error) {
    failed(Trouble::kOther, error.what());
  } catch (const std::logic_error& error) {
    failed(Trouble::kOther, error.what());
  }
  throw DatabaseError(Trouble::kOther, "");
}

void PostgresSession::Connect() {
  inTransaction_ = false;
  if (wasConnected_) NoteReconnection();
  connection_.reset();
  Translated([this] {
    auto fresh = std::make_unique<Connection>(text_);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    // A connection that came back by itself in mid-transaction would keep half of it.
    fresh->link.inhibit_reactivation(true);
#pragma GCC diagnostic pop
    fresh->work.exec(kSettings);
    // The server answers with the label as it will list it: cut short, and without accents.
    fresh->label =
        fresh->work
            .exec_params("SELECT set_config('application_name', $1, false)", RandomLabel(computer_))
            .front()
            .front()
            .c_str();
    connection_ = std::move(fresh);
    wasConnected_ = true;
  });
}

void PostgresSession::EnsureConnected() {
  if (!connection_) return Connect();
  if (!connection_->HasNews()) return;
  try {
    Translated([this] { connection_->work.exec("SELECT 1"); });
  } catch (const DatabaseError&) {
    Connect();
  }
}

template <class Work>
auto PostgresSession::Persistently(Work work) {
  EnsureConnected();
  try {
    return Translated(work);
  } catch (const DatabaseError& error) {
    if (error.What() != Trouble::kConnectionLost) throw;
  }
  Connect();
  return Translated(work);
}

bool PostgresSession::TryToReconnect() noexcept {
  try {
    EnsureConnected();
  } catch (const std::exception&) {
    return false;
  }
  TellReconnection();
  return true;
}

PostgresSession::Connection& PostgresSession::Alive() {
  if (!connection_) throw DatabaseError(Trouble::kConnectionLost, "");
  return *connection_;
}

const std::string& PostgresSession::Connection::NameOf(const Statement& statement,
                                                       PostgresSession& session) {
  if (statement.Id() >= prepared.size()) prepared.resize(statement.Id() + 1);
  std::string& name = prepared[statement.Id()];
  if (name.empty()) {
    session.Count();
    std::string fresh = "caixa";
    fresh.append(std::to_string(statement.Id()));
    link.prepare(fresh, statement.Text(Engine::kPostgres));
    name = std::move(fresh);
  }
  return name;
}

pqxx::result PostgresSession::Connection::Ask(const Statement& statement, const Params& params,
                                              PostgresSession& session) {
  const Texts texts(params);
  session.Count();
  if (statement.Planned() == Statement::Planning::kByValues) {
    return work.exec_params(statement.Text(Engine::kPostgres), texts.AsParameters());
  }
  return work.exec_prepared(NameOf(statement, session), texts.AsParameters());
}

std::int64_t PostgresSession::DoRun(const Statement& statement, const Params& params) {
  // What writes is not done twice, so a connection that breaks now is not made again.
  if (!inTransaction_) EnsureConnected();
  return static_cast<std::int64_t>(
      Translated([&] { return Alive().Ask(statement, params, *this); }).affected_rows());
}

std::int64_t PostgresSession::DoSelect(const Statement& statement, const Params& params,
                                       const EachRow& each) {
  const auto work = [&] { return Alive().Ask(statement, params, *this); };
  const auto ask = [&] {
    if (inTransaction_) return Translated(work);
    try {
      return Persistently(work);
    } catch (const DatabaseError& error) {
      if (error.What() != Trouble::kConnectionLost) throw;
      throw DatabaseError(Trouble::kReadFailed, error.Detail());
    }
  };
  const pqxx::result result = ask();
  for (const pqxx::row& row : result) each(PostgresRow(row));
  return static_cast<std::int64_t>(result.size());
}

std::vector<std::int64_t> PostgresSession::DoRunTogether(const std::vector<Request>& requests) {
  std::vector<std::int64_t> rows;
  rows.reserve(requests.size());
  for (const Request& each : requests) {
    rows.push_back(DoSelect(
        each.statement, each.params, each.each ? each.each : [](const Row&) {}));
  }
  return rows;
}

void PostgresSession::DoRunScript(const std::string& script) {
  if (!inTransaction_) EnsureConnected();
  Translated([&] {
    Count();
    Alive().work.exec(script);
  });
}

void PostgresSession::DoBegin() {
  Persistently([this] {
    Count();
    connection_->work.exec("BEGIN");
  });
  inTransaction_ = true;
}

void PostgresSession::DoCommit(const Proof& proof) {
  const Doubt doubt{.label = Alive().label, .proof = proof};
  try {
    Translated([this] {
      Count();
      connection_->work.exec("COMMIT");
    });
    inTransaction_ = false;
  } catch (const DatabaseError& error) {
    if (error.What() != Trouble::kConnectionLost) throw;
    inTransaction_ = false;
    const Standing standing = DoFindOut(doubt);
    if (standing == Standing::kUnknown) throw InDoubt(doubt, error.Detail());
    if (standing == Standing::kDoesNotStand) throw;
  }
}

void PostgresSession::DoRollback() noexcept {
  if (!inTransaction_) return;
  inTransaction_ = false;
  if (!connection_) return;
  try {
    Translated([this] {
      Count();
      connection_->work.exec("ROLLBACK");
    });
  } catch (const DatabaseError&) {
    connection_.reset();
  }
}

bool PostgresSession::IsGone(const std::string& label) {
  return Translated([&] {
    return connection_->work
        .exec_params(
            "SELECT pg_terminate_backend(pid) FROM pg_stat_activity"
            " WHERE application_name = $1 AND usename = current_user",
            label)
        .empty();
  });
}

Standing PostgresSession::DoFindOut(const Doubt& doubt) {
  using Clock = std::chrono::steady_clock;
  constexpr auto kPatience = std::chrono::seconds(10);
  constexpr auto kPause = std::chrono::milliseconds(100);
  const auto end = Clock::now() + kPatience;
  for (; Clock::now() < end; std::this_thread::sleep_for(kPause)) {
    try {
      EnsureConnected();
      // The server may still be at the commit whose client it has lost.
      if (!IsGone(doubt.label)) continue;
      if (doubt.proof.statement == nullptr) break;
      const auto found = DoSelect(*doubt.proof.statement, doubt.proof.params, [](const Row&) {});
      return found > 0 ? Standing::kStands : Standing::kDoesNotStand;
    } catch (const DatabaseError&) {
      if (connection_) throw;
    }
  }
  return Standing::kUnknown;
}

}  // namespace services
