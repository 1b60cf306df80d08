#include "platform/Form.h"

#include <algorithm>

#include "platform/Desktop.h"
#include "platform/Label.h"
#include "platform/Layout.h"
#include "platform/Menu.h"
#include "platform/Screens.h"
#include "platform/ZVTheme.h"

namespace platform {

Form::Form(std::string_view name) : Object(name) {}

Form::~Form() {
  LeaveDesktop();
}

void Form::LeaveDesktop() {
  if (!onDesktop_) return;
  onDesktop_ = false;
  visible_ = false;
  screens::Remove(*this);
  Desktop::Current().Forgotten(*this);
}

void Form::Arrange(const Layout& layout) {
  Width.Assign(layout.size.width);
  Height.Assign(layout.size.height);
  laidWidth_ = layout.size.width;
  laidHeight_ = layout.size.height;
  const Label* naming = nullptr;
  for (const Place& place : layout.places) {
    Control& control = place.control;
    control.Left.Assign(place.box.left);
    control.Top.Assign(place.box.top);
    control.Width.Assign(place.box.width);
    control.Height.Assign(place.box.height);
    control.SizeChanged(true);
    control.DesignWords(place.words);
    control.look = place.look;
    control.hold = place.hold;
    control.icon = place.icon;
    if (!place.toolTip.empty()) control.ToolTipText.Assign(std::string(place.toolTip));
    if (control.GetKind() == Kind::kLabel) {
      naming = static_cast<const Label*>(&control);
    } else {
      control.label = naming;
      naming = nullptr;
      tabOrder_.push_back(&control);
    }
  }
  state_ = State::kReady;
}

void Form::EnsureLoaded() {
  if (state_ != State::kReady) return;
  state_ = State::kLoaded;
  onDesktop_ = true;
  screens::ToFront(*this);
  Load();
}

void Form::SetParent(WindowHandle container) {
  EnsureLoaded();
  parent_ = container;
}

void Form::ShowNow() {
  EnsureLoaded();
  if (state_ != State::kLoaded) return;  // Its Load unloaded it again.
  const bool wasVisible = visible_;
  visible_ = true;
  onDesktop_ = true;
  screens::ToFront(*this);
  Desktop& desktop = Desktop::Current();
  try {
    desktop.Placing(*this);
  } catch (...) {
    // There is no place for it: nobody may take it for the screen in front.
    visible_ = wasVisible;
    throw;
  }
  desktop.Shown(*this);
  if (!resized_) {
    resized_ = true;
    Resize();
  }
  if (wasVisible || !visible_) return;
  Activate();
  if (visible_ && active_ == nullptr) {
    const std::vector<Control*> order = TabOrder();
    if (!order.empty()) MoveFocus(*order.front());
  }
}

void Form::Show() {
  ShowNow();
}

void Form::ShowModal() {
  if (modal_) {
    ShowNow();
    return;
  }
  struct Scope {
    explicit Scope(Form& f) : form(f) {
      form.modal_ = true;
      screens::PushModal(form);
    }
    ~Scope() {
      form.modal_ = false;
      screens::PopModal(form);
      // An unwinding leaves no screen behind.
      if (form.visible_) form.Hide();
    }
    Form& form;
  } scope(*this);
  ShowNow();
  Desktop::Current().RunModal(*this);
}

void Form::Hide() {
  if (!visible_) return;
  visible_ = false;
  Desktop::Current().Hidden(*this);
}

void Form::Unload() {
  if (state_ != State::kLoaded || unloading_) return;
  struct Scope {
    explicit Scope(bool& f) : flag(f) { flag = true; }
    ~Scope() { flag = false; }
    bool& flag;
  } scope(unloading_);
  bool refused = false;
  UnloadEvent(refused);
  if (refused) return;
  Hide();
  resized_ = false;
  active_ = nullptr;
  LeaveDesktop();
  state_ = State::kReady;
}

void Form::Refresh() {
  Desktop::Current().Refresh(*this);
}

std::string Form::Title() const {
  for (const Control* control : controls_) {
    if (control->GetKind() == Kind::kTheme) {
      std::string title = static_cast<const ZVTheme*>(control)->Titulo();
      if (!title.empty()) return title;
    }
  }
  return Caption();
}

Control* Form::FindControl(std::string_view name) const {
  const auto found =
      std::ranges::find_if(controls_, [&](const Control* each) { return each->Name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

std::vector<Control*> Form::TabOrder() const {
  std::vector<Control*> order;
  std::ranges::copy_if(tabOrder_, std::back_inserter(order),
                       [](const Control* each) { return each->tabStop && each->TakesFocus(); });
  return order;
}

Control* Form::NextStop(bool back) const {
  const std::size_t count = tabOrder_.size();
  const auto here = std::ranges::find(tabOrder_, active_);
  const std::size_t none = back ? 0 : count - 1;
  std::size_t at = here == tabOrder_.end() ? none : here - tabOrder_.begin();
  for (std::size_t step = 0; step < count; ++step) {
    at = (at + (back ? count - 1 : 1)) % count;
    if (tabOrder_[at]->tabStop && tabOrder_[at]->TakesFocus()) return tabOrder_[at];
  }
  return nullptr;
}

bool Form::MoveFocus(Control& to) {
  if (active_ == &to) return true;
  if (!visible_ || !to.TakesFocus()) return false;
  Arrive(&to, true);
  return active_ == &to;
}

void Form::RepairFocus() {
  if (active_ == nullptr || active_->TakesFocus()) return;
  if (!visible_) {
    active_ = nullptr;
    return;
  }
  Arrive(NextStop(false), false);
}

void Form::Arrive(Control* at, bool validate) {
  Control* const from = active_;
  const bool leaves = from != nullptr && arrived_;
  if (leaves && validate && !from->Validate.IsRunning()) {
    bool refused = false;
    from->Validate(refused);
    // The handler may itself have moved the focus or closed the door to the new place.
    const bool reachable = visible_ && (at == nullptr || at->TakesFocus());
    if (refused || active_ != from || !reachable) return;
  }
  active_ = at;
  arrived_ = false;
  if (leaves) from->LostFocus();
  if (active_ != at || arrived_) return;
  if (at != nullptr) {
    arrived_ = true;
    at->SelectAll();
    at->GotFocus();
  }
  Desktop::Current().FocusMoved(*this);
}

void Form::Written(const PropertyBase& property) {
  if (&property != &Width && &property != &Height) return;
  const std::int32_t byWidth = Width() - laidWidth_;
  const std::int32_t byHeight = Height() - laidHeight_;
  laidWidth_ = Width();
  laidHeight_ = Height();
  Grown(byWidth, byHeight);
}

void Form::ResizeTo(std::int32_t width, std::int32_t height) {
  if (Width() == width && Height() == height) return;
  Width.Assign(width);
  Height.Assign(height);
  Written(Width);
  if (resized_) Resize();
}

}  // namespace platform
