#include "services/banco/PostgresLink.h"

#include <libpq-fe.h>
#include <poll.h>

#include <algorithm>
#include <optional>

#include "services/banco/DatabaseError.h"

namespace services {
namespace {

/// The values of a statement in the text form that the server reads.
class Texts {
 public:
  explicit Texts(const Params& params) {
    numbers_.reserve(params.size());
    texts_.reserve(params.size());
    for (const Param& param : params) texts_.push_back(TextOf(param));
  }

  const char* const* All() const { return texts_.data(); }
  int Count() const { return static_cast<int>(texts_.size()); }

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

bool HasFailed(const PGresult* result) {
  const ExecStatusType status = PQresultStatus(result);
  return status == PGRES_FATAL_ERROR || status == PGRES_BAD_RESPONSE;
}

std::string Field(const PGresult* result, int code) {
  const char* const text = PQresultErrorField(result, code);
  return text == nullptr ? "" : text;
}

}  // namespace

/// What was sent together, and what has come of it so far.
class PostgresLink::Flight {
 public:
  struct Message {
    std::optional<std::size_t> prepares;  ///< The number of the statement.
  };

  void Sent(Message message) { messages_.push_back(message); }
  bool Prepares(std::size_t statement) const {
    return std::ranges::any_of(
        messages_, [statement](const Message& each) { return each.prepares == statement; });
  }
  bool IsOver() const { return isOver_; }

  /// Takes the next result, a null between two.
  void Take(Result result, std::vector<bool>& isPrepared) {
    if (!result) {
      ++at_;
      return;
    }
    const ExecStatusType status = PQresultStatus(result.get());
    isOver_ = status == PGRES_PIPELINE_SYNC;
    if (isOver_ || status == PGRES_PIPELINE_ABORTED) return;
    if (HasFailed(result.get())) {
      if (!failure) failure = FailureOf(result.get());
    } else if (at_ < messages_.size() && messages_[at_].prepares) {
      isPrepared[*messages_[at_].prepares] = true;
    } else {
      results.push_back(std::move(result));
    }
  }

  std::vector<Result> results;
  std::optional<Failure> failure;

