#pragma once

#include "platform/Form.h"
#include "platform/MSFlexGrid.h"

namespace frame {

/// Lets the mouse wheel over the form scroll the grid, by a page and at least ten rows. One grid at
/// a time has it: a grid turns it on as it gets the focus and off as it loses it.
void AtivarRolagemComMouse(platform::Form& formulario, platform::MSFlexGrid& grade);
void DesativarRolagemComMouse();

}  // namespace frame
