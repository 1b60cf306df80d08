#include "support/RawPostgres.h"

#include <stdexcept>

namespace bench {

RawPostgres::RawPostgres(const std::string& connection)
    : connection_(PQconnectdb(connection.c_str())) {
  if (PQstatus(connection_) != CONNECTION_OK) {
    const std::string why = PQerrorMessage(connection_);
    PQfinish(connection_);
    throw std::runtime_error(why);
  }
  Execute("SET client_min_messages = 'warning'");
}

RawPostgres::~RawPostgres() {
  PQfinish(connection_);
}

void RawPostgres::Fail() {
  throw std::runtime_error(PQerrorMessage(connection_));
}

RawPostgres::Result RawPostgres::Checked(PGresult* result) {
  Result owned(result);
  const ExecStatusType status = PQresultStatus(result);
  if (status != PGRES_COMMAND_OK && status != PGRES_TUPLES_OK && status != PGRES_COPY_IN) Fail();
  return owned;
}

void RawPostgres::Prepare(const char* name, const std::string& sql) {
  Checked(PQprepare(connection_, name, sql.c_str(), 0, nullptr));
}

RawPostgres::Result RawPostgres::Run(const char* name, const std::vector<const char*>& values) {
  return Checked(PQexecPrepared(connection_, name, static_cast<int>(values.size()), values.data(),
                                nullptr, nullptr, 0));
}

RawPostgres::Result RawPostgres::Execute(const std::string& sql,
                                         const std::vector<const char*>& values) {
  return Checked(PQexecParams(connection_, sql.c_str(), static_cast<int>(values.size()), nullptr,
                              values.data(), nullptr, nullptr, 0));
}

void RawPostgres::BeginCopy(const std::string& table, const std::string& columns) {
  Execute(std::string("COPY ")
              .append(table)
              .append(" (")
              .append(columns)
              .append(") FROM STDIN")
              .c_str());
}

void RawPostgres::Copy(const std::string& lines) {
  if (PQputCopyData(connection_, lines.data(), static_cast<int>(lines.size())) != 1) Fail();
}

void RawPostgres::EndCopy() {
  if (PQputCopyEnd(connection_, nullptr) != 1) Fail();
  while (PGresult* result = PQgetResult(connection_)) Checked(result);
}

}  // namespace bench
