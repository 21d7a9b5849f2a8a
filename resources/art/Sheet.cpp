// Rasters made from finished pictures: the icon at launcher sizes, and a contact sheet of
// everything for looking the sets over.
#include "Art.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

namespace Art {

QImage renderFilled(const QString &file, QSize size)
{
    QImage out(size, QImage::Format_ARGB32_Premultiplied);
    out.fill(Qt::transparent);
    QPainter p(&out);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    QSizeF natural;
    QSvgRenderer svg;
    QImage raster;
    if (file.endsWith(QLatin1String(".svg"))) {
        if (!svg.load(file))
            return {};
        natural = svg.viewBoxF().size();
    } else {
        raster = QImageReader(file).read();
        if (raster.isNull())
            return {};
        natural = raster.size();
    }
    const double scale = std::max(size.width() / natural.width(), size.height() / natural.height());
    const QSizeF drawn = natural * scale;
    const QRectF target((size.width() - drawn.width()) / 2, (size.height() - drawn.height()) / 2,
                        drawn.width(), drawn.height());
    if (svg.isValid())
        svg.render(&p, target);
    else
        p.drawImage(target, raster);
    return out;
}

namespace {
void label(QPainter &p, const QRectF &box, const QString &text)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    p.setFont(font);
    p.setPen(QColor(0x33, 0x33, 0x33));
    p.drawText(box, Qt::AlignHCenter | Qt::AlignTop, text);
}
}

bool writeIcons(const QString &svgFile, const QString &directory, const QList<int> &sizes)
{
    QSvgRenderer renderer(svgFile);
    if (!renderer.isValid())
        return false;
    for (const int size : sizes) {
        // Drawn four times larger and reduced, which keeps the smallest sizes crisp yet smooth.
        QImage big(size * 4, size * 4, QImage::Format_ARGB32_Premultiplied);
        big.fill(Qt::transparent);
        QPainter p(&big);
        p.setRenderHint(QPainter::Antialiasing);
        renderer.render(&p, QRectF(0, 0, size * 4, size * 4));
        p.end();
        const QImage icon = big.scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                .convertToFormat(QImage::Format_ARGB32);
        const QString dir = QDir(directory).filePath(QStringLiteral("%1x%1/apps").arg(size));
        QDir().mkpath(dir);
        if (!icon.save(QDir(dir).filePath(QStringLiteral("larkwells.png"))))
            return false;
    }
    return true;
}

bool writeContactSheet(const QString &bundleDirectory, const QString &outFile)
{
    const QDir dir(bundleDirectory);
    auto find = [&](const QString &name) {
        for (const char *type : {"svg", "png", "jpg"}) {
            const QString path = dir.filePath(name + u'.' + QLatin1String(type));
            if (QFileInfo::exists(path))
                return path;
        }
        return QString();
    };
    const int pageW = 150, pageH = 225, pageCellW = 162, pageCellH = 246;
    const int stripW = 336, stripH = 56, stripCellW = 352, stripCellH = 80;
    const int margin = 24;
    const int coverW = 500, coverH = 750;
    const int width = margin * 2 + std::max(7 * pageCellW + 30 + coverW, 5 * stripCellW);
    const int height = margin * 2 + std::max(5 * pageCellH, coverH + 20) + 20 + 7 * stripCellH;
    QImage sheet(width, height, QImage::Format_RGB32);
    sheet.fill(QColor(0xf4, 0xf4, 0xf2));
    QPainter p(&sheet);
    p.setRenderHint(QPainter::Antialiasing);
    bool complete = true;
    auto place = [&](const QString &name, QRect box) {
        const QString path = find(name);
        const QImage picture = path.isEmpty() ? QImage() : renderFilled(path, box.size());
        if (picture.isNull()) {
            complete = false;
            p.fillRect(box, Qt::red);
        } else {
            p.drawImage(box.topLeft(), picture);
        }
        p.setPen(QColor(0, 0, 0, 60));
        p.setBrush(Qt::NoBrush);
        p.drawRect(QRectF(box).adjusted(-0.5, -0.5, 0.5, 0.5));
        label(p, QRectF(box.left() - 10, box.bottom() + 3, box.width() + 20, 18), name);
    };
    for (int i = 0; i < 35; ++i)
        place(QStringLiteral("Page%1").arg(i + 1),
              QRect(margin + (i % 7) * pageCellW, margin + (i / 7) * pageCellH, pageW, pageH));
    place(QStringLiteral("Cover"), QRect(margin + 7 * pageCellW + 30, margin, coverW, coverH));
    const int stripsTop = margin + std::max(5 * pageCellH, coverH + 20) + 20;
    for (int i = 0; i < 35; ++i)
        place(QStringLiteral("AM-%1").arg(i + 36),
              QRect(margin + (i % 5) * stripCellW, stripsTop + (i / 5) * stripCellH, stripW, stripH));
    p.end();
    return sheet.save(outFile) && complete;
}

} // namespace Art
