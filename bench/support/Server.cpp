#include "support/Server.h"

#include "support/Options.h"
#include "support/PrivatePostgres.h"
#include "support/RawPostgres.h"

namespace bench::server {
namespace {

constexpr const char* kAlwaysThere = "postgres";

}  // namespace

std::string ConnectionText(const std::string& database) {
  if (!Chosen().postgres.empty()) return Chosen().postgres + " dbname=" + database;
  static const support::PrivatePostgres own(!Chosen().quick);
  return own.ConnectionText(database);
}

bool Has(const std::string& database) {
  RawPostgres link(ConnectionText(kAlwaysThere));
  const auto found =
      link.Execute("SELECT 1 FROM pg_database WHERE datname = $1", {database.c_str()});
  return PQntuples(found.get()) > 0;
}

void CreateAnew(const std::string& database) {
  RawPostgres link(ConnectionText(kAlwaysThere));
  link.Execute(("DROP DATABASE IF EXISTS " + database).c_str());
  link.Execute(("CREATE DATABASE " + database).c_str());
}

void Copy(const std::string& database, const std::string& name) {
  RawPostgres link(ConnectionText(kAlwaysThere));
  link.Execute(("DROP DATABASE IF EXISTS " + name).c_str());
  link.Execute(("CREATE DATABASE " + name + " TEMPLATE " + database).c_str());
}

void Rename(const std::string& database, const std::string& name) {
  RawPostgres link(ConnectionText(kAlwaysThere));
  link.Execute(("ALTER DATABASE " + database + " RENAME TO " + name).c_str());
}

}  // namespace bench::server
