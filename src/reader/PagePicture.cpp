#include "PagePicture.h"

#include "Appearance.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextOption>

using namespace Qt::StringLiterals;

namespace {
// The reader's width on a phone, and its margins around the text (as ReaderSurface lays it out).
constexpr qreal readerWidth = 360;
constexpr qreal scale = PagePicture::width / readerWidth;
constexpr qreal sidePadding = 20;
constexpr qreal topPadding = 8;
constexpr qreal bottomPadding = 48;
const QColor readerBackground(u"lightgrey"_s); // the reader's own background

QString localPath(const QUrl &url)
{
    return url.scheme() == u"qrc"_s ? u":"_s + url.path() : url.toLocalFile();
}

// The wallpaper scaled to cover the whole picture and cropped about its centre.
void drawWallpaper(QPainter &painter, const QUrl &wallpaper, const QSize &size)
{
    if (wallpaper.isEmpty())
        return;
    QImageReader reader(localPath(wallpaper));
    const QSize original = reader.size();
    if (original.isEmpty())
        return;
    const QSize covering = original.scaled(size, Qt::KeepAspectRatioByExpanding);
    reader.setScaledSize(covering);
    const QImage image = reader.read();
    if (image.isNull())
        return;
    const QPoint offset((covering.width() - size.width()) / 2, (covering.height() - size.height()) / 2);
    painter.drawImage(QPoint(0, 0), image, QRect(offset, size));
}

void layOut(QTextDocument &document, const QString &text, const ReaderAppearance &appearance)
{
    QFont font(appearance.styled() ? appearance.FontName() : QGuiApplication::font().family());
    font.setPixelSize(qRound(appearance.fontSize()));
    document.setDefaultFont(font);
    QTextOption option(appearance.styled() ? Qt::AlignHCenter : Qt::AlignLeft);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document.setDefaultTextOption(option);
    document.setDocumentMargin(0);
    document.setPlainText(text);
    document.setTextWidth(readerWidth - 2 * sidePadding);
}
}

namespace PagePicture {

QImage render(const QString &text, const ReaderAppearance &appearance)
{
    QTextDocument document;
    layOut(document, text, appearance);
    const int height = qCeil((topPadding + document.size().height() + bottomPadding) * scale);
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(readerBackground);

    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    drawWallpaper(painter, appearance.wallpaper(), picture.size());
    painter.scale(scale, scale);
    painter.translate(sidePadding, topPadding);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, appearance.shownTextColor());
    document.documentLayout()->draw(&painter, context);
    return picture;
}

QString writePng(const QImage &picture, const QString &title)
{
    QString name = title.simplified();
    name.replace(QRegularExpression(u"[/\\\\:*?\"<>|]"_s), u"-"_s);
    const QString path = QDir::temp().filePath((name.isEmpty() ? u"The Larkwells Book"_s : name) + u".png"_s);
    return picture.save(path, "PNG") ? path : QString();
}

}
