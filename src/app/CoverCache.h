#pragma once

#include <QImage>
#include <QQuickImageProvider>
#include <QSize>
#include <QString>
#include <mutex>

// The cover drawn once at the size the window shows it, kept as a picture under the data folder
// ("cache/"), so that later launches decode one small picture instead of drawing the vector
// cover. One picture is kept, named by its size, the screen's scale and the application version.
// It is kept as its bare pixels: reading them back needs no decoder, and no probing of the
// image plugins, which a format they do not claim sets off.
namespace CoverCache {
// The size in pixels the cover is drawn at for a window of this size (in its own units) and
// scale: as much as the window shows of it upright or turned, never more than the picture's own
// 1200 × 1800.
QSize pixelSize(QSizeF windowSize, qreal scale);
// Where the picture of this size in pixels for a screen of this scale is kept.
QString path(QSize pixelSize, qreal scale);
// Starts drawing the picture of this size on another thread when it is neither kept nor being
// drawn: a launch starts it before it builds its screens. Once drawn, it is kept on disk when
// `keepDrawn` is called (the cover is on screen), or a second later.
void drawAhead(QSize pixelSize, qreal scale);
// Lets the picture drawn ahead be written to disk.
void keepDrawn();
// The picture drawn ahead for `path` once it is drawn, perhaps before it is kept, or drawn on
// the spot when the drawing ahead is slow; handed over once. A null image when nothing is being
// drawn for `path`, or it could not be drawn.
QImage takeDrawn(const QString &path);
// Waits until the picture drawn ahead is kept on disk, writing it now if it is still held back.
void finishDrawing();
// Where QML finds a picture: "image://cover/" followed by the name of its file.
QUrl url(const QString &path);
// Draws the vector cover file into a picture at `path` and removes the pictures of other sizes;
// false when nothing could be kept. Runs on any thread.
bool draw(const QString &vectorCover, const QString &path, QSize pixelSize);
// The picture kept at `path`; a null image when the file is missing or not a kept picture.
QImage read(const QString &path);
// The vector cover of the bundle, as a file name QSvgRenderer reads; empty when it has none.
QString vectorCover();

// Serves "image://cover/<file name>": a picture handed over, or the one kept in the cache folder;
// a picture found damaged is drawn again at the size asked for.
class ImageProvider : public QQuickImageProvider
{
public:
    ImageProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}
    // Served once under this name in place of reading the file, which may not be written yet.
    void handOver(const QString &id, const QImage &image);
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

private:
    std::mutex m_lock;
    QString m_handedOverId;
    QImage m_handedOver;
};
}
