#include "platform/Control.h"

#include <algorithm>

#include "platform/Desktop.h"
#include "platform/Form.h"

namespace platform {
namespace {

bool KindTakesFocus(Kind kind) {
  switch (kind) {
    case Kind::kLabel:
    case Kind::kPictureBox:
    case Kind::kShape:
    case Kind::kToolbar:
    case Kind::kImageList:
    case Kind::kTheme:
      return false;
    default:
      return true;
  }
}

}  // namespace

void Container::Grown(std::int32_t byWidth, std::int32_t byHeight) {
  const auto follow = [](Property<std::int32_t>& start, Property<std::int32_t>& length, bool near,
                         bool far, std::int32_t by) {
    if (!far || by == 0) return;
    Property<std::int32_t>& moved = near ? length : start;
    moved.Assign(moved() + by);
  };
  for (Control* child : children_) {
    follow(child->Left, child->Width, child->hold & kHoldLeft, child->hold & kHoldRight, byWidth);
    follow(child->Top, child->Height, child->hold & kHoldTop, child->hold & kHoldBottom, byHeight);
    child->SizeChanged(false);
  }
}

Control::Control(Container& parent, std::string_view name, Kind kind)
    : Object(name), parent_(parent), form_(parent.ContainerForm()), kind_(kind) {
  parent.children_.push_back(this);
  form_.controls_.push_back(this);
}

Control::~Control() {
  form_.LeaveDesktop();
}

bool Control::IsShown() const {
  for (const Control* each = this; each != nullptr; each = each->parent_.AsControl()) {
    if (!each->Visible.Peek()) return false;
  }
  return true;
}

bool Control::IsUsable() const {
  for (const Control* each = this; each != nullptr; each = each->parent_.AsControl()) {
    if (!each->Visible.Peek() || !each->Enabled.Peek()) return false;
  }
  return true;
}

bool Control::TakesFocus() const {
  return KindTakesFocus(kind_) && IsUsable();
}

bool Control::HasFocus() const {
  return form_.ActiveControl() == this;
}

void Control::SetFocus() {
  Touch();
  form_.MoveFocus(*this);
}

void Control::Refresh() {
  Desktop::Current().Refresh(form_);
}

void Control::Touch() const {
  form_.EnsureLoaded();
}

void Control::Written(const PropertyBase& property) {
  if (&property == &Width || &property == &Height) SizeChanged(false);
  if (&property == &Enabled || &property == &Visible) form_.RepairFocus();
}

}  // namespace platform
