#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "clinic/Clinic.h"

namespace bench {

/// A connection to either engine for a twin that writes by several statements: each prepared once,
/// texts both ways.
class RawLink {
 public:
  using Row = std::vector<std::string>;

  static std::unique_ptr<RawLink> To(const Database& database);
  virtual ~RawLink() = default;

  /// Keeps a statement, its places written as $1 and so on; its number.
  virtual std::size_t Prepare(const std::string& sql) = 0;
  virtual std::vector<Row> Run(std::size_t statement, const Row& values = {}) = 0;
  virtual void Begin() = 0;
  virtual void Commit() = 0;
};

}  // namespace bench
