#pragma once

#include <QImage>
#include <QQuickImageProvider>
#include <QSize>
#include <QString>

// The cover drawn once at the size the screen shows it, kept as a picture under the data folder
// ("cache/"), so that later launches decode one small picture instead of drawing the vector
// cover. One picture is kept, named by its size, the screen's scale and the application version.
// It is kept as its bare pixels: reading them back needs no decoder, and no probing of the
// image plugins, which a format they do not claim sets off.
namespace CoverCache {

// Where the picture of this size in pixels for a screen of this scale is kept.
QString path(QSize pixelSize, qreal scale);
// Draws the vector cover file into a picture at `path` and removes the pictures of other sizes;
// false when nothing could be kept. Runs on any thread.
bool draw(const QString &vectorCover, const QString &path, QSize pixelSize);
// The picture kept at `path`; a null image when the file is missing or not a kept picture.
QImage read(const QString &path);
// Where QML finds a kept picture: "image://cover/" followed by the name of its file.
QUrl url(const QString &path);
// The vector cover of the bundle, as a file name QSvgRenderer reads; empty when it has none.
QString vectorCover();

// Serves "image://cover/<file name>" from the cache folder; a picture found damaged is drawn
// again at the size asked for.
class ImageProvider : public QQuickImageProvider
{
public:
    ImageProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

}
