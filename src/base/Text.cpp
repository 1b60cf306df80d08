#include "base/Text.h"

#include "base/RuntimeError.h"

namespace base {
namespace {

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Whether the value is a character that UTF-8 writes in so many bytes, two or more.
bool IsCharacter(char32_t value, std::size_t bytes) {
  constexpr char32_t kFirst[] = {0x80, 0x800, 0x10000};
  const bool isSurrogate = value >= 0xD800 && value <= 0xDFFF;
  return value >= kFirst[bytes - 2] && value <= 0x10FFFF && !isSurrogate;
}

/// The byte at which the character number `count` (from 0) begins, or the end.
std::size_t ByteOf(std::string_view text, std::size_t count) {
  std::size_t at = 0;
  while (at < text.size() && count > 0) {
    ++at;
    while (at < text.size() && IsContinuation(text[at])) ++at;
    --count;
  }
  return at;
}

char32_t UpperOf(char32_t c) {
  if (c >= U'a' && c <= U'z') return c - 32;
  if ((c >= 0xE0 && c <= 0xFE && c != 0xF7)) return c - 32;
  if (c == 0xFF) return 0x178;
  if (c >= 0x100 && c <= 0x137) return c & ~char32_t{1};
  if (c >= 0x139 && c <= 0x148) return (c % 2 == 0) ? c - 1 : c;
  if (c >= 0x14A && c <= 0x177) return c & ~char32_t{1};
  if (c >= 0x179 && c <= 0x17E) return (c % 2 == 0) ? c - 1 : c;
  return c;
}

char32_t LowerOf(char32_t c) {
  if (c >= U'A' && c <= U'Z') return c + 32;
  if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 32;
  if (c == 0x178) return 0xFF;
  if (c >= 0x100 && c <= 0x137) return c | char32_t{1};
  if (c >= 0x139 && c <= 0x148) return (c % 2 == 1) ? c + 1 : c;
  if (c >= 0x14A && c <= 0x177) return c | char32_t{1};
  if (c >= 0x179 && c <= 0x17E) return (c % 2 == 1) ? c + 1 : c;
  return c;
}

/// The letters U+00DF to U+017F without their accents, one base text each row of sixteen.
constexpr const char* kLatinOneBase[] = {"a", "a", "a", "a", "a", "a", "ae", "c", "e",  "e", "e",
                                         "e", "i", "i", "i", "i", "d", "n",  "o", "o",  "o", "o",
                                         "o", "",  "o", "u", "u", "u", "u",  "y", "th", "y"};
constexpr std::string_view kLatinExtendedBase =
    "aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiiiiijjkkklllllllll"
    "lnnnnnnnnnoooooooorrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs";

void AppendBase(std::string& out, char32_t lower) {
  if (lower < 0x80) {
    out += static_cast<char>(lower);
  } else if (lower == 0xAA) {
    out += 'a';
  } else if (lower == 0xBA) {
    out += 'o';
  } else if (lower == 0xDF) {
    out += "ss";
  } else if (lower >= 0xE0 && lower <= 0xFF && lower != 0xF7) {
    out += kLatinOneBase[lower - 0xE0];
  } else if (lower >= 0x100 && lower <= 0x17F) {
    out += kLatinExtendedBase[lower - 0x100];
  } else if (lower == 0xA0) {
    out += ' ';
  } else if (lower < 0x300 || lower > 0x36F) {
    AppendCharacter(out, lower);
  }
}
static_assert(kLatinExtendedBase.size() == 0x80);

template <class Change>
std::string Changed(std::string_view text, Change change) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) AppendCharacter(out, change(TakeCharacter(text)));
  return out;
}

}  // namespace

std::size_t Length(std::string_view text) {
  std::size_t count = 0;
  for (const char byte : text) count += IsContinuation(byte) ? 0 : 1;
  return count;
}

std::string Left(std::string_view text, std::size_t count) {
  return std::string(text.substr(0, ByteOf(text, count)));
}

