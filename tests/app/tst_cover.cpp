#include "CoverCache.h"
#include "CoverViewController.h"
#include "Navigator.h"
#include "PreferenceKeys.h"
#include "ReviewPrompt.h"
#include "TestSupport.h"
#include "UserDefaults.h"
#include "WindowIcon.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {
// One launch's cover screen: the size it asks for, then its start-up.
QUrl launch(QSize pixelSize)
{
    CoverViewController cover;
    cover.prepareCover(pixelSize, 1);
    cover.viewDidLoad();
    CoverCache::finishDrawing(); // kept on disk by now, as before the next launch
    return cover.coverSource();
}
}

// The cover screen: the review prompt, the keyboard, and the cover picture kept under the data
// folder, drawn once a size, read back by later launches, the picture of an earlier size removed,
// and the vector cover whenever nothing can be kept.
class TestCover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }

    void reviewPromptCountsPageOpenings_data()
    {
        QTest::addColumn<QStringList>("versions"); // the version at each page opening ("-" for none)
        QTest::addColumn<QList<qint64>>("counts"); // the counter after each opening
        QTest::addColumn<QString>("lastVersion");  // "-" when absent at the end
        QTest::newRow("third opening asks, later ones in the same version do not")
            << QStringList{u"1.0"_s, u"1.0"_s, u"1.0"_s, u"1.0"_s, u"1.0"_s, u"1.0"_s}
            << QList<qint64>{1, 2, 0, 1, 2, 3} << u"1.0"_s;
        QTest::newRow("a new version asks again after three more")
            << QStringList{u"1.0"_s, u"1.0"_s, u"1.0"_s, u"1.1"_s, u"1.1"_s, u"1.1"_s}
            << QList<qint64>{1, 2, 0, 1, 2, 0} << u"1.1"_s;
        QTest::newRow("no version: asks every third time and stores none")
            << QStringList{u"-"_s, u"-"_s, u"-"_s, u"-"_s, u"-"_s, u"-"_s}
            << QList<qint64>{1, 2, 0, 1, 2, 0} << u"-"_s;
    }

    void reviewPromptCountsPageOpenings()
    {
        QFETCH(QStringList, versions);
        QFETCH(QList<qint64>, counts);
        QFETCH(QString, lastVersion);
        TestEnvironment environment;
        for (qsizetype i = 0; i < versions.size(); ++i) {
            ReviewPrompt::run(versions[i] == u"-"_s ? std::nullopt : std::optional(versions[i]));
            QCOMPARE(UserDefaults::standard().integerForKey(u"reviewWorthyActionCount"_s), counts[i]);
        }
        QCOMPARE(UserDefaults::standard().stringForKey(u"lastReviewRequestAppVersion"_s).value_or(u"-"_s), lastVersion);
    }

    void keyboardOpensTheMenuAndAPage_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
        QTest::newRow("Space") << int(Qt::Key_Space);
    }

    void keyboardOpensTheMenuAndAPage()
    {
        QFETCH(int, key);
        TestEnvironment environment;
        QQmlApplicationEngine engine;
        QQuickWindow *window = loadLaunchedWindow(engine);
        QVERIFY(window);
        QQuickItem *control = waitForItem(window, u"ControlButton"_s);
        QTest::keyClick(window, Qt::Key_Tab);
        QTRY_VERIFY(control->property("visualFocus").toBool());
        QTest::keyClick(window, Qt::Key(key));
        QQuickItem *today = waitForItem(window, u"TodayButton"_s);
        QVERIFY(today);
        QTRY_VERIFY(today->isVisible());
        today->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(window, Qt::Key(key));
        QTRY_COMPARE(topPage(window), u"MainTableView"_s);
    }

    void segueWithoutScreenStopsNamingIt()
    {
        TestEnvironment environment;
        QCOMPARE(fatalStop([] { Navigator::shared().performSegue(u"ImportExportSegue"_s); }),
                 u"Fatal error: no screen for the segue \"ImportExportSegue\""_s);
    }

    void keepsOnePicture_data()
    {
        QTest::addColumn<QSize>("first");
        QTest::addColumn<QSize>("second");
        QTest::addColumn<bool>("folderBlocked");
        QTest::addColumn<bool>("kept");

        QTest::newRow("the same size again reads the kept picture") << QSize(240, 360) << QSize(240, 360) << false << true;
        QTest::newRow("a new size replaces the old picture") << QSize(240, 360) << QSize(300, 450) << false << true;
        QTest::newRow("no size yet: the vector cover") << QSize() << QSize(0, 450) << false << false;
        QTest::newRow("no folder for the cache: the vector cover") << QSize(240, 360) << QSize(240, 360) << true << false;
    }

    void keepsOnePicture()
    {
        QFETCH(QSize, first);
        QFETCH(QSize, second);
        QFETCH(bool, folderBlocked);
        QFETCH(bool, kept);
        TestEnvironment environment;
        Preferences::write(PreferenceKeys::hasBeenLaunchedBeforeFlag, true); // no seeding here
        const QDir data(environment.dataDirectory());
        if (folderBlocked)
            QVERIFY(writeFile(data.filePath(u"cache"_s), {})); // a file where the folder would go

        const QDir cache(data.filePath(u"cache"_s));
        const auto file = [&cache](const QUrl &url) { return cache.filePath(url.fileName()); };
        const QUrl drawn = launch(first);
        const QDateTime drawnAt = QFileInfo(file(drawn)).lastModified();
        const QUrl url = launch(second);
        const QStringList pictures = cache.entryList({u"Cover-*"_s}, QDir::Files);
        if (!kept) {
            QCOMPARE(url, CoverViewController().img());
            QVERIFY(pictures.isEmpty());
            return;
        }
        QCOMPARE(pictures, QStringList{url.fileName()});
        const QImage picture = CoverCache::read(file(url));
        QCOMPARE(picture.size(), second);
        // Drawn, not blank: the night sky at the top is darker than the dawn below it.
        QVERIFY(qGray(picture.pixel(second.width() / 2, 2)) < qGray(picture.pixel(second.width() / 2, second.height() / 2)));
        if (first == second) {
            QCOMPARE(url, drawn);
            QCOMPARE(QFileInfo(file(url)).lastModified(), drawnAt); // read back, not drawn again
        }
        // A picture on screen outlives its file, removed once a larger window keeps another.
        const QRgb sky = picture.pixel(second.width() / 2, 2);
        launch(second * 2);
        QVERIFY(!QFile::exists(file(url)));
        QCOMPARE(picture.pixel(second.width() / 2, 2), sky);
    }

    void pictureCoversTheWindow_data()
    {
        QTest::addColumn<QSizeF>("window");
        QTest::addColumn<qreal>("scale");
        QTest::addColumn<QSize>("picture");
        QTest::newRow("phone-sized desktop window: its height") << QSizeF(412, 915) << 1.0 << QSize(610, 915);
        QTest::newRow("the same window turned") << QSizeF(915, 412) << 1.0 << QSize(610, 915);
        QTest::newRow("a wide portrait window: its width") << QSizeF(900, 1000) << 1.0 << QSize(900, 1350);
        QTest::newRow("a phone's dense screen: the whole picture") << QSizeF(412, 915) << 2.625 << QSize(1200, 1800);
    }

    void pictureCoversTheWindow()
    {
        QFETCH(QSizeF, window);
        QFETCH(qreal, scale);
        QFETCH(QSize, picture);
        QCOMPARE(CoverCache::pixelSize(window, scale), picture);
    }

    // Shown at the size it was drawn, on whole pixels: copied as it is rather than resampled,
    // which blurs it and costs every frame the cover is on screen.
    void coverIsShownPixelForPixel()
    {
        TestEnvironment environment;
        QQmlApplicationEngine engine;
        QQuickWindow *window = loadLaunchedWindow(engine);
        QVERIFY(window);
        window->resize(600, 1000); // the cover fills it 666.7 points wide, its left edge off a pixel
        QQuickItem *img = waitForItem(window, u"img"_s);
        QTRY_VERIFY2(img->property("source").toUrl().fileName().startsWith(u"Cover-667x1000-"_s),
                     qPrintable(img->property("source").toUrl().fileName()));
        QTRY_COMPARE(img->size(), QSizeF(667, 1000));
        QCOMPARE(img->x(), std::round(img->x()));
    }

    // A window grown past what the cover was drawn for has it drawn again, kept in place of the
    // smaller one; a window made smaller again keeps the larger picture.
    void grownWindowRedrawsTheCover()
    {
        TestEnvironment environment;
        QQmlApplicationEngine engine;
        QQuickWindow *window = loadLaunchedWindow(engine);
        QVERIFY(window);
        window->resize(412, 915);
        QQuickItem *img = waitForItem(window, u"img"_s);
        const auto shown = [img] { return img->property("source").toUrl().fileName(); };
        QTRY_VERIFY2(shown().startsWith(u"Cover-610x915-"_s), qPrintable(shown()));

        window->resize(900, 1000);
        QTRY_VERIFY2(shown().startsWith(u"Cover-900x1350-"_s), qPrintable(shown()));
        QCOMPARE(img->property("implicitWidth").toReal(), 900.0);
        CoverCache::finishDrawing();
        const QDir cache(QDir(environment.dataDirectory()).filePath(u"cache"_s));
        QCOMPARE(cache.entryList({u"Cover-*"_s}, QDir::Files), QStringList{shown()});

        window->resize(412, 915);
        QTest::qWait(500);
        QVERIFY2(shown().startsWith(u"Cover-900x1350-"_s), qPrintable(shown()));
    }

    void damagedPictureIsDrawnAgain_data()
    {
        QTest::addColumn<QByteArray>("content");
        const qint32 wrongSize[2] = {240, 361};
        QTest::newRow("torn") << QByteArray("LWC1\xf0\x00");
        QTest::newRow("another format") << QByteArray("P6\n240 360\n255\n") + QByteArray(240 * 360 * 3, '\x7f');
        QTest::newRow("pixels short of the size it names")
            << QByteArray("LWC1") + QByteArray(reinterpret_cast<const char *>(wrongSize), sizeof wrongSize) + QByteArray(240 * 360 * 4, '\0');
    }

    void damagedPictureIsDrawnAgain()
    {
        QFETCH(QByteArray, content);
        TestEnvironment environment;
        Preferences::write(PreferenceKeys::hasBeenLaunchedBeforeFlag, true);
        const QSize size(240, 360);
        const QUrl url = launch(size);
        const QString file = QDir(environment.dataDirectory()).filePath(u"cache/"_s + url.fileName());
        QVERIFY(writeFile(file, content));
        QVERIFY(CoverCache::read(file).isNull());

        CoverCache::ImageProvider provider;
        QImage handedOver(size, QImage::Format_RGB32);
        handedOver.fill(Qt::red);
        provider.handOver(url.fileName(), handedOver);
        QCOMPARE(provider.requestImage(url.fileName(), nullptr, size), handedOver); // served once, unread
        QVERIFY(CoverCache::read(file).isNull());
        QSize served;
        QCOMPARE(provider.requestImage(url.fileName(), &served, size).size(), size);
        QCOMPARE(served, size);
        QCOMPARE(CoverCache::read(file).size(), size); // kept again for the next launch
    }

    // The window icon's file is read when a picture of it is asked for, not when it is set: a
    // file that only appears later is the one drawn.
    void windowIconReadWhenDrawn()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(u"Icon.svg"_s);
        const QIcon icon = windowIcon(file);
        QVERIFY(writeFile(file, R"(<svg xmlns="http://www.w3.org/2000/svg" width="48" height="48">)"
                                R"(<rect width="48" height="48" fill="#336699"/></svg>)"));
        const QImage drawn = icon.pixmap(QSize(32, 32)).toImage();
        QCOMPARE(drawn.size(), QSize(32, 32));
        QCOMPARE(drawn.pixelColor(16, 16), QColor(u"#336699"_s));
    }
};

QTEST_MAIN(TestCover)
#include "tst_cover.moc"
