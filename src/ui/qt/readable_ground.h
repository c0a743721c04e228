// Fixed colours on a desktop that has colours of its own.
#pragma once

#include <QColor>

namespace velmora {

/// A ground on which a mark can be read (contrast of WCAG 2.1, at least 4.5:1 on a dark desktop):
/// the desktop's own where that will do, else white or black.
QColor readableGround(const QColor& mark, const QColor& own);

}  // namespace velmora
