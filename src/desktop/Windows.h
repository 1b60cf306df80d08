#pragma once

#include <QPointer>
#include <QWidget>
#include <map>

#include "platform/Form.h"

namespace desktop {

/// The widgets of the host that the module may name, each under a small number of its own.
class Windows {
 public:
  /// The number of the widget, which stays its own until it is destroyed.
  platform::WindowHandle Register(QWidget& widget);
  /// The widget of that number, or null.
  QWidget* Find(platform::WindowHandle handle) const;
  /// The window of the host that screens open over: that of the widget registered first that still
  /// exists and is visible, or null.
  QWidget* Host() const;

 private:
  std::map<platform::WindowHandle, QPointer<QWidget>> widgets_;
};

}  // namespace desktop
