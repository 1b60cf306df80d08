#pragma once

#include <QPainter>
#include <QRectF>

#include "platform/ReportPages.h"

namespace desktop::reports {

/// Paints what stands on a page, whose upper left corner is the painter's origin, with so many of
/// the painter's units to a twip. Only what touches `exposed`, in twips, is painted; all of it for
/// an empty one.
void PaintPage(QPainter& painter, const platform::ReportPage& page, double unitsPerTwip,
               const QRectF& exposed = {});

}  // namespace desktop::reports
