#pragma once

#include <QColor>
#include <QRect>
#include <QString>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Colors.h"
#include "platform/Control.h"

/// Between the module's texts, measures and colours and those of Qt.
namespace desktop {

QString ToQt(std::string_view text);
std::string FromQt(const QString& text);
/// Positions in a text: the module counts characters, Qt counts UTF-16 units.
int ToUnits(const QString& text, int characters);
int ToCharacters(const QString& text, int units);

/// Twips to pixels at 96 dpi, 15 to a pixel, rounded to the nearest.
int ToPixels(std::int32_t twips);
std::int32_t ToTwips(int pixels);
/// Where a control stands in its container. Edges are rounded, not lengths: controls that touch in
/// twips touch in pixels.
QRect PixelRect(const platform::Control& control);

QColor ToQt(platform::Color color);

}  // namespace desktop
