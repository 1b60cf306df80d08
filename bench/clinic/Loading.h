#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "services/Banco.h"
#include "services/banco/Param.h"

namespace bench {

/// Rows for a table: one value a column.
struct Load {
  std::string table;
  std::string columns;  ///< Parted by commas.
  std::int64_t rows = 0;
  std::function<services::Params(std::int64_t place)> row;
};

/// Puts very many rows into a table of a database of ours: its indexes and triggers go first and
/// come back afterwards as they were, over all rows at once. `address` is as AbrirBanco takes it.
void LoadRows(const std::string& address, const Load& load);

}  // namespace bench
