#pragma once

#include <string>

namespace bench {

/// The PostgreSQL server that the benchmarks use: the one that the command line names, or a private
/// one that waits for the disk at every commit and ends with the process. Throws
/// std::runtime_error.
namespace server {

/// The connection text of a database.
std::string ConnectionText(const std::string& database);
bool Has(const std::string& database);
/// Creates an empty database in place of any earlier one.
void CreateAnew(const std::string& database);
// Nobody may be connected to it.

void Copy(const std::string& database, const std::string& name);
void Rename(const std::string& database, const std::string& name);

}  // namespace server
}  // namespace bench
