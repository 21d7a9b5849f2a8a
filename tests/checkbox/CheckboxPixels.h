#pragma once

#include "TestSupport.h"

#include <QImage>

// Pixels clearly of the accent blue (the default tint and the focus ring), as opposed to the grey
// outline or white.
inline int accentPixels(const QImage &image)
{
    return countPixels(image, [](QRgb p) { return qBlue(p) - qRed(p) > 60; });
}
