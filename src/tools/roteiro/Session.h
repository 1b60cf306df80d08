#pragma once

#include <map>
#include <string>
#include <string_view>

#include "base/Record.h"

namespace roteiro {

/// The session record that the host hands to the module: who signed in, with which rights. It
/// begins as a user without rights, so that a script sets only what matters to it.
class Session final : public base::Record {
 public:
  Session();

  void Set(std::string_view name, base::Value value);
  base::Value Field(std::string_view name) const override;

 private:
  /// By name in lower case: fields are found without regard to case.
  std::map<std::string, base::Value, std::less<>> fields_;
};

}  // namespace roteiro
