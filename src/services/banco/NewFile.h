#pragma once

#include <string>

namespace services {

/// Creates a database with its tables in a file that does not exist yet. It is built under a name
/// of its own beside `path`, and stands under `path` whole or not at all; where another program is
/// faster, that one's file stays, whatever it is by then. Nothing is ever removed by the name of
/// `path`. Throws DatabaseError.
void CreateWhole(const std::string& path);

}  // namespace services
