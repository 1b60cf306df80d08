#pragma once

#include <QPixmap>
#include <QWidget>

namespace desktop {

/// A picture of a window of the host as the operator sees it, with the lists and menus that are
/// open over it.
QPixmap Photograph(QWidget& window);

/// Writes a picture as a PNG file of 256 colours, which screens hardly exceed, so that it is small
/// enough for a manual. False when the file could not be written.
bool SaveSmall(const QPixmap& picture, const QString& path);

}  // namespace desktop