 private:
  std::vector<Message> messages_;
  std::size_t at_ = 0;
  bool isOver_ = false;
};

void PostgresLink::Clear::operator()(PGresult* result) const {
  PQclear(result);
}

void PostgresLink::Finish::operator()(PGconn* connection) const {
  PQfinish(connection);
}

PostgresLink::PostgresLink(const PostgresHost& host, const std::string& label, Waiting waiting) {
  Connect(host, label, waiting);
  PQsetNoticeProcessor(
      connection_.get(), [](void*, const char*) {}, nullptr);
  // Never to be left while the connection lives, but for scripts.
  Expect(PQsetnonblocking(connection_.get(), 1) == 0 &&
         PQenterPipelineMode(connection_.get()) == 1);
  const char* const shown = PQparameterStatus(connection_.get(), "application_name");
  label_ = shown == nullptr ? label : shown;
}

void PostgresLink::Connect(const PostgresHost& host, const std::string& label, Waiting waiting) {
  std::vector<const char*> keywords{"application_name"};
  std::vector<const char*> values{label.c_str()};
  for (const auto& [keyword, value] : host.options) {
    if (keyword == "application_name") continue;
    keywords.push_back(keyword.c_str());
    values.push_back(value.c_str());
  }
  keywords.push_back(nullptr);
  values.push_back(nullptr);
  connection_.reset(PQconnectStartParams(keywords.data(), values.data(), 0));
  if (!connection_ || PQstatus(connection_.get()) == CONNECTION_BAD) Lose("");
  PQsetNoticeProcessor(
      connection_.get(), [](void*, const char*) {}, nullptr);
  for (PostgresPollingStatusType next = PGRES_POLLING_WRITING; next != PGRES_POLLING_OK;
       next = PQconnectPoll(connection_.get())) {
    if (next == PGRES_POLLING_FAILED) Lose("");
    const short events = next == PGRES_POLLING_READING ? POLLIN : POLLOUT;
    if (waiting.ForSocket(PQsocket(connection_.get()), events)) continue;
    isLate_ = true;
    Lose("o servidor não respondeu a tempo");
  }
}

const std::string& PostgresLink::NameOf(std::size_t statement) {
  if (statement >= names_.size()) {
    names_.resize(statement + 1);
    isPrepared_.resize(statement + 1);
  }
  std::string& name = names_[statement];
  if (name.empty()) name = std::string("caixa").append(std::to_string(statement));
  return name;
}

void PostgresLink::Send(const Query& query, Flight& flight) {
  const Texts texts(query.params);
  const std::string& sql = query.statement.Text(Engine::kPostgres);
  if (query.statement.Planned() == Statement::Planning::kByValues) {
    Expect(PQsendQueryParams(connection_.get(), sql.c_str(), texts.Count(), nullptr, texts.All(),
                             nullptr, nullptr, 0) == 1);
    return flight.Sent({});
  }
  const std::size_t id = query.statement.Id();
  const std::string& name = NameOf(id);
  if (!isPrepared_[id] && !flight.Prepares(id)) {
    Expect(PQsendPrepare(connection_.get(), name.c_str(), sql.c_str(), 0, nullptr) == 1);
    flight.Sent({.prepares = id});
  }
  Expect(PQsendQueryPrepared(connection_.get(), name.c_str(), texts.Count(), texts.All(), nullptr,
                             nullptr, 0) == 1);
  flight.Sent({});
}

std::vector<PostgresLink::Result> PostgresLink::Fly(std::span<const Query> queries,
                                                    Waiting waiting) {
  Flight flight;
  for (const Query& each : queries) Send(each, flight);
  Expect(PQpipelineSync(connection_.get()) == 1);
  while (!flight.IsOver()) flight.Take(Next(waiting), isPrepared_);
  if (flight.failure) Throw(*flight.failure);
  return std::move(flight.results);
}

std::string PostgresLink::RunScript(const std::string& script, Waiting waiting) {
  Expect(PQexitPipelineMode(connection_.get()) == 1);
  Expect(PQsendQuery(connection_.get(), script.c_str()) == 1);
  std::optional<Failure> failure;
  std::string last;
  while (const Result result = Next(waiting)) {
    if (HasFailed(result.get())) failure = FailureOf(result.get());
    if (PQntuples(result.get()) > 0) last = PQgetvalue(result.get(), 0, 0);
  }
  Expect(PQenterPipelineMode(connection_.get()) == 1);
  if (failure) Throw(*failure);
  return last;
}

PostgresLink::Result PostgresLink::Next(Waiting& waiting) {
  while (PQisBusy(connection_.get()) != 0) Receive(waiting);
  return Result(PQgetResult(connection_.get()));
}

void PostgresLink::Receive(Waiting& waiting) {
  const int left = PQflush(connection_.get());
  if (left < 0) Lose("");
  const short events = left == 0 ? POLLIN : POLLIN | POLLOUT;
  if (!waiting.ForSocket(PQsocket(connection_.get()), events)) {
    isLate_ = true;
    Lose("o servidor não respondeu a tempo");
  }
  if (PQconsumeInput(connection_.get()) == 0) Lose("");
}

bool PostgresLink::HasNews() const {
  pollfd socket{PQsocket(connection_.get()), POLLIN, 0};
  return poll(&socket, 1, 0) != 0;
}

bool PostgresLink::TakesNews() {
  while (!isLost_ && HasNews()) isLost_ = PQconsumeInput(connection_.get()) == 0;
  return !isLost_;
}

PostgresLink::Failure PostgresLink::FailureOf(const PGresult* result) {
  const std::string severity = Field(result, PG_DIAG_SEVERITY_NONLOCALIZED);
  return {.state = Field(result, PG_DIAG_SQLSTATE),
          .words = PQresultErrorMessage(result),
          .isFatal = severity == "FATAL" || severity == "PANIC"};
}

void PostgresLink::Throw(const Failure& failure) {
  // What ends the connection leaves nothing of the transaction, whatever its reason.
  if (failure.isFatal || failure.state.empty()) Lose(failure.state + ' ' + failure.words);
  const Trouble trouble = TroubleOfSqlState(failure.state);
  if (trouble == Trouble::kConnectionLost) Lose(failure.state + ' ' + failure.words);
  throw DatabaseError(trouble, "PostgreSQL: " + failure.state + ' ' + failure.words);
}

void PostgresLink::Lose(const std::string& words) {
  isLost_ = true;
  const char* const own = connection_ ? PQerrorMessage(connection_.get()) : "";
  throw DatabaseError(Trouble::kConnectionLost, "PostgreSQL: " + (words.empty() ? own : words));
}

void PostgresLink::Expect(bool isSent) {
  if (!isSent) Lose("");
}

}  // namespace services
