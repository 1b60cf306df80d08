#pragma once

#include <cstdint>
#include <string>

namespace base {

/// The read side of a grid of text cells, which is how whole grids reach the business services. Row
/// 0 is the header.
class GradeLida {
 public:
  virtual ~GradeLida() = default;
  virtual std::int32_t Rows() const = 0;
  virtual std::int32_t Cols() const = 0;
  /// The text of a cell; error 9 when it does not exist.
  virtual const std::string& TextMatrix(std::int32_t row, std::int32_t col) const = 0;
};

}  // namespace base
