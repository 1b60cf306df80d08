#pragma once

#include <cstdint>
#include <string>

#include "services/banco/Statement.h"

namespace bench {

/// "sqlite" or "postgresql", as it stands in the names of benchmarks.
std::string NameOf(services::Engine engine);

/// A database to work on, made in a folder of ours or on the server.
struct Database {
  services::Engine engine = services::Engine::kSqlite;
  /// The file, or the connection text.
  std::string target;

  /// As AbrirBanco takes it.
  std::string Address() const { return NameOf(engine) + ":" + target; }
};

/// A new database with the demonstration clinic.
Database NewClinic(services::Engine engine, const std::string& name);

/// The demonstration clinic, grown to so many more customers and products; the first product that
/// was added has the code kFirstAdded. Kept from run to run when the command line names a folder,
/// or on PostgreSQL a server.
Database LargeClinic(services::Engine engine);
inline constexpr std::int32_t kFirstAdded = 1'000'001;

/// Adds products from kFirstAdded on, as a large clinic has them.
void AddProducts(const Database& database, std::int64_t count);

}  // namespace bench
