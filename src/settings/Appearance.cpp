#include "Appearance.h"

#include "UserDefaults.h"

using namespace Qt::StringLiterals;

ReaderAppearance ReaderAppearance::read(double defaultFontSize)
{
    ReaderAppearance appearance;
    appearance.useWallpaper = Preferences::integerIfPresent(u"useWallpaper"_s);
    appearance.FontName = Preferences::stringIfPresent(u"FontName"_s).value_or(u"Arial"_s);
    appearance.textColor = Preferences::integerIfPresent(u"textColor"_s);
    appearance.ReaderFontSize = Preferences::doubleIfPresent(u"ReaderFontSize"_s).value_or(defaultFontSize);
    return appearance;
}

ListAppearance ListAppearance::read()
{
    ListAppearance appearance;
    appearance.ListFontName = Preferences::stringIfPresent(u"ListFontName"_s).value_or(u"Arial"_s);
    appearance.ListFontSize = Preferences::doubleIfPresent(u"ListFontSize"_s).value_or(15.0);
    appearance.ListWallpaperVisible = Preferences::integerIfPresent(u"ListWallpaperVisible"_s).value_or(0);
    return appearance;
}

std::optional<QColor> textColorFor(qint64 code)
{
    switch (code) {
    case 0: return QColor(Qt::black);
    case 1: return QColor(Qt::magenta);
    case 2: return QColor(Qt::red);
    case 3: return QColor(Qt::blue);
    default: return std::nullopt;
    }
}
