#pragma once

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QUrl>
#include <optional>

// How a reader shows its text: the reader font, size and colour and the wallpaper behind it,
// read from the preferences when the screen loads. Every reader screen owns one and hands it
// to its ReaderSurface. A present setting of the wrong type is a fatal stop.
class ReaderAppearance : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Each reader screen owns its appearance")
    Q_PROPERTY(QString FontName READ FontName NOTIFY changed)
    Q_PROPERTY(bool styled READ styled NOTIFY changed)
    Q_PROPERTY(QColor shownTextColor READ shownTextColor NOTIFY changed)
    Q_PROPERTY(QUrl wallpaper READ wallpaper NOTIFY changed)
    Q_PROPERTY(double ReaderFontSize READ ReaderFontSize NOTIFY fontSizeChanged)
    Q_PROPERTY(double fontSize READ fontSize NOTIFY fontSizeChanged)
    Q_PROPERTY(double zoom READ zoom NOTIFY zoomChanged)
    Q_PROPERTY(bool night READ night NOTIFY changed)
    Q_PROPERTY(QColor nightTextColor READ nightTextColor NOTIFY changed)
    Q_PROPERTY(QColor nightSurfaceColor READ nightSurfaceColor CONSTANT)
    Q_PROPERTY(double wallpaperDim READ wallpaperDim CONSTANT)

public:
    using QObject::QObject;

    // Draws the wallpaper index: a first draw in 0..firstBound-1, redraws in 0..33.
    void drawWallpaper(int firstBound);
    // Reads the settings; `defaultFontSize` is the size this reader assumes when none is stored.
    void read(double defaultFontSize = 15.0);
    // Styles the text in the stored colour when its code is 0..3 (checking the font is known)
    // and says whether it did; another code leaves the text unstyled.
    bool applyTextColor();
    // Shows the text in `color` with the reader font, or, when not styled, in the plain look.
    void setStyle(bool styled, const QColor &color = Qt::black);

    // The size stepper moved to `value`: the shown text moves one point towards it, and the
    // value is stored as the reader size.
    void ChangeFontSize(double value);
    // The shown text one point larger or smaller; nothing is stored.
    void stepShownSize(int delta);
    void HandlePinch(double scale);
    // With Night Reading on, a night page, or any page while the desktop is dark, is shown in
    // the night look; the stored colour stays as it is.
    void setNightPage(bool nightPage);

    QString FontName() const { return m_FontName; }
    bool styled() const { return m_styled; }
    // The colour the text is shown in.
    QColor shownTextColor() const { return m_shownTextColor; }
    QUrl wallpaper() const { return m_wallpaper; }
    double ReaderFontSize() const { return m_ReaderFontSize; }
    double fontSize() const { return m_fontSize; }
    double zoom() const { return m_zoom; }
    int ViewerRandomNumberGen() const { return m_ViewerRandomNumberGen; }
    std::optional<qint64> useWallpaper() const { return m_useWallpaper; }
    // The stored colour code; 0 when none is stored.
    qint64 textColor() const { return m_textColor; }
    bool night() const { return m_night; }
    // The light counterpart of the stored colour, read on the night surface.
    QColor nightTextColor() const;
    QColor nightSurfaceColor() const;
    // How strongly the night surface covers the wallpaper (its opacity over the picture).
    double wallpaperDim() const { return 0.85; }

Q_SIGNALS:
    void changed();
    void fontSizeChanged();
    void zoomChanged();

private:
    int m_ViewerRandomNumberGen = 0;
    std::optional<qint64> m_useWallpaper;
    qint64 m_textColor = 0;
    QString m_FontName;
    bool m_styled = false;
    QColor m_shownTextColor = Qt::black;
    QUrl m_wallpaper;
    double m_ReaderFontSize = 0;
    double m_fontSize = 15.0; // the size the text is shown at
    double m_zoom = 1.0;
    bool m_NightReading = false;
    bool m_night = false;
};

// How a list shows its rows: the list font and size and, when rows show one, the list
// wallpaper, read from the preferences when the screen loads.
class ListAppearance : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Each list screen owns its appearance")
    Q_PROPERTY(QString ListFontName READ ListFontName NOTIFY changed)
    Q_PROPERTY(double ListFontSize READ ListFontSize NOTIFY changed)
    Q_PROPERTY(int ListWallpaperVisible READ ListWallpaperVisible NOTIFY changed)
    Q_PROPERTY(QUrl wallpaper READ wallpaper NOTIFY changed)

public:
    using QObject::QObject;

    // Draws the list wallpaper index (0..33; the last name is never drawn).
    void drawWallpaper();
    void read();
    // A list drawn at a fixed size whatever the list size setting.
    void setListFontSize(double size);

    QString ListFontName() const { return m_ListFontName; }
    double ListFontSize() const { return m_ListFontSize; }
    int ListWallpaperVisible() const { return int(m_ListWallpaperVisible); }
    int PMRandomNumberGen() const { return m_PMRandomNumberGen; }
    // The wallpaper behind every row, when rows show one.
    QUrl wallpaper() const;

Q_SIGNALS:
    void changed();

private:
    int m_PMRandomNumberGen = 0;
    QString m_ListFontName;
    double m_ListFontSize = 15.0;
    qint64 m_ListWallpaperVisible = 0;
};

// The colour of a text colour code (0 black, 1 magenta, 2 red, 3 blue: the standard colours of
// those names); none for a code outside 0..3.
std::optional<QColor> textColorFor(qint64 code);

// Whether the desktop is in a dark colour scheme: its window colour is dark.
bool desktopIsDark();
