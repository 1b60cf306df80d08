#pragma once

#include <optional>

/// The code page of a Brazilian Windows, a byte a character.
namespace base {

/// The byte of a character; nothing when the code page lacks it.
std::optional<char> ToWindows1252(char32_t character);
/// The character of a byte; nothing for the five bytes that have none.
std::optional<char32_t> FromWindows1252(char byte);

}  // namespace base
