#include "platform/Menu.h"

#include "platform/Desktop.h"
#include "platform/Form.h"

namespace platform {

MenuItem::MenuItem(Form& form, std::string_view name, std::string_view caption)
    : Object(name), form_(form) {
  Caption.Assign(std::string(caption));
  form.menus_.push_back(this);
}

void Menu::PopUp(const Control& under) {
  Desktop::Current().PopUp(*this, under);
}

}  // namespace platform
