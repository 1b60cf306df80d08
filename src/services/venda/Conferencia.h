#pragma once

#include <string>
#include <vector>

namespace services {

class Banco;

/// Looks for damage of the database, goes through the books of all sales, registers and customers'
/// credits, and gives a Portuguese sentence for everything that does not balance; empty when all
/// does. Throws DatabaseError.
std::vector<std::string> Conferir(Banco& banco);

/// The rule by which the log of an SQLite database is brought into its file, in a Portuguese
/// sentence; empty for PostgreSQL.
std::string RegraDoLog(Banco& banco);

}  // namespace services
