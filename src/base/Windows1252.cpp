#include "base/Windows1252.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace base {
namespace {

constexpr char32_t kFirstOwn = 0x80;
constexpr char32_t kFirstShared = 0xA0;
constexpr char32_t kLast = 0xFF;

/// The characters of the bytes 80 to 9F; 0 where there is none. Every other byte is the character
/// of its own number.
constexpr std::array<char32_t, kFirstShared - kFirstOwn> kOwn{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr bool IsShared(char32_t number) {
  return number < kFirstOwn || (number >= kFirstShared && number <= kLast);
}

char Byte(std::size_t number) {
  return static_cast<char>(static_cast<unsigned char>(number));
}

}  // namespace

std::optional<char> ToWindows1252(char32_t character) {
  if (IsShared(character)) return Byte(character);
  const auto* const own = std::find(kOwn.begin(), kOwn.end(), character);
  if (own == kOwn.end()) return std::nullopt;
  return Byte(kFirstOwn + static_cast<std::size_t>(own - kOwn.begin()));
}

std::optional<char32_t> FromWindows1252(char byte) {
  const char32_t number = static_cast<unsigned char>(byte);
  if (IsShared(number)) return number;
  const char32_t own = kOwn[number - kFirstOwn];
  return own == 0 ? std::nullopt : std::optional(own);
}

}  // namespace base
