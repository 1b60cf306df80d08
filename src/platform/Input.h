#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/Keys.h"

namespace platform {
class CheckBox;
class Control;
class EditBox;
class Form;
class MenuItem;
class MSFlexGrid;
class Toolbar;
class ToolbarButton;
class ZVComboBox;
}  // namespace platform

/// The acts of the operator. A renderer reports each act here; the events of the control follow in
/// their order, with the focus they bring. This is the only way in: it keeps a handler from being
/// entered twice, holds back a screen whose commands are out of action, and stops what a handler
/// let through.
namespace platform::input {

enum class Outcome {
  kDone,
  kRefused,  ///< An operator could not do it: hidden, disabled, or behind a modal screen.
  kDropped,  ///< The handler that it would run has not ended, or the screen's commands are held.
  kUnwound,  ///< The host closed on the way: nothing more is to be done.
};

/// The focus as a click or Tab would move it.
Outcome Focus(Control& control);
/// Tab, or shift and Tab.
Outcome FocusNext(Form& form, bool back);
/// A click with the mouse, with the focus it brings: on a find field its button.
Outcome Click(Control& control);
/// A key to the focused control.
Outcome Press(Form& form, KeyStroke stroke);
/// Each character of the text as the keyboard sends it: typing, or a paste.
Outcome Type(Form& form, std::string_view text);
/// The mouse selects in a field from `anchor` to `caret`.
Outcome Select(EditBox& box, std::int32_t anchor, std::int32_t caret);
/// The mouse's press and click on a cell; a double click adds DblClick.
Outcome ClickCell(MSFlexGrid& grid, std::int32_t row, std::int32_t col, MouseButton button,
                  bool twice);
Outcome Wheel(MSFlexGrid& grid, std::int32_t delta);
/// The operator opens a combo's list; the items may change meanwhile.
Outcome DropDown(ZVComboBox& combo);
/// The operator picks an item.
Outcome Pick(ZVComboBox& combo, std::int32_t index);
Outcome Choose(Toolbar& toolbar, ToolbarButton& button);
/// An entry of a menu that is up.
Outcome Choose(MenuItem& item);
/// The close box.
Outcome Close(Form& form);

/// A key sequence that code sends to the focused control, in the notation "+({HOME})".
void SendKeys(std::string_view keys);

/// Runs something on the operator's behalf with the guards of an act: errors that no procedure took
/// end in a plain box, an unwinding ends here and is answered with kUnwound.
Outcome Run(const std::function<void()>& act);
/// How many acts are being carried out, one inside the other.
int Depth();

}  // namespace platform::input
