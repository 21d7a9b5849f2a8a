#pragma once

#include "Art.h"

#include <QColor>
#include <algorithm>

// The contrast ratio of two relative luminances, and of two colours, as WCAG defines it.
inline double contrast(double a, double b)
{
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

inline double contrast(const QColor &a, const QColor &b)
{
    return contrast(Art::luminance(a.rgb()), Art::luminance(b.rgb()));
}
