#pragma once

#include <cstddef>
#include <string_view>

namespace platform {

/// How many characters a text has and at which byte each begins, for a text that is edited at one
/// place for long: it is counted once, and then only from the beginning, the end or the last place
/// asked for, whichever is nearest. Whoever holds one says when the text is another.
class CharacterIndex {
 public:
  std::size_t Length(std::string_view text);
  /// The byte at which character number `at`, counted from 0, begins; the end when there are fewer.
  std::size_t ByteOf(std::string_view text, std::size_t at);
  /// So many characters and bytes came (or went, below 0) behind the last place asked for.
  void Resize(std::ptrdiff_t characters, std::ptrdiff_t bytes);
  void Forget() { isKnown_ = false; }

 private:
  struct Place {
    std::size_t character = 0, byte = 0;
  };
  void Count(std::string_view text);

  bool isKnown_ = false;
  Place end_, last_;
};

}  // namespace platform
