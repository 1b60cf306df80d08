#pragma once

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QRectF>
#include <string_view>

/// The cash desk's own set of pictures: lines of one width on a field of 20 by 20, so that they
/// stay sharp at any scale.
namespace desktop::icons {

/// The outline of a picture by its English name ("magnifier") or by the key that the screens give
/// it ("menu_caixa_Abertura"); empty when there is none.
const QPainterPath& Outline(std::string_view name);
/// Draws it in the middle of `box`, as large as fits. False when there is no such picture.
bool Draw(QPainter& painter, std::string_view name, const QRectF& box, const QColor& color);

}  // namespace desktop::icons