std::string Right(std::string_view text, std::size_t count) {
  const std::size_t length = Length(text);
  return std::string(text.substr(ByteOf(text, length > count ? length - count : 0)));
}

std::string Mid(std::string_view text, std::size_t start, std::size_t count) {
  if (start == 0) throw RuntimeError(Fault::kInvalidArgument);
  text.remove_prefix(ByteOf(text, start - 1));
  return Left(text, count);
}

std::string Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string Space(std::ptrdiff_t count) {
  if (count < 0) throw RuntimeError(Fault::kInvalidArgument);
  return std::string(static_cast<std::size_t>(count), ' ');
}

std::string PadRight(std::string_view text, std::size_t width) {
  return std::string(text) +
         Space(static_cast<std::ptrdiff_t>(width) - static_cast<std::ptrdiff_t>(Length(text)));
}

std::string Upper(std::string_view text) {
  return Changed(text, UpperOf);
}
std::string Lower(std::string_view text) {
  return Changed(text, LowerOf);
}

std::string Fold(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) AppendBase(out, LowerOf(TakeCharacter(text)));
  return out;
}

bool Contains(std::string_view text, std::string_view part) {
  return !text.empty() && text.find(part) != std::string_view::npos;
}

std::string Replace(std::string_view text, std::string_view from, std::string_view to) {
  if (from.empty()) return std::string(text);
  std::string out;
  std::size_t at = 0;
  for (std::size_t hit = text.find(from); hit != std::string_view::npos;
       hit = text.find(from, at)) {
    out.append(text, at, hit - at).append(to);
    at = hit + from.size();
  }
  return out.append(text, at);
}

std::vector<std::string> Split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  std::size_t at = 0;
  for (std::size_t hit = text.find(separator); hit != std::string_view::npos;
       hit = text.find(separator, at)) {
    parts.emplace_back(text.substr(at, hit - at));
    at = hit + 1;
  }
  parts.emplace_back(text.substr(at));
  return parts;
}

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

int CompareAsRead(std::string_view a, std::string_view b) {
  if (const int byLetters = Fold(a).compare(Fold(b)); byLetters != 0) return byLetters;
  if (const int byAccents = Lower(a).compare(Lower(b)); byAccents != 0) return byAccents;
  return -a.compare(b);
}

char32_t TakeCharacter(std::string_view& text) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned char lead = byte(0);
  std::size_t length = 1;
  char32_t character = 0xFFFD;
  if (lead < 0x80) {
    character = lead;
  } else {
    const std::size_t wanted = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
    if (wanted != 0 && text.size() >= wanted && lead < 0xF5) {
      char32_t value = lead & (0xFFU >> (wanted + 1));
      while (length < wanted && IsContinuation(text[length])) {
        value = (value << 6) | (byte(length) & 0x3FU);
        ++length;
      }
      if (length == wanted && IsCharacter(value, wanted)) {
        character = value;
      } else {
        length = 1;
      }
    }
  }
  text.remove_prefix(length);
  return character;
}

void AppendCharacter(std::string& text, char32_t c) {
  const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
  if (c < 0x80) {
    add(c);
  } else if (c < 0x800) {
    add(0xC0 | (c >> 6));
    add(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    add(0xE0 | (c >> 12));
    add(0x80 | ((c >> 6) & 0x3F));
    add(0x80 | (c & 0x3F));
  } else {
    add(0xF0 | (c >> 18));
    add(0x80 | ((c >> 12) & 0x3F));
    add(0x80 | ((c >> 6) & 0x3F));
    add(0x80 | (c & 0x3F));
  }
}

std::u32string ToCharacters(std::string_view text) {
  std::u32string characters;
  characters.reserve(text.size());
  while (!text.empty()) characters += TakeCharacter(text);
  return characters;
}

std::string FromCharacters(std::u32string_view characters) {
  std::string text;
  for (const char32_t character : characters) AppendCharacter(text, character);
  return text;
}

}  // namespace base
