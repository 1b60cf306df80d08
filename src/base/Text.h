#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Text is UTF-8 throughout; lengths, positions and padding count characters, not bytes.
namespace base {

std::size_t Length(std::string_view text);
/// The first `count` characters, or all of them.
std::string Left(std::string_view text, std::size_t count);
/// The last `count` characters, or all of them.
std::string Right(std::string_view text, std::size_t count);
/// `count` characters from position `start` on, counted from 1; less at the end of the text.
std::string Mid(std::string_view text, std::size_t start, std::size_t count = std::string::npos);
/// The text between its outer blanks.
std::string Trim(std::string_view text);
/// `count` blanks; error 5 when negative.
std::string Space(std::ptrdiff_t count);
/// The text followed by blanks to exactly `width` characters; error 5 when it is longer.
std::string PadRight(std::string_view text, std::size_t width);

std::string Upper(std::string_view text);
std::string Lower(std::string_view text);
/// The form in which names are searched and sorted: lower case, without accents.
std::string Fold(std::string_view text);
/// Whether `part` stands in `text`; nothing is found in an empty text, not even an empty part.
bool Contains(std::string_view text, std::string_view part);
std::string Replace(std::string_view text, std::string_view from, std::string_view to);
std::vector<std::string> Split(std::string_view text, char separator);

/// Whether every character of the text is a blank; true for an empty text.
bool IsBlank(std::string_view text);
/// Less than, equal to or greater than 0 as a Portuguese reader sorts `a` and `b`: letters first,
/// accents and case only between words that are otherwise equal.
int CompareAsRead(std::string_view a, std::string_view b);

/// One character read from the front of UTF-8 text. A byte that begins no character counts as
/// U+FFFD.
char32_t TakeCharacter(std::string_view& text);
void AppendCharacter(std::string& text, char32_t character);
std::u32string ToCharacters(std::string_view text);
std::string FromCharacters(std::u32string_view characters);

}  // namespace base
