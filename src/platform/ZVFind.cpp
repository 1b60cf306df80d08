#include "platform/ZVFind.h"

#include <utility>

namespace platform {

void ZVFind::Written(const PropertyBase& property) {
  if (&property == &Text) DisplayText.Assign(Text());
  if (&property == &Text || &property == &DisplayText) isApart_ = &property == &DisplayText;
  EditBox::Written(property);
  if (&property == &DisplayText) Select(0, 0);
}

void ZVFind::Edit(const Change& change) {
  Apply(change, DisplayText);
  if (!isApart_) Apply(change, Text);
  TakeShown();
}

void ZVFind::TakeShown() {
  if (std::exchange(isApart_, false)) Text.Assign(DisplayText());
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
  if (DisplayText() != Text()) TakeShown();
  Click();
}

}  // namespace platform
