#pragma once

#include <QWidget>

namespace platform {
class Control;
}

namespace desktop {

class View;

/// A view for a control of any kind, a child of `parent`; null for kinds that have no picture.
View* MakeView(platform::Control& control, QWidget& parent);

}  // namespace desktop
