#include "platform/Keys.h"

#include <array>
#include <utility>

namespace platform {

char32_t PressedCharacter(const KeyStroke& stroke) {
  switch (stroke.key) {
    case Key::kCharacter:
    case Key::kSpace:
      return stroke.control || stroke.alt ? 0 : stroke.character;
    case Key::kBackspace:
      return kBackspaceCharacter;
    case Key::kEnter:
      return kEnterCharacter;
    case Key::kEscape:
      return kEscapeCharacter;
    default:
      return 0;
  }
}

Key KeyNamed(std::string_view name) {
  static constexpr std::array<std::pair<std::string_view, Key>, 16> kNames{{
      {"Enter", Key::kEnter},
      {"Space", Key::kSpace},
      {"Backspace", Key::kBackspace},
      {"Delete", Key::kDelete},
      {"Tab", Key::kTab},
      {"Esc", Key::kEscape},
      {"Escape", Key::kEscape},
      {"Up", Key::kUp},
      {"Down", Key::kDown},
      {"Left", Key::kLeft},
      {"Right", Key::kRight},
      {"Home", Key::kHome},
      {"End", Key::kEnd},
      {"PageUp", Key::kPageUp},
      {"PageDown", Key::kPageDown},
      {"F4", Key::kF4},
  }};
  for (const auto& [each, key] : kNames) {
    if (each == name) return key;
  }
  return Key::kNone;
}

}  // namespace platform
