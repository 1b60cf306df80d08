#pragma once

#include <cstdint>
#include <string_view>

namespace platform {

enum class Key {
  kNone,
  kCharacter,
  kEnter,
  kSpace,
  kBackspace,
  kDelete,
  kTab,
  kEscape,
  kUp,
  kDown,
  kLeft,
  kRight,
  kHome,
  kEnd,
  kPageUp,
  kPageDown,
  kF4,
};

/// One key as the keyboard sends it. `character` is what it types: set for kCharacter and kSpace.
struct KeyStroke {
  Key key = Key::kNone;
  char32_t character = 0;
  bool shift = false;
  bool control = false;
  bool alt = false;

  static KeyStroke Of(Key key, bool shift = false) {
    return {key, key == Key::kSpace ? U' ' : U'\0', shift, false, false};
  }
  static KeyStroke Character(char32_t c) {
    return c == U' ' ? Of(Key::kSpace) : KeyStroke{Key::kCharacter, c, false, false, false};
  }
};

/// The characters that KeyPress handlers receive for keys that type nothing.
inline constexpr char32_t kBackspaceCharacter = 8;
inline constexpr char32_t kEnterCharacter = 13;
inline constexpr char32_t kEscapeCharacter = 27;

/// The character that KeyPress receives for this key, 0 when the key raises none.
char32_t PressedCharacter(const KeyStroke& stroke);

/// The key of that English name ("Enter", "Space", "Delete", ...), or kNone.
Key KeyNamed(std::string_view name);

enum class MouseButton { kLeft = 1, kRight = 2 };

}  // namespace platform
