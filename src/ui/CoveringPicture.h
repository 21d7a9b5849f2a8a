#pragma once

#include <QImage>
#include <QQuickImageProvider>
#include <QSize>
#include <QUrl>

class QQmlEngine;

// A picture scaled to cover a size and cut to it from its middle: how a list row shows its
// wallpaper. It is drawn at the size shown, so a wide band costs only the part on screen.
namespace CoveringPicture {

// The picture at `url` (a qrc: or file: URL) covering `size`; a null image when it cannot be read.
QImage render(const QUrl &url, QSize size);

// Serves "image://covering/<bundle picture name>" at the size asked for, on the image loader's
// thread; nothing is drawn for a picture asked for at no size.
class ImageProvider : public QQuickImageProvider
{
public:
    ImageProvider() : QQuickImageProvider(QQuickImageProvider::Image, ForceAsynchronousImageLoading) {}
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

// Gives the engine the provider, once.
void install(QQmlEngine *engine);

}
