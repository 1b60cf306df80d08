#include "desktop/Windows.h"

namespace desktop {

platform::WindowHandle Windows::Register(QWidget& widget) {
  for (const auto& [handle, each] : widgets_) {
    if (each == &widget) return handle;
  }
  const platform::WindowHandle next = widgets_.empty() ? 1 : widgets_.rbegin()->first + 1;
  widgets_[next] = &widget;
  return next;
}

QWidget* Windows::Find(platform::WindowHandle handle) const {
  const auto found = widgets_.find(handle);
  return found == widgets_.end() ? nullptr : found->second.data();
}

QWidget* Windows::Host() const {
  for (const auto& [handle, each] : widgets_) {
    if (each != nullptr && each->isVisible()) return each->window();
  }
  return nullptr;
}

}  // namespace desktop
