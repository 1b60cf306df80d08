#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace base {

/// The run-time errors that the module itself raises; the value is the number an operator sees.
enum class Fault : std::int32_t {
  kInvalidArgument = 5,
  kOverflow = 6,
  kIndexOutOfRange = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kFileNotFound = 53,
  kPermissionDenied = 70,
  kPathNotFound = 76,
  kObjectNotSet = 91,
  kCannotCreateObject = 429,
  kNoSuchMember = 438,
};

/// The Portuguese sentence of a fault, as the operator reads it.
const char* Description(Fault fault);

/// A conversion, a grid, a record set or a service that cannot do what it is asked. It never leaves
/// the procedure in which it arose, except into the caller's handler when a report itself fails.
class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(Fault fault);
  RuntimeError(std::int32_t number, std::string description)
      : number_(number), description_(std::move(description)) {}

  std::int32_t Number() const { return number_; }
  const std::string& Description() const { return description_; }
  const char* what() const noexcept override { return description_.c_str(); }

 private:
  std::int32_t number_;
  std::string description_;
};

/// The object behind a pointer, or run-time error 91 when nothing is set.
template <class Pointer>
auto& Required(const Pointer& pointer) {
  if (!pointer) throw RuntimeError(Fault::kObjectNotSet);
  return *pointer;
}

}  // namespace base
