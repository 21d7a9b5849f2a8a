#include "Appearance.h"

#include "Bundle.h"
#include "Fonts.h"
#include "PreferenceKeys.h"
#include "Wallpapers.h"

#include <QGuiApplication>
#include <QPalette>

void ReaderAppearance::drawWallpaper(int firstBound)
{
    m_ViewerRandomNumberGen = Wallpapers::draw(Wallpapers::ViewerWallpaper(), firstBound, m_ViewerRandomNumberGen);
}

void ReaderAppearance::read(double defaultFontSize)
{
    m_useWallpaper = Preferences::integerIfPresent(PreferenceKeys::useWallpaper);
    m_FontName = Preferences::stringOrAbsent(PreferenceKeys::FontName);
    m_textColor = Preferences::integerIfPresent(PreferenceKeys::textColor).value_or(0);
    m_ReaderFontSize = Preferences::doubleIfPresent(PreferenceKeys::ReaderFontSize).value_or(defaultFontSize);
    if (m_useWallpaper == 1)
        m_wallpaper = Bundle::main().imageUrl(Wallpapers::ViewerWallpaper().value(m_ViewerRandomNumberGen));
    m_NightReading = Preferences::boolForKey(PreferenceKeys::NightReading);
    m_night = m_NightReading && desktopIsDark();
    Q_EMIT changed();
    Q_EMIT fontSizeChanged(); // the stepper shows the stored size, styled text or not
}

bool ReaderAppearance::applyTextColor()
{
    const auto color = textColorFor(m_textColor);
    if (!color)
        return false;
    Fonts::requireKnown(m_FontName);
    setStyle(true, *color);
    return true;
}

void ReaderAppearance::setStyle(bool styled, const QColor &color)
{
    m_styled = styled;
    m_shownTextColor = color;
    m_fontSize = styled ? m_ReaderFontSize : 15.0;
    Q_EMIT changed();
    Q_EMIT fontSizeChanged();
}

void ReaderAppearance::ChangeFontSize(double value)
{
    if (value > m_ReaderFontSize)
        m_fontSize += 1;
    else if (value < m_ReaderFontSize)
        m_fontSize -= 1;
    m_ReaderFontSize = value;
    Preferences::write(PreferenceKeys::ReaderFontSize, value);
    Q_EMIT fontSizeChanged();
}

void ReaderAppearance::stepShownSize(int delta)
{
    m_fontSize += delta;
    Q_EMIT fontSizeChanged();
}

void ReaderAppearance::HandlePinch(double scale)
{
    m_zoom *= scale;
    Q_EMIT zoomChanged();
}

void ReaderAppearance::setNightPage(bool nightPage)
{
    m_night = m_NightReading && (nightPage || desktopIsDark());
    Q_EMIT changed();
}

QColor ReaderAppearance::nightTextColor() const
{
    // Follows the colour the text is shown in (a marked search page is black whatever is stored).
    if (m_shownTextColor == textColorFor(1))
        return QColor(0xf4, 0xc8, 0xf4);
    if (m_shownTextColor == textColorFor(2))
        return QColor(0xff, 0xcc, 0xc4);
    if (m_shownTextColor == textColorFor(3))
        return QColor(0xcc, 0xda, 0xff);
    return QColor(0xee, 0xe8, 0xdc); // a warm paper white
}

QColor ReaderAppearance::nightSurfaceColor() const
{
    return QColor(0x14, 0x16, 0x1b);
}

void ListAppearance::drawWallpaper()
{
    m_PMRandomNumberGen = Wallpapers::draw(Wallpapers::PMWallpaper(), 34, m_PMRandomNumberGen);
}

void ListAppearance::read()
{
    m_ListFontName = Preferences::stringOrAbsent(PreferenceKeys::ListFontName);
    m_ListFontSize = Preferences::doubleOrAbsent(PreferenceKeys::ListFontSize);
    m_ListWallpaperVisible = Preferences::integerOrAbsent(PreferenceKeys::ListWallpaperVisible);
    Q_EMIT changed();
}

void ListAppearance::setListFontSize(double size)
{
    m_ListFontSize = size;
    Q_EMIT changed();
}

QUrl ListAppearance::wallpaper() const
{
    if (m_ListWallpaperVisible != 1)
        return {};
    return Bundle::main().imageUrl(Wallpapers::PMWallpaper().value(m_PMRandomNumberGen));
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

bool desktopIsDark()
{
    // Qt 6.4 has no colour-scheme hint; the platform theme's palette says the same.
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}
