#include "CoverCache.h"

#include "Bundle.h"
#include "PersistentContainer.h"

#include <QDir>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace {
const QString prefix = u"Cover-"_s;

void removeOthers(QDir folder, const QString &kept)
{
    for (const QString &name : folder.entryList({prefix + u'*'}, QDir::Files)) {
        if (name != kept)
            folder.remove(name);
    }
}
}

QString CoverCache::path(QSize pixelSize, qreal scale)
{
    const QString name = prefix + u"%1x%2-scale%3-%4.ppm"_s.arg(pixelSize.width()).arg(pixelSize.height()).arg(scale).arg(Bundle::main().version());
    return QDir(PersistentContainer::defaultDirectory()).filePath(u"cache/"_s + name);
}

bool CoverCache::draw(const QString &vectorCover, const QString &path, QSize pixelSize)
{
    QSvgRenderer renderer(vectorCover);
    const QFileInfo target(path);
    if (pixelSize.isEmpty() || !renderer.isValid() || !QDir().mkpath(target.path()))
        return false;
    QImage image(pixelSize, QImage::Format_RGB32);
    image.fill(Qt::black);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter);
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    // Uncompressed: read back in a fifth of the time a PNG takes, and a cover hardly compresses.
    QImageWriter writer(&file, "ppm");
    if (!writer.write(image) || !file.commit())
        return false;
    removeOthers(target.dir(), target.fileName());
    return true;
}
