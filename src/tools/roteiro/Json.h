#pragma once

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <string_view>

#include "base/DateTime.h"
#include "base/Value.h"

namespace roteiro {

/// JSON that keeps the order of its fields: the order of a row's fields is that of the record set.
using Json = nlohmann::ordered_json;

/// A command that cannot be carried out, and why.
class CannotDo : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A value as scripts write it: null, true, text, a whole number of 32 bits, a number with a
/// fraction for a double, {"currency": "12.50"}, {"date": "2026-11-22T14:30:00"}.
Json ToJson(const base::Value& value);
/// The value of such a text; CannotDo for anything else.
base::Value ToValue(const Json& json);

/// "2026-11-22T14:30:00" or "2026-11-22"; CannotDo for anything else.
base::DateTime ToDateTime(std::string_view text);

}  // namespace roteiro
