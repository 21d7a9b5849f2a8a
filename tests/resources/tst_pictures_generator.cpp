// The picture generator's tools that its drawings cannot show faults of: the luminance the picture
// checks measure with, the SVG paths it writes, the title font, and that what it draws now is what
// the bundle ships (which holds its random and noise sources to their seeds). The drawings
// themselves are checked as shipped.
#include "Art.h"
#include "TestSupport.h"

#include <QFontInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {
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

class GeneratorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

};

QTEST_MAIN(GeneratorTest)
#include "tst_pictures_generator.moc"
