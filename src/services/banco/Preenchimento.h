#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "services/banco/Session.h"

namespace services {

/// "$1, $2, $3" and so on, for a row of `count` values.
std::string Places(std::size_t count, std::size_t first = 1);

/// Inserts rows into a table, given the names of their columns parted by commas and one value a
/// column. For filling a database: the statement is made anew at each call.
void InsertRows(Session& session, const std::string& table, const std::string& columns,
                const std::vector<Params>& rows);

/// Lets a table that got its keys from outside go on numbering after them.
void ContinueKeys(Session& session, const std::string& table, const std::string& key);

}  // namespace services
