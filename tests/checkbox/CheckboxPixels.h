#pragma once

#include <QColor>
#include <QImage>

// Pixels clearly of the accent blue (the default tint and the focus ring), as opposed to the grey
// outline or white.
inline int accentPixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (c.blue() - c.red() > 60)
                ++count;
        }
    }
    return count;
}
