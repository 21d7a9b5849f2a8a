#include "CellBackground.h"

#include "CoveringPicture.h"

#include <QCache>
#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>

CellBackground::CellBackground(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void CellBackground::setWallpaper(const QUrl &wallpaper)
{
    if (wallpaper == m_wallpaper)
        return;
    m_wallpaper = wallpaper;
    Q_EMIT wallpaperChanged();
    update();
}

void CellBackground::setPressed(bool pressed)
{
    if (pressed == m_pressed)
        return;
    m_pressed = pressed;
    Q_EMIT pressedChanged();
    update();
}

QImage CellBackground::croppedWallpaper(const QSize &size) const
{
    // Every row of a list shows the same picture at the same size: render it once.
    static QCache<QString, QImage> cache(64 * 1024 * 1024);
    const QString key = m_wallpaper.toString() + u'@' + QString::number(size.width()) + u'x' + QString::number(size.height());
    if (const QImage *cached = cache.object(key))
        return *cached;
    QImage image = CoveringPicture::render(m_wallpaper, size);
    cache.insert(key, new QImage(image), int(image.sizeInBytes()));
    return image;
}

void CellBackground::paint(QPainter *painter)
{
    const qreal inset = borderWidth / 2;
    const QRectF card = boundingRect().adjusted(inset, inset, -inset, -inset);
    QPainterPath shape;
    shape.addRoundedRect(card, cornerRadius, cornerRadius);
    painter->setRenderHint(QPainter::Antialiasing);

    painter->fillPath(shape, cellColor());
    if (!m_wallpaper.isEmpty()) {
        const qreal ratio = window() ? window()->effectiveDevicePixelRatio() : 1.0;
        QImage image = croppedWallpaper((size() * ratio).toSize());
        image.setDevicePixelRatio(ratio);
        painter->save();
        painter->setClipPath(shape);
        painter->drawImage(QPointF(0, 0), image);
        painter->restore();
    }
    if (m_pressed)
        painter->fillPath(shape, QColor(0, 0, 0, 28));
    painter->setPen(QPen(Qt::black, borderWidth));
    painter->drawPath(shape);
}
