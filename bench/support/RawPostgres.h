#pragma once

#include <libpq-fe.h>

#include <memory>
#include <string>
#include <vector>

namespace bench {

/// A connection as a program uses it that is written on PostgreSQL's own library: statements
/// prepared once, texts both ways, nothing in between.
class RawPostgres {
 public:
  struct Clear {
    void operator()(PGresult* result) const { PQclear(result); }
  };
  using Result = std::unique_ptr<PGresult, Clear>;

  explicit RawPostgres(const std::string& connection);
  ~RawPostgres();
  RawPostgres(const RawPostgres&) = delete;
  RawPostgres& operator=(const RawPostgres&) = delete;

  // All throw std::runtime_error with the server's words.

  void Prepare(const char* name, const std::string& sql);
  Result Run(const char* name, const std::vector<const char*>& values);
  Result Execute(const char* sql) { return Checked(PQexec(connection_, sql)); }
  Result Execute(const std::string& sql, const std::vector<const char*>& values);

  /// Loads rows in the text form of COPY.
  void BeginCopy(const std::string& table, const std::string& columns);
  void Copy(const std::string& lines);
  void EndCopy();

 private:
  [[noreturn]] void Fail();
  Result Checked(PGresult* result);

  PGconn* connection_;
};

}  // namespace bench
