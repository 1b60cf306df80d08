#pragma once

#include <QKeyEvent>
#include <vector>

#include "platform/Keys.h"

namespace desktop {

/// The key of an event as the module takes keys: one stroke, several when the keyboard's layout
/// sends several characters at once, none when the module has no use for the key.
std::vector<platform::KeyStroke> Strokes(const QKeyEvent& event);

/// Whether the event repeats a key that is held down and that does something: an act is done once,
/// however long the finger stays. In a field (`editing`) characters may repeat.
bool IsHeldCommand(const QKeyEvent& event, bool editing);

}  // namespace desktop
