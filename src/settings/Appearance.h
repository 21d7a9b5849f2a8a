#pragma once

#include <QColor>
#include <QString>
#include <optional>

// The reader's and the lists' appearance as the preferences hold it, read when a screen loads.
// A present value of the wrong type is a fatal stop; an absent one takes its default.
struct ReaderAppearance {
    std::optional<qint64> useWallpaper; // 1 shows a wallpaper
    QString FontName;                   // "Arial" when absent
    std::optional<qint64> textColor;    // 0 black, 1 magenta, 2 red, 3 blue
    double ReaderFontSize = 15.0;

    static ReaderAppearance read(double defaultFontSize = 15.0);
};

struct ListAppearance {
    QString ListFontName;          // "Arial" when absent
    double ListFontSize = 15.0;
    qint64 ListWallpaperVisible = 0; // 1 shows a wallpaper behind each row

    static ListAppearance read();
};

// The colour of a text colour code; none for a code outside 0..3.
std::optional<QColor> textColorFor(qint64 code);
