#include "desktop/Keys.h"

#include <array>
#include <utility>

namespace desktop {
namespace {

platform::Key NamedKey(int key) {
  using platform::Key;
  static constexpr std::array<std::pair<int, Key>, 17> kKeys{{
      {Qt::Key_Return, Key::kEnter},
      {Qt::Key_Enter, Key::kEnter},
      {Qt::Key_Space, Key::kSpace},
      {Qt::Key_Backspace, Key::kBackspace},
      {Qt::Key_Delete, Key::kDelete},
      {Qt::Key_Tab, Key::kTab},
      {Qt::Key_Backtab, Key::kTab},
      {Qt::Key_Escape, Key::kEscape},
      {Qt::Key_Up, Key::kUp},
      {Qt::Key_Down, Key::kDown},
      {Qt::Key_Left, Key::kLeft},
      {Qt::Key_Right, Key::kRight},
      {Qt::Key_Home, Key::kHome},
      {Qt::Key_End, Key::kEnd},
      {Qt::Key_PageUp, Key::kPageUp},
      {Qt::Key_PageDown, Key::kPageDown},
      {Qt::Key_F4, Key::kF4},
  }};
  for (const auto& [each, named] : kKeys) {
    if (each == key) return named;
  }
  return Key::kNone;
}

}  // namespace

std::vector<platform::KeyStroke> Strokes(const QKeyEvent& event) {
  // The key that gives the third character of a key cap counts as control and alt on some systems.
  const bool third = event.modifiers() & Qt::GroupSwitchModifier;
  const bool control = (event.modifiers() & Qt::ControlModifier) && !third;
  const bool alt = (event.modifiers() & Qt::AltModifier) && !third;
  const bool shift = (event.modifiers() & Qt::ShiftModifier) || event.key() == Qt::Key_Backtab;
  const auto withModifiers = [&](platform::KeyStroke stroke) {
    stroke.shift = shift;
    stroke.control = control;
    stroke.alt = alt;
    return stroke;
  };
  if (const platform::Key key = NamedKey(event.key()); key != platform::Key::kNone) {
    return {withModifiers(platform::KeyStroke::Of(key))};
  }
  std::vector<platform::KeyStroke> strokes;
  for (const char32_t character : event.text().toUcs4()) {
    if (!QChar::isPrint(character)) continue;
    strokes.push_back(withModifiers(platform::KeyStroke::Character(character)));
  }
  return strokes;
}

bool IsHeldCommand(const QKeyEvent& event, bool editing) {
  if (!event.isAutoRepeat()) return false;
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_F4:
      return true;
    case Qt::Key_Space:
    case Qt::Key_Delete:
      return !editing;
    default:
      return false;
  }
}

}  // namespace desktop
