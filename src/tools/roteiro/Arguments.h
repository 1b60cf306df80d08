#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "tools/roteiro/Json.h"

namespace roteiro {

/// The fields of a command, read by type; CannotDo says which one is missing or of another type.
class Arguments {
 public:
  explicit Arguments(const Json& command) : command_(command) {}

  const Json& Command() const { return command_; }
  bool Has(std::string_view key) const { return command_.contains(key); }
  /// The field as it is; it must be there.
  const Json& Any(std::string_view key) const;
  std::string Text(std::string_view key) const;
  std::string Text(std::string_view key, std::string_view otherwise) const;
  std::int32_t Int(std::string_view key) const;
  std::int32_t Int(std::string_view key, std::int32_t from, std::int32_t to) const;
  /// A time of 0 or more seconds, ten years at most.
  double Seconds(std::string_view key) const;
  bool Flag(std::string_view key, bool otherwise) const;

 private:
  const Json& command_;
};

}  // namespace roteiro
