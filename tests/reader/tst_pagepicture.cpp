#include "Appearance.h"
#include "Navigator.h"
#include "PagePicture.h"
#include "Selection.h"
#include "Sharing.h"
#include "TestSupport.h"
#include "UserDefaults.h"
#include "ViewController.h"
#include "Wallpapers.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QString page = u"Dew on the gate\nand on the grass,\nthe wren is up before the sun."_s;

void select(const QString &text)
{
    Selection &selection = Selection::shared();
    selection.setSelectedAmpm(u"AM"_s);
    selection.setSelectedDt(u"May 2"_s);
    selection.setSelectedPoemPrayer(text);
    selection.setSelectedFavorite(u"F"_s);
}

// Where the ink of `color` lies in the picture: its bounding box and how many pixels carry it.
struct Ink {
    QRect box;
    int pixels = 0;
};
Ink inkOf(const QImage &picture, const QColor &color, int tolerance = 40)
{
    Ink ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb p = picture.pixel(x, y);
            if (std::max({std::abs(qRed(p) - color.red()), std::abs(qGreen(p) - color.green()), std::abs(qBlue(p) - color.blue())})
                <= tolerance)
                std::tie(ink.pixels, ink.box) = std::tuple(ink.pixels + 1, ink.box | QRect(x, y, 1, 1));
        }
    }
    return ink;
}

// The reader's picture of `text` under the stored settings.
QImage pictureOf(const QString &text)
{
    select(text);
    ViewController reader;
    reader.viewDidLoad();
    return PagePicture::render(reader.PoemPrayerText(), *reader.appearance()).convertToFormat(QImage::Format_RGB32);
}
}

class TestPagePicture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }
    void drawsThePageAsTheReaderShowsIt_data();
    void drawsThePageAsTheReaderShowsIt();
    void shareSheetOffersThePicture();
};

void TestPagePicture::drawsThePageAsTheReaderShowsIt_data()
{
    QTest::addColumn<qint64>("textColor");
    QTest::addColumn<qint64>("useWallpaper");
    QTest::newRow("magenta, no wallpaper") << qint64(1) << qint64(0);
    QTest::newRow("red over a wallpaper") << qint64(2) << qint64(1);
}

void TestPagePicture::drawsThePageAsTheReaderShowsIt()
{
    QFETCH(qint64, textColor);
    QFETCH(qint64, useWallpaper);
    TestEnvironment environment;
    UserDefaults::standard().set(u"textColor"_s, textColor);
    UserDefaults::standard().set(u"useWallpaper"_s, useWallpaper);
    UserDefaults::standard().set(u"ReaderFontSize"_s, 18.0);
    for (const QString &name : Wallpapers::ViewerWallpaper()) // one wallpaper, so every draw gives it
        UserDefaults::standard().set(name, name == u"Page3"_s ? u"true"_s : u"false"_s);
    const QColor ink = textColorFor(textColor).value_or(QColor(Qt::black));

    const QImage picture = pictureOf(page);
    QCOMPARE(picture.width(), PagePicture::width);
    // The same number of lines without a word: the same size, the same wallpaper, no text.
    const QImage blank = pictureOf(QString(page).replace(QRegularExpression(u"\\S"_s), u" "_s));
    QCOMPARE(blank.size(), picture.size());
    const Ink written = inkOf(picture, ink);
    const Ink background = inkOf(blank, ink);
    QVERIFY2(written.pixels > background.pixels + 5000, qPrintable(u"%1 against %2"_s.arg(written.pixels).arg(background.pixels)));

    // Behind the text (and the heading, which stays): the wallpaper when it is on, else the
    // reader's plain grey.
    const int grey = inkOf(blank, QColor(0xd3, 0xd3, 0xd3), 0).pixels;
    QCOMPARE(grey > blank.width() * blank.height() * 9 / 10, useWallpaper == 0);
    if (useWallpaper == 0) { // the reader centres its lines
        const int middle = (written.box.left() + written.box.right()) / 2;
        QVERIFY2(std::abs(middle - PagePicture::width / 2) < 40, qPrintable(QString::number(middle)));
    }

    // A larger size makes a taller picture, still as wide.
    UserDefaults::standard().set(u"ReaderFontSize"_s, 30.0);
    const QImage larger = pictureOf(page);
    QVERIFY(larger.width() == PagePicture::width && larger.height() > picture.height());
}

void TestPagePicture::shareSheetOffersThePicture()
{
    TestEnvironment environment;
    UserDefaults::standard().set(u"hasBeenLaunchedBeforeFlag"_s, true);
    QQmlApplicationEngine engine;
    QQuickWindow *window = loadMainWindow(engine);
    QVERIFY(window);
    select(page);
    Navigator::shared().performSegue(u"ViewPoemSegue"_s);
    QTRY_COMPARE(topPage(window), u"View"_s);

    click(window, waitForItem(window, u"FacebookShareButton"_s));
    QQuickItem *picture = waitForItem(window, u"share-picture"_s);
    QVERIFY(picture);
    QCOMPARE(picture->property("text").toString(), u"Share as Picture"_s);
    environment.logLines.clear();
    click(window, picture);
    QTRY_VERIFY(Sharing::shared().sharesFile());
    QCOMPARE(Sharing::shared().fileName(), u"May 2 Good Morning.png"_s);
    QCOMPARE(environment.logLines.value(0), u"completed"_s);
    QVERIFY(waitForItem(window, u"share-savecopy"_s) && !findVisibleItem(window->contentItem(), u"share-picture"_s));

    const QImage shared(QDir::temp().filePath(Sharing::shared().fileName()));
    QCOMPARE(shared.width(), PagePicture::width);
    QVERIFY(inkOf(shared.convertToFormat(QImage::Format_RGB32), Qt::black).pixels > 5000);
    Sharing::shared().cancel();
}

QTEST_MAIN(TestPagePicture)
#include "tst_pagepicture.moc"
