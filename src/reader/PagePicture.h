#pragma once

#include <QImage>
#include <QString>

class ReaderAppearance;

// A page as the reader shows it (its text in the reader's font, size and colour, over the
// wallpaper) drawn as a picture 1080 pixels wide and as tall as the text needs: a phone-width
// reader drawn three times over.
namespace PagePicture {

constexpr int width = 1080;

QImage render(const QString &text, const ReaderAppearance &appearance);

// Writes the picture as a PNG file named after `title` in the temporary folder; the file's
// path, or empty when it could not be written.
QString writePng(const QImage &picture, const QString &title);

}
