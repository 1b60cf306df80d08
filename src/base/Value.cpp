#include "base/Value.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"

namespace base {
namespace {

template <class... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

template <class... Cases>
auto Match(const Value& value, Cases... cases) {
  return std::visit(Overloaded{cases...}, static_cast<const Value::Variant&>(value));
}

/// -1 stands for true where a truth value is read as a number.
constexpr double kTrueAsNumber = -1;

}  // namespace

bool IsNull(const Value& value) {
  return value.Is<Null>();
}

namespace detail {

std::string TextOf(const Value& value) {
  return Match(
      value, [](Null) { return std::string(); }, [](const std::string& text) { return text; },
      [](const auto& other) { return ToText(other); });
}

double DoubleOf(const Value& value) {
  return Match(
      value, [](Null) { return 0.0; }, [](bool b) { return b ? kTrueAsNumber : 0.0; },
      [](std::int32_t n) { return static_cast<double>(n); }, [](double d) { return d; },
      [](Currency c) { return ToDouble(c); },
      [](DateTime) -> double { throw RuntimeError(Fault::kTypeMismatch); },
      [](const std::string& text) { return ToDouble(text); });
}

Currency CurrencyOf(const Value& value) {
  return Match(
      value, [](Currency c) { return c; }, [](const std::string& text) { return ToCurrency(text); },
      [&value](const auto&) { return ToCurrency(DoubleOf(value)); });
}

std::int32_t Int32Of(const Value& value) {
  return base::ToInt32(DoubleOf(value));
}

bool BoolOf(const Value& value) {
  return Match(
      value, [](bool b) { return b; },
      [](const std::string& text) {
        const std::string word = Lower(Trim(text));
        if (word == "true") return true;
        if (word == "false") return false;
        return ToDouble(text) != 0;
      },
      [&value](const auto&) { return DoubleOf(value) != 0; });
}

DateTime DateOf(const Value& value) {
  return Match(
      value, [](DateTime date) { return date; },
      [](const std::string& text) { return ToDate(text); },
      [](const auto&) -> DateTime { throw RuntimeError(Fault::kTypeMismatch); });
}

}  // namespace detail
}  // namespace base
