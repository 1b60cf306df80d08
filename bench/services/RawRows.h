#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "clinic/Clinic.h"

namespace bench {

/// A selection as it is written on an engine's own library: prepared once, one text bound, and its
/// columns copied into numbers and texts of the program's own.
class RawRows {
 public:
  /// The columns of a row by their kind, in the order in which the selection has them.
  struct Columns {
    int numbers = 0;  ///< The first ones.
    int texts = 0;    ///< The others.
  };
  /// Whether PostgreSQL plans it once, or for the value of each run.
  enum class Plan { kOnce, kByValue };
  /// Gives the count of the rows for the value of the one place.
  using Select = std::function<std::int64_t(const std::string& value)>;

  /// `sql` has its place written as $1.
  static Select Over(const Database& database, const std::string& sql, Columns columns, Plan plan);
};

}  // namespace bench
