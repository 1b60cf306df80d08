#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace bench {

/// The raw twin of a registration: writes the rows of a sale that stands in the database once more,
/// under the next number, durably, and moves the money of its register. Statements are kept, and
/// what they bind was made ready beforehand. Gives the number.
using RawSale = std::function<std::int64_t()>;

struct ModelSale {
  std::int64_t number = 0;
  std::int64_t drawer = 0;  ///< By how much the register's money grows, in ten-thousandths.
  std::int32_t cashRegister = 0;
};

/// How a twin on PostgreSQL commits.
enum class Commit {
  kAsOurs,   ///< BEGIN, one statement, COMMIT: three trips to the server and back.
  kByItself  ///< One statement that is its own transaction: one trip, and no less can be done.
};

RawSale RawSaleOnSqlite(const std::string& file, const ModelSale& model);
/// Over one connection; several models take turns.
RawSale RawSaleOnPostgres(const std::string& connection, const std::vector<ModelSale>& models,
                          Commit commit);

}  // namespace bench
