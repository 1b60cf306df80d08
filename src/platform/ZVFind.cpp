#include "platform/ZVFind.h"

namespace platform {

void ZVFind::Written(const PropertyBase& property) {
  if (&property == &Text) DisplayText.Assign(Text());
  EditBox::Written(property);
  if (&property == &DisplayText) Select(0, 0);
}

void ZVFind::Edited(std::string text) {
  DisplayText.Assign(text);
  Text.Assign(std::move(text));
  Status.Assign(DisplayText().empty() ? kEmpty : kTyped);
}

bool ZVFind::TakeKey(const KeyStroke& stroke) {
  if (stroke.key == Key::kEnter) {
    Trigger();
    return true;
  }
  return EditBox::TakeKey(stroke);
}

void ZVFind::Trigger() {
  if (DisplayText() != Text()) Edited(DisplayText());
  Click();
}

}  // namespace platform
