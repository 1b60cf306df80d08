#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "clinic/Clinic.h"

namespace bench {

/// A demonstration clinic that `fill` has made larger, of that name: the one of an earlier run
/// where the command line names a folder, or on PostgreSQL a server.
Database Kept(services::Engine engine, const std::string& name,
              const std::function<void(const Database& clinic)>& fill);

/// The file of a database: in the folder, or in a temporary one where that is empty.
std::filesystem::path FileIn(const std::string& folder, const std::string& name);

}  // namespace bench
