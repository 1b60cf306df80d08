#include "platform/CharacterIndex.h"

#include <algorithm>

#include "base/Text.h"

namespace platform {
namespace {

bool BeginsCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

}  // namespace

void CharacterIndex::Count(std::string_view text) {
  if (isKnown_) return;
  end_ = {base::Length(text), text.size()};
  last_ = {};
  isKnown_ = true;
}

std::size_t CharacterIndex::Length(std::string_view text) {
  Count(text);
  return end_.character;
}

std::size_t CharacterIndex::ByteOf(std::string_view text, std::size_t at) {
  Count(text);
  at = std::min(at, end_.character);
  const bool hasOneByteEach = end_.character == end_.byte;
  Place place = hasOneByteEach ? Place{at, at} : last_;
  const std::size_t away = std::max(at, place.character) - std::min(at, place.character);
  if (at < away) place = {};
  if (end_.character - at < away) place = end_;
  for (; place.character < at; ++place.character) {
    do ++place.byte;
    while (place.byte < text.size() && !BeginsCharacter(text[place.byte]));
  }
  for (; place.character > at; --place.character) {
    do --place.byte;
    while (place.byte > 0 && !BeginsCharacter(text[place.byte]));
  }
  last_ = place;
  return place.byte;
}

void CharacterIndex::Resize(std::ptrdiff_t characters, std::ptrdiff_t bytes) {
  end_.character += static_cast<std::size_t>(characters);
  end_.byte += static_cast<std::size_t>(bytes);
}

}  // namespace platform
