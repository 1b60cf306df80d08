#pragma once

#include <QPixmap>
#include <QWidget>

namespace desktop {

/// A picture of a window of the host as the operator sees it, with the lists and menus that are
/// open over it.
QPixmap Photograph(QWidget& window);

}  // namespace desktop
