#pragma once

#include <string>
#include <vector>

#include "services/banco/Session.h"

namespace services {

/// Looks for damage below the books: pages and indexes of a file that do not fit together, rows
/// that point to no row, texts that are none. A Portuguese sentence for each, the first ones of
/// many; empty when all is well. Throws DatabaseError.
std::vector<std::string> ConferirArmazenamento(Session& session);

}  // namespace services
