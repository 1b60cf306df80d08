#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace services {

/// A search by part of a name gives no more rows than a pick list opens with.
inline constexpr std::int64_t kMostRows = 5'000;
/// For such a selection: one row more than is shown, to know of it.
inline constexpr std::string_view kLimit = " LIMIT 5001";

/// The form in which a name stands in a column nome_busca: without case, accents and superfluous
/// blanks.
std::string SearchForm(std::string_view name);
/// The same of a customer's two names, so that no part is found across both.
std::string SearchForm(std::string_view nickname, std::string_view name);

/// The form in which a computer's name is compared: without case and blanks around.
std::string ComputerForm(std::string_view name);

/// The whole number that a text is, if it is one of 32 bits above 0: how a code is typed.
std::optional<std::int32_t> CodeIn(std::string_view text);
/// The same of a code that is passed as a double.
std::optional<std::int32_t> CodeIn(double code);

/// The value of the one comparison in a condition text such as " WHERE [T.C]=12 ", where `column`
/// is "T.C" and the brackets may be missing; error 5, with what was expected, for any other text.
std::int32_t CodeInCondition(std::string_view condition, std::string_view column);

}  // namespace services
