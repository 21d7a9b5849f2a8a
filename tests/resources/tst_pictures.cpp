// The shipped pictures, as the app finds them: complete sets under the right names, decodable
// through the bundle, light enough to read over, distinct, within budget; the cover and icon.
// Then the picture generator's tools that its drawings cannot show faults of: the luminance the
// picture checks measure with, the SVG paths it writes, the title font, and that what it draws
// now is what the bundle ships (which holds its random and noise sources to their seeds).
#include "TestSupport.h"

#include "Art.h"
#include "Bundle.h"
#include "Wallpapers.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QFontInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <QtTest>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {
// The colour the cover's edges fade into, and that the cover screen fills around it.
const QColor coverBackground(0x13, 0x20, 0x36);
constexpr double brightLuminance = 0.55;
constexpr double requiredBrightShare = 0.95;

QString localPath(const QUrl &url)
{
    return url.scheme() == u"qrc"_s ? u':' + url.path() : url.toLocalFile();
}

// Natural size: the SVG's view box or the raster's pixels; empty when it cannot be decoded.
QSizeF naturalSize(const QString &path)
{
    if (path.endsWith(u".svg"_s)) {
        QSvgRenderer svg(path);
        return svg.isValid() ? svg.viewBoxF().size() : QSizeF();
    }
    QImageReader reader(path);
    return reader.canRead() ? QSizeF(reader.size()) : QSizeF();
}

// Scaled to fill `size` and cropped about the centre, as the app's Image items show them.
QImage renderFilled(const QString &path, QSize size)
{
    QImage out(size, QImage::Format_ARGB32_Premultiplied);
    out.fill(Qt::magenta); // anything left unpainted counts against the picture
    const QSizeF natural = naturalSize(path);
    if (natural.isEmpty())
        return {};
    const double scale = std::max(size.width() / natural.width(), size.height() / natural.height());
    const QSizeF drawn = natural * scale;
    const QRectF target((size.width() - drawn.width()) / 2, (size.height() - drawn.height()) / 2,
                        drawn.width(), drawn.height());
    QPainter p(&out);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    if (path.endsWith(u".svg"_s)) {
        QSvgRenderer(path).render(&p, target);
    } else {
        const QImage image = QImageReader(path).read();
        if (image.isNull())
            return {};
        p.drawImage(target, image);
    }
    return out;
}

double brightShare(const QImage &image)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
    qint64 bright = 0;
    for (int y = 0; y < rgb.height(); ++y) {
        const QRgb *line = reinterpret_cast<const QRgb *>(rgb.constScanLine(y));
        for (int x = 0; x < rgb.width(); ++x)
            bright += Art::luminance(line[x]) >= brightLuminance;
    }
    return double(bright) / (qint64(rgb.width()) * rgb.height());
}

double meanDifference(const QImage &a, const QImage &b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
        }
    return sum / (3.0 * a.width() * a.height());
}

QString bundled(const QString &name)
{
    return localPath(Bundle::main().imageUrl(name));
}

QImage render(const QByteArray &svg, QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QSvgRenderer renderer(svg);
    QPainter p(&image);
    renderer.render(&p);
    return image;
}

int darkPixels(const QImage &image)
{
    return countPixels(image, [](QRgb p) { return qGray(p) < 128; });
}
}

class PicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_env.reset(new TestEnvironment); }
    void cleanup() { m_env.reset(); }

    // One picture for each name the app asks for, nothing else, and all of them within budget.
    void bundleHoldsEachPictureOnce()
    {
        QStringList known = Wallpapers::ViewerWallpaper() + Wallpapers::PMWallpaper();
        known << u"Cover"_s << u"Icon"_s;
        for (const QString &name : std::as_const(known))
            QVERIFY2(!Bundle::main().imageUrl(name).isEmpty(), qPrintable(name));
        int pictures = 0;
        qint64 total = 0;
        QDirIterator it(u":/bundle"_s, {u"*.svg"_s, u"*.png"_s, u"*.jpg"_s}, QDir::Files);
        while (it.hasNext()) {
            const QFileInfo file(it.next());
            QVERIFY2(known.contains(file.completeBaseName()), qPrintable(file.fileName()));
            ++pictures;
            total += file.size();
        }
        // One file per name: a second type of the same name would never be shown.
        QCOMPARE(pictures, known.size());
        QVERIFY2(total <= 12 * 1024 * 1024, qPrintable(QString::number(total)));
    }

    void pictureFillsItsPlaceAndStaysLight_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("reader"); // else a list band
        for (const QString &name : Wallpapers::ViewerWallpaper())
            QTest::newRow(qPrintable(name)) << name << true;
        for (const QString &name : Wallpapers::PMWallpaper())
            QTest::newRow(qPrintable(name)) << name << false;
    }
    void pictureFillsItsPlaceAndStaysLight()
    {
        QFETCH(QString, name);
        QFETCH(bool, reader);
        const QString path = bundled(name);
        const QSizeF natural = naturalSize(path);
        QVERIFY2(!natural.isEmpty(), "cannot be decoded");
        QList<QSize> sizes;
        if (reader) {
            QVERIFY(natural.height() > natural.width());
            if (!path.endsWith(u".svg"_s))
                QVERIFY2(natural.width() >= 1200 && natural.height() >= 1800, "too few pixels for a tablet");
            sizes = {QSize(600, 900), QSize(390, 780)};
        } else {
            QVERIFY2(natural.width() >= 4 * natural.height(), "not a wide band");
            // The whole band, a phone's row and a tablet's row.
            sizes = {(natural * (800 / natural.width())).toSize(), QSize(780, 130), QSize(1600, 130)};
        }
        for (const QSize size : std::as_const(sizes)) {
            const double share = brightShare(renderFilled(path, size));
            QVERIFY2(share >= requiredBrightShare, qPrintable(u"%1 bright at %2×%3"_s.arg(share).arg(size.width()).arg(size.height())));
        }
    }

    void noTwoPicturesAlike_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QSize>("thumbnail");
        QTest::newRow("reader") << Wallpapers::ViewerWallpaper() << QSize(60, 90);
        QTest::newRow("list") << Wallpapers::PMWallpaper() << QSize(192, 24);
    }
    void noTwoPicturesAlike()
    {
        QFETCH(QStringList, names);
        QFETCH(QSize, thumbnail);
        QList<QImage> thumbs;
        for (const QString &name : names)
            thumbs.append(renderFilled(bundled(name), thumbnail).convertToFormat(QImage::Format_RGB32));
        for (qsizetype i = 0; i < thumbs.size(); ++i)
            for (qsizetype j = i + 1; j < thumbs.size(); ++j)
                QVERIFY2(meanDifference(thumbs[i], thumbs[j]) > 1.0,
                         qPrintable(names[i] + u" looks like "_s + names[j]));
    }

    void coverIsPortraitWithEdgesOfTheBackground()
    {
        const QString path = bundled(u"Cover"_s);
        const QSizeF natural = naturalSize(path);
        QVERIFY2(!natural.isEmpty(), "no cover");
        QCOMPARE(natural.width() / natural.height(), 2.0 / 3.0);
        // Shown whole in wide windows, its left and right edges meet the background colour.
        const QImage cover = renderFilled(path, QSize(400, 600));
        for (const int x : {0, 399})
            for (int y = 0; y < 600; y += 25) {
                const QColor c = cover.pixelColor(x, y);
                QVERIFY2(std::abs(c.red() - coverBackground.red()) <= 6 && std::abs(c.green() - coverBackground.green()) <= 6
                             && std::abs(c.blue() - coverBackground.blue()) <= 6,
                         qPrintable(u"edge at %1,%2 is %3"_s.arg(x).arg(y).arg(c.name())));
            }
    }

    void iconIsBundledAndRasterised_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {16, 24, 32, 48, 64, 128, 192, 256, 512})
            QTest::newRow(qPrintable(QString::number(size))) << size;
    }
    void iconIsBundledAndRasterised()
    {
        QFETCH(int, size);
        const QSizeF svg = naturalSize(bundled(u"Icon"_s));
        QVERIFY(!svg.isEmpty());
        QCOMPARE(svg.width(), svg.height());
        const QImage png(u"%1/%2x%2/apps/larkwells.png"_s.arg(QStringLiteral(LARKWELLS_ICONS_DIR)).arg(size));
        QCOMPARE(png.size(), QSize(size, size));
        QCOMPARE(qAlpha(png.pixel(size / 2, size / 2)), 255);
    }

    void luminanceFollowsWcag_data()
    {
        QTest::addColumn<QRgb>("colour");
        QTest::addColumn<double>("expected");
        QTest::newRow("white") << qRgb(255, 255, 255) << 1.0;
        QTest::newRow("black") << qRgb(0, 0, 0) << 0.0;
        QTest::newRow("red") << qRgb(255, 0, 0) << 0.2126;
        QTest::newRow("green") << qRgb(0, 255, 0) << 0.7152;
        QTest::newRow("blue") << qRgb(0, 0, 255) << 0.0722;
        QTest::newRow("mid grey is darker than half") << qRgb(128, 128, 128) << 0.2159;
        QTest::newRow("low channel on the linear toe") << qRgb(10, 10, 10) << 0.003035;
    }
    void luminanceFollowsWcag()
    {
        QFETCH(QRgb, colour);
        QFETCH(double, expected);
        QVERIFY2(std::abs(Art::luminance(colour) - expected) < 1e-4, qPrintable(QString::number(Art::luminance(colour))));
    }

    void svgPathDrawsLikeThePainterPath()
    {
        // A ring: curves and a hole, which the written path must keep.
        QPainterPath ring;
        ring.addEllipse(QPointF(50, 50), 40, 40);
        ring.addEllipse(QPointF(50, 50), 20, 20);
        Art::Svg svg(100, 100);
        svg.add(u"<path fill-rule=\"evenodd\" fill=\"#000000\" d=\""_s + Art::pathData(ring) + u"\"/>"_s);
        const QImage drawn = render(svg.document(), QSize(100, 100));
        QImage expected(100, 100, QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::white);
        QPainter p(&expected);
        p.fillPath(ring, Qt::black);
        p.end();
        QCOMPARE(qGray(drawn.pixel(50, 50)), 255);
        QCOMPARE(qGray(drawn.pixel(50, 20)), 0);
        QVERIFY(std::abs(darkPixels(drawn) - darkPixels(expected)) < 60);
    }

    void titleFontIsInstalled()
    {
        // Otherwise the cover's title would silently be set in a fallback face.
        QVERIFY2(QFontInfo(QFont(u"EB Garamond 12"_s)).family().startsWith(u"EB Garamond"_s),
                 qPrintable(QFontInfo(QFont(u"EB Garamond 12"_s)).family()));
        const QPainterPath title = Art::textPath(u"Larkwells"_s, u"EB Garamond 12"_s, 100, 300, 500);
        const QRectF box = title.boundingRect();
        QVERIFY(std::abs(box.center().x() - 300) < 0.5);
        QVERIFY(box.bottom() > 480 && box.bottom() < 510); // sits on its baseline
        QVERIFY(box.width() > 300 && box.height() > 60);
    }

    void bundleMatchesWhatIsDrawnNow()
    {
        // A stale bundle would ship pictures the code no longer draws.
        const QImage shipped = QImageReader(u":/bundle/Page7.jpg"_s).read().convertToFormat(QImage::Format_RGB32);
        const QImage drawn = Art::paper(6);
        QCOMPARE(shipped.size(), drawn.size());
        double sum = 0;
        for (int y = 0; y < drawn.height(); y += 3)
            for (int x = 0; x < drawn.width(); x += 3)
                sum += std::abs(qGray(shipped.pixel(x, y)) - qGray(drawn.pixel(x, y)));
        QVERIFY(sum / ((drawn.width() / 3) * (drawn.height() / 3)) < 2.0);
    }

private:
    std::unique_ptr<TestEnvironment> m_env;
};

QTEST_MAIN(PicturesTest)
#include "tst_pictures.moc"
