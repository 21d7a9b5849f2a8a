#include "CoveringPicture.h"

#include "Bundle.h"

#include <QPainter>
#include <QQmlEngine>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace {
QString localPath(const QUrl &url)
{
    return url.scheme() == u"qrc"_s ? u':' + url.path() : url.toLocalFile();
}
}

QImage CoveringPicture::render(const QUrl &url, QSize size)
{
    const QString path = localPath(url);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (path.endsWith(u".svg"_s)) {
        QSvgRenderer renderer(path);
        const QSizeF natural = renderer.defaultSize();
        if (natural.isEmpty())
            return {};
        const qreal scale = qMax(size.width() / natural.width(), size.height() / natural.height());
        const QSizeF drawn = natural * scale;
        renderer.render(&painter, QRectF(QPointF((size.width() - drawn.width()) / 2, (size.height() - drawn.height()) / 2), drawn));
    } else {
        const QImage source(path);
        if (source.isNull())
            return {};
        const QImage scaled = source.scaled(size, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
        painter.drawImage(QPoint((size.width() - scaled.width()) / 2, (size.height() - scaled.height()) / 2), scaled);
    }
    return image;
}

QImage CoveringPicture::ImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QImage image = requestedSize.isEmpty() ? QImage() : render(Bundle::main().imageUrl(id), requestedSize);
    if (size)
        *size = image.size();
    return image;
}

void CoveringPicture::install(QQmlEngine *engine)
{
    if (engine && !engine->imageProvider(u"covering"_s))
        engine->addImageProvider(u"covering"_s, new ImageProvider);
}
