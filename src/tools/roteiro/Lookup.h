#pragma once

#include <string>

#include "tools/roteiro/Arguments.h"

namespace platform {
class Control;
class Form;
class MSFlexGrid;
class Object;
}  // namespace platform

namespace roteiro {

/// The screen that a command means: the loaded one that its "form" names, else the one in front.
platform::Form& FormIn(const Arguments& arguments);
/// The control that a command names with "control".
platform::Control& ControlIn(const Arguments& arguments);
platform::MSFlexGrid& GridIn(const Arguments& arguments);
/// What has the properties that a command names: the screen itself, a control, a button of a
/// toolbar, an entry of a menu.
platform::Object& ObjectIn(const Arguments& arguments);

/// The kind of a control, by the name of its class.
const char* KindName(const platform::Control& control);

}  // namespace roteiro
