#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "services/banco/PostgresHosts.h"
#include "services/banco/Session.h"
#include "services/banco/Waiting.h"

// The library's own types.
struct pg_conn;
struct pg_result;

namespace services {

/// One connection to a PostgreSQL server, with what it has prepared, on which nothing waits longer
/// than it is told to. Everything throws DatabaseError; with kConnectionLost the connection is of
/// no further use.
class PostgresLink {
 public:
  struct Clear {
    void operator()(pg_result* result) const;
  };
  using Result = std::unique_ptr<pg_result, Clear>;
  /// A statement to be sent, and what it binds.
  struct Query {
    const Statement& statement;
    const Params& params;
  };

  /// Connects to one host, as whoever `label` says in the server's list of sessions.
  PostgresLink(const PostgresHost& host, const std::string& label, Waiting waiting);
  PostgresLink(const PostgresLink&) = delete;
  PostgresLink& operator=(const PostgresLink&) = delete;

  /// Sends statements in one flight, those that are new here with their preparation, and gives
  /// their results in their order. What stands behind a statement that fails is not run.
  std::vector<Result> Fly(std::span<const Query> queries, Waiting waiting);
  /// Runs a script of several statements, none of them bound; what one of its last rows begins
  /// with.
  std::string RunScript(const std::string& script, Waiting waiting);

  /// Whether the server has sent something unasked, which it does when it says goodbye.
  bool HasNews() const;
  /// Reads what came unasked; false when the connection turns out to be gone.
  bool TakesNews();
  /// It broke, or no answer came in time.
  bool IsLost() const { return isLost_; }
  /// The waiting ended before the connection did.
  bool IsLate() const { return isLate_; }
  /// As the server lists it: cut short, and without accents.
  const std::string& Label() const { return label_; }

 private:
  struct Finish {
    void operator()(pg_conn* connection) const;
  };
  struct Failure {
    std::string state, words;
    bool isFatal = false;
  };
  class Flight;

  void Connect(const PostgresHost& host, const std::string& label, Waiting waiting);
  void Send(const Query& query, Flight& flight);
  const std::string& NameOf(std::size_t statement);
  /// The next result, or null between those of two statements.
  Result Next(Waiting& waiting);
  void Receive(Waiting& waiting);
  static Failure FailureOf(const pg_result* result);
  [[noreturn]] void Throw(const Failure& failure);
  [[noreturn]] void Lose(const std::string& words);
  void Expect(bool isSent);

  std::unique_ptr<pg_conn, Finish> connection_;
  std::vector<std::string> names_;  ///< Of what is prepared, by the statement's number.
  std::vector<bool> isPrepared_;
  std::string label_;
  bool isLost_ = false;
  bool isLate_ = false;
};

}  // namespace services
