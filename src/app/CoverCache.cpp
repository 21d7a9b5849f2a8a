#include "CoverCache.h"

#include "Bundle.h"
#include "PersistentContainer.h"

#include <QDir>
#include <QPainter>
#include <QSaveFile>
#include <QSemaphore>
#include <QSvgRenderer>
#include <QThread>
#include <QThreadPool>
#include <chrono>
#include <cstring>
#include <future>
#include <memory>
#include <mutex>

using namespace Qt::StringLiterals;

namespace {
const QString prefix = u"Cover-"_s;
// A kept picture: this mark, its width and height (32 bits each, in the machine's order), then
// its rows of 32-bit pixels without padding.
constexpr char mark[4] = {'L', 'W', 'C', '1'};
constexpr qint64 headerSize = sizeof mark + 2 * sizeof(qint32);

QString folder()
{
    return QDir(PersistentContainer::defaultDirectory()).filePath(u"cache"_s);
}

void removeOthers(QDir folder, const QString &kept)
{
    for (const QString &name : folder.entryList({prefix + u'*'}, QDir::Files)) {
        if (name != kept)
            folder.remove(name);
    }
}

QImage paint(const QString &vectorCover, QSize pixelSize)
{
    QSvgRenderer renderer(vectorCover);
    if (pixelSize.isEmpty() || !renderer.isValid())
        return {};
    QImage image(pixelSize, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return image;
}

// Painted on a thread of Qt's global pool: from any other thread, large fills are handed out to
// the pool in pieces and waited for, which on a phone's few cores costs more processor time than
// it saves (the cover at 610 x 915: about 9.3 ms in pieces, 7 ms whole).
QImage render(const QString &vectorCover, QSize pixelSize)
{
    QThreadPool *pool = QThreadPool::globalInstance();
    if (pool->contains(QThread::currentThread()))
        return paint(vectorCover, pixelSize);
    QImage image;
    QSemaphore painted;
    pool->start([&] {
        image = paint(vectorCover, pixelSize);
        painted.release();
    });
    painted.acquire();
    return image;
}

bool keep(const QImage &image, const QString &path)
{
    const QFileInfo target(path);
    if (image.isNull() || !QDir().mkpath(target.path()))
        return false;
    QSaveFile file(path);
    const qint32 size[2] = {image.width(), image.height()};
    // Uncompressed: read back in a fifth of the time a PNG takes, and a cover hardly compresses.
    if (!file.open(QIODevice::WriteOnly) || file.write(mark, sizeof mark) != sizeof mark
        || file.write(reinterpret_cast<const char *>(size), sizeof size) != sizeof size
        || file.write(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes()) != image.sizeInBytes()
        || !file.commit())
        return false;
    removeOthers(target.dir(), target.fileName());
    return true;
}

// The one picture being drawn ahead: handed over once when drawn, then kept on disk. Quitting
// waits for the keeping (the future of std::async does), so no torn file is left.
struct Drawing {
    QString path, vectorCover;
    QSize pixelSize;
    std::future<QImage> drawn;
    std::future<bool> kept;
    std::shared_ptr<std::promise<void>> shown;
};
std::mutex drawingLock;

Drawing &drawing()
{
    static Drawing ahead;
    return ahead;
}
}

QSize CoverCache::pixelSize(QSizeF windowSize, qreal scale)
{
    const QSizeF natural(1200, 1800);
    const qreal shorter = std::min(windowSize.width(), windowSize.height());
    const qreal longer = std::max(windowSize.width(), windowSize.height());
    // Upright the cover fills the window, its sides cropped; turned it fits, and needs no more.
    const qreal fill = std::max(shorter / natural.width(), longer / natural.height());
    return (natural * std::min(1.0, fill * scale)).toSize();
}

QString CoverCache::path(QSize pixelSize, qreal scale)
{
    const QString name = prefix + u"%1x%2-scale%3-%4.pixels"_s.arg(pixelSize.width()).arg(pixelSize.height()).arg(scale).arg(Bundle::main().version());
    return QDir(folder()).filePath(name);
}

bool CoverCache::draw(const QString &vectorCover, const QString &path, QSize pixelSize)
{
    return keep(render(vectorCover, pixelSize), path);
}

void CoverCache::drawAhead(QSize pixelSize, qreal scale)
{
    const QString target = path(pixelSize, scale);
    const std::lock_guard lock(drawingLock);
    Drawing &ahead = drawing();
    if (pixelSize.isEmpty() || ahead.path == target || QFile::exists(target))
        return;
    // Looked up only now: a kept picture leaves the bundle's cover untouched, unread and unmapped.
    const QString file = vectorCover();
    if (file.isEmpty()) // without a cover in the bundle there is nothing to draw ahead
        return;
    auto drawn = std::make_shared<std::promise<QImage>>();
    ahead.shown = std::make_shared<std::promise<void>>();
    ahead.path = target;
    ahead.vectorCover = file;
    ahead.pixelSize = pixelSize;
    ahead.drawn = drawn->get_future();
    ahead.kept = std::async(std::launch::async, [drawn, shown = ahead.shown->get_future(), file, target, pixelSize] {
        const QImage image = render(file, pixelSize);
        drawn->set_value(image);
        // Written once the cover is on screen: the launch needs the picture, not the file. A
        // window that never shows holds the file back a second at most.
        shown.wait_for(std::chrono::seconds(1));
        return keep(image, target);
    });
}

void CoverCache::keepDrawn()
{
    const std::lock_guard lock(drawingLock);
    if (auto shown = std::exchange(drawing().shown, nullptr))
        shown->set_value();
}

QImage CoverCache::takeDrawn(const QString &path)
{
    std::future<QImage> drawn;
    QString file;
    QSize size;
    {
        const std::lock_guard lock(drawingLock);
        Drawing &ahead = drawing();
        if (ahead.path != path || !ahead.drawn.valid())
            return {};
        drawn = std::move(ahead.drawn);
        file = ahead.vectorCover;
        size = ahead.pixelSize;
    }
    // The pool may be busy with other work: the drawing is waited for a fifth of a second at
    // most, and then painted here, whatever the pieces cost.
    if (drawn.wait_for(std::chrono::milliseconds(200)) != std::future_status::ready)
        return paint(file, size);
    return drawn.get();
}

void CoverCache::finishDrawing()
{
    keepDrawn();
    const std::lock_guard lock(drawingLock);
    if (drawing().kept.valid())
        drawing().kept.wait();
}

QUrl CoverCache::url(const QString &path)
{
    return QUrl(u"image://cover/"_s + QFileInfo(path).fileName());
}

QImage CoverCache::read(const QString &path)
{
    auto file = std::make_unique<QFile>(path);
    char header[headerSize];
    if (!file->open(QIODevice::ReadOnly) || file->read(header, headerSize) != headerSize || memcmp(header, mark, sizeof mark) != 0)
        return {};
    qint32 size[2];
    memcpy(size, header + sizeof mark, sizeof size);
    const qint64 bytes = qint64(size[0]) * size[1] * 4;
    if (size[0] <= 0 || size[1] <= 0 || file->size() != headerSize + bytes)
        return {};
    // Shown where it lies, mapped rather than read: nothing is copied, and the pixels stay the
    // file's, for the system to drop and read again. Kept files are replaced, never rewritten,
    // so a mapped picture never changes under the screen.
    const uchar *pixels = file->map(headerSize, bytes);
    if (!pixels)
        return {};
    const QImage image(pixels, size[0], size[1], size[0] * 4, QImage::Format_RGB32,
                       [](void *mapped) { delete static_cast<QFile *>(mapped); }, file.get());
    if (!image.isNull())
        file.release(); // the image unmaps and closes it when its last copy goes
    return image;
}

QString CoverCache::vectorCover()
{
    const QUrl vector = Bundle::main().imageUrl(u"Cover"_s);
    return vector.scheme() == u"qrc"_s ? u':' + vector.path() : vector.toLocalFile();
}

void CoverCache::ImageProvider::handOver(const QString &id, const QImage &image)
{
    const std::lock_guard lock(m_lock);
    m_handedOverId = id;
    m_handedOver = image;
}

QImage CoverCache::ImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QString path = QDir(folder()).filePath(id);
    QImage image;
    {
        const std::lock_guard lock(m_lock);
        if (id == m_handedOverId) {
            image = std::exchange(m_handedOver, {});
            m_handedOverId.clear();
        }
    }
    if (image.isNull())
        image = read(path);
    if (image.isNull() && !requestedSize.isEmpty() && draw(vectorCover(), path, requestedSize))
        image = read(path);
    if (size)
        *size = image.size();
    return image;
}
