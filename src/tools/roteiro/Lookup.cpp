#include "tools/roteiro/Lookup.h"

#include <algorithm>

#include "platform/MSFlexGrid.h"
#include "platform/Menu.h"
#include "platform/Screens.h"
#include "platform/Toolbar.h"
#include "tools/roteiro/HeadlessDesktop.h"

namespace roteiro {

using platform::Kind;

platform::Form& FormIn(const Arguments& arguments) {
  if (!arguments.Has("form")) {
    platform::Form* const front = HeadlessDesktop::InFront();
    if (front == nullptr) throw CannotDo("no screen is up");
    return *front;
  }
  const std::string name = arguments.Text("form");
  const auto& loaded = platform::screens::Loaded();
  const auto found = std::ranges::find(loaded, name, [](auto* form) { return form->Name(); });
  if (found == loaded.end()) throw CannotDo("no screen " + name + " is loaded");
  return **found;
}

platform::Control& ControlIn(const Arguments& arguments) {
  const platform::Form& form = FormIn(arguments);
  const std::string name = arguments.Text("control");
  platform::Control* const control = form.FindControl(name);
  if (control == nullptr) throw CannotDo(form.Name() + " has no control " + name);
  return *control;
}

platform::MSFlexGrid& GridIn(const Arguments& arguments) {
  platform::Control& control = ControlIn(arguments);
  if (control.GetKind() != Kind::kGrid) throw CannotDo(control.Name() + " is not a grid");
  return static_cast<platform::MSFlexGrid&>(control);
}

platform::Object& ObjectIn(const Arguments& arguments) {
  platform::Form& form = FormIn(arguments);
  const std::string name = arguments.Text("control");
  if (name == form.Name()) return form;
  const auto& menus = form.Menus();
  const auto entry = std::ranges::find(menus, name, [](auto* item) { return item->Name(); });
  if (entry != menus.end()) return **entry;
  platform::Control& control = ControlIn(arguments);
  if (!arguments.Has("button")) return control;
  const std::string key = arguments.Text("button");
  if (control.GetKind() == Kind::kToolbar) {
    for (const auto& button : static_cast<platform::Toolbar&>(control).All()) {
      if (button->Key() == key) return *button;
    }
  }
  throw CannotDo(name + " has no button " + key);
}

const char* KindName(const platform::Control& control) {
  switch (control.GetKind()) {
    case Kind::kLabel:
      return "Label";
    case Kind::kPictureBox:
      return "PictureBox";
    case Kind::kShape:
      return "Shape";
    case Kind::kCheckBox:
      return "CheckBox";
    case Kind::kOptionButton:
      return "OptionButton";
    case Kind::kCommandButton:
      return "ZVCommandButton";
    case Kind::kTextBox:
      return "ZVTextBox";
    case Kind::kNumberBox:
      return "ZVNumberBox";
    case Kind::kMemo:
      return "ZVMemo";
    case Kind::kMaskedBox:
      return "ZVMaskedBox";
    case Kind::kDateBox:
      return "ZVDateBox";
    case Kind::kPeriodBox:
      return "ZVPeriodBox";
    case Kind::kFind:
      return "ZVFind";
    case Kind::kComboBox:
      return "ZVComboBox";
    case Kind::kGrid:
      return "MSFlexGrid";
    case Kind::kToolbar:
      return "Toolbar";
    case Kind::kImageList:
      return "ImageList";
    case Kind::kTheme:
      return "ZVTheme";
  }
  return "";
}

}  // namespace roteiro
