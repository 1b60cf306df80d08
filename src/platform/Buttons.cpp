#include <algorithm>

#include "platform/CheckBox.h"
#include "platform/Form.h"
#include "platform/OptionButton.h"
#include "platform/PictureBox.h"
#include "platform/ZVCommandButton.h"

namespace platform {

bool ZVCommandButton::TakeKey(const KeyStroke& stroke) {
  if (stroke.key != Key::kEnter && stroke.key != Key::kSpace) return false;
  Click();
  return true;
}

void CheckBox::Toggle() {
  Value.Assign(!Value());
  Click();
}

bool CheckBox::TakeKey(const KeyStroke& stroke) {
  if (stroke.key != Key::kSpace) return false;
  Toggle();
  return true;
}

std::vector<OptionButton*> OptionButton::Group() const {
  std::vector<OptionButton*> group;
  for (Control* child : Parent().Children()) {
    if (child->GetKind() == Kind::kOptionButton) group.push_back(static_cast<OptionButton*>(child));
  }
  return group;
}

void OptionButton::Preset() {
  Value.Assign(true);
  was_ = true;
}

void OptionButton::Written(const PropertyBase& property) {
  Control::Written(property);
  if (&property != &Value) return;
  const bool comesOn = Value() && !was_;
  was_ = Value();
  if (!comesOn) return;
  for (OptionButton* other : Group()) {
    if (other == this) continue;
    other->Value.Assign(false);
    other->was_ = false;
  }
  Click();
}

bool OptionButton::TakeKey(const KeyStroke& stroke) {
  if (stroke.key == Key::kSpace) {
    Value = true;
    return true;
  }
  const bool back = stroke.key == Key::kUp || stroke.key == Key::kLeft;
  const bool on = stroke.key == Key::kDown || stroke.key == Key::kRight;
  if (!back && !on) return false;
  const std::vector<OptionButton*> group = Group();
  const std::size_t count = group.size();
  const auto here = static_cast<std::size_t>(std::ranges::find(group, this) - group.begin());
  for (std::size_t step = 1; step < count; ++step) {
    OptionButton* const next = group[(here + (back ? count - step : step)) % count];
    if (!next->TakesFocus()) continue;
    if (OwnerForm().MoveFocus(*next)) next->Value = true;
    break;
  }
  return true;
}

void PictureBox::BringToFront() {
  ZOrder.Assign(ZOrder() + 1);
}

void PictureBox::SizeChanged(bool byDesign) {
  const std::int32_t byWidth = Width() - laidWidth_;
  const std::int32_t byHeight = Height() - laidHeight_;
  laidWidth_ = Width();
  laidHeight_ = Height();
  if (!byDesign) Grown(byWidth, byHeight);
}

}  // namespace platform
