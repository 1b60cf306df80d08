#include "tools/roteiro/Arguments.h"

namespace roteiro {
namespace {

constexpr double kTenYears = 10.0 * 366 * 86'400;

std::string Quoted(std::string_view key) {
  return "\"" + std::string(key) + "\"";
}

}  // namespace

const Json& Arguments::Any(std::string_view key) const {
  const auto found = command_.find(key);
  if (found == command_.end()) throw CannotDo(Quoted(key) + " is missing");
  return *found;
}

std::string Arguments::Text(std::string_view key) const {
  const Json& field = Any(key);
  if (!field.is_string()) throw CannotDo(Quoted(key) + " is not a text");
  return field.get<std::string>();
}

std::string Arguments::Text(std::string_view key, std::string_view otherwise) const {
  return Has(key) ? Text(key) : std::string(otherwise);
}

std::int32_t Arguments::Int(std::string_view key) const {
  const base::Value value = ToValue(Any(key));
  if (!value.Is<std::int32_t>()) throw CannotDo(Quoted(key) + " is not a whole number");
  return base::ToInt32(value);
}

std::int32_t Arguments::Int(std::string_view key, std::int32_t from, std::int32_t to) const {
  const std::int32_t number = Int(key);
  if (number < from || number > to) {
    throw CannotDo(Quoted(key) + " is not from " + std::to_string(from) + " to " +
                   std::to_string(to));
  }
  return number;
}

double Arguments::Seconds(std::string_view key) const {
  const Json& field = Any(key);
  if (!field.is_number()) throw CannotDo(Quoted(key) + " is not a number");
  const auto seconds = field.get<double>();
  if (seconds < 0 || seconds > kTenYears) {
    throw CannotDo(Quoted(key) + " is below 0 or beyond ten years");
  }
  return seconds;
}

bool Arguments::Flag(std::string_view key, bool otherwise) const {
  if (!Has(key)) return otherwise;
  if (!Any(key).is_boolean()) throw CannotDo(Quoted(key) + " is not true or false");
  return Any(key).get<bool>();
}

}  // namespace roteiro
