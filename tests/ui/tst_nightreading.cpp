#include "AboutEditViewController.h"
#include "Bundle.h"
#include "Contrast.h"
#include "EditSpecialDaysViewController.h"
#include "Navigator.h"
#include "PreferenceKeys.h"
#include "SearchViewController.h"
#include "Selection.h"
#include "TestSupport.h"
#include "UserDefaults.h"
#include "ViewController.h"
#include "Wallpapers.h"

#include <QGuiApplication>
#include <QImage>
#include <QPalette>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// A morning or night page for every reader.
void selectPage(bool nightPage)
{
    Selection &selection = Selection::shared();
    selection.setSelectedAmpm(nightPage ? u"PM"_s : u"AM"_s);
    selection.setSelectedDt(u"June 21"_s);
    selection.setSelectedPoemPrayer(u"The longest light"_s);
    selection.setSelectedSpecialAmpm(nightPage ? u"PM"_s : u"AM"_s);
    selection.setSelectedAboutName(nightPage ? u"Good Night Preface"_s : u"Good Morning Preface"_s);
}

using Reader = std::function<const ReaderAppearance *(std::unique_ptr<ReaderScreen> &)>;
template <class Screen> Reader reader()
{
    return [](std::unique_ptr<ReaderScreen> &screen) {
        auto *view = new Screen;
        screen.reset(view);
        view->viewDidLoad();
        return view->appearance();
    };
}
}

// The night look: when it shows, that it reads at 7:1 or better, and that turning it off gives
// back the day look exactly.
class TestNightReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }
    void whenTheNightLookShows_data();
    void whenTheNightLookShows();
    void contrastOverEveryWallpaper_data();
    void contrastOverEveryWallpaper();
    void switchingOffRestoresTheLook();
};

void TestNightReading::whenTheNightLookShows_data()
{
    QTest::addColumn<Reader>("load");
    QTest::addColumn<QVariant>("nightReading"); // invalid: never set
    QTest::addColumn<bool>("nightPage");
    QTest::addColumn<bool>("darkDesktop");
    QTest::addColumn<bool>("night");
    const Reader page = reader<ViewController>();
    QTest::newRow("night page, switch on") << page << QVariant(true) << true << false << true;
    QTest::newRow("morning page, switch on") << page << QVariant(true) << false << false << false;
    QTest::newRow("night page, switch never set") << page << QVariant() << true << false << false;
    QTest::newRow("night page, switch off") << page << QVariant(false) << true << false << false;
    QTest::newRow("morning page, dark desktop") << page << QVariant(true) << false << true << true;
    QTest::newRow("dark desktop, switch off") << page << QVariant(false) << false << true << false;
    QTest::newRow("search, night page") << reader<SearchViewController>() << QVariant(true) << true << false << true;
    QTest::newRow("special day, morning") << reader<EditSpecialDaysViewController>() << QVariant(true) << false << false << false;
    QTest::newRow("special day, night") << reader<EditSpecialDaysViewController>() << QVariant(true) << true << false << true;
    QTest::newRow("about, night article") << reader<AboutEditViewController>() << QVariant(true) << true << false << true;
}

void TestNightReading::whenTheNightLookShows()
{
    QFETCH(Reader, load);
    QFETCH(QVariant, nightReading);
    QFETCH(bool, nightPage);
    QFETCH(bool, darkDesktop);
    QFETCH(bool, night);
    TestEnvironment environment;
    UserDefaults::standard().set(u"textColor"_s, 2);
    if (nightReading.isValid())
        Preferences::write(PreferenceKeys::NightReading, nightReading);
    const QPalette before = QGuiApplication::palette();
    if (darkDesktop) {
        QPalette dark = before;
        dark.setColor(QPalette::Window, QColor(0x20, 0x20, 0x24));
        QGuiApplication::setPalette(dark);
    }
    selectPage(nightPage);
    std::unique_ptr<ReaderScreen> screen;
    const bool shown = load(screen)->night();
    QGuiApplication::setPalette(before);
    QCOMPARE(shown, night);
    QCOMPARE(UserDefaults::standard().integerForKey(u"textColor"_s), 2); // the stored colour stays
}

void TestNightReading::contrastOverEveryWallpaper_data()
{
    QTest::addColumn<qint64>("code");
    QTest::newRow("black") << qint64(0);
    QTest::newRow("magenta") << qint64(1);
    QTest::newRow("red") << qint64(2);
    QTest::newRow("blue") << qint64(3);
    QTest::newRow("a code outside the colours") << qint64(9);
}

// Light text is read against the lightest pixel of each wallpaper under the dimming surface,
// blended in sRGB as the scene graph blends.
void TestNightReading::contrastOverEveryWallpaper()
{
    QFETCH(qint64, code);
    TestEnvironment environment;
    UserDefaults::standard().set(u"textColor"_s, code);
    Preferences::write(PreferenceKeys::NightReading, true);
    ReaderAppearance appearance;
    appearance.read();
    appearance.applyTextColor();
    appearance.setNightPage(true);
    const QColor text = appearance.nightTextColor();
    const QColor surface = appearance.nightSurfaceColor();
    const double dim = appearance.wallpaperDim();
    double worst = contrast(text, surface);
    for (const QString &name : Wallpapers::ViewerWallpaper()) {
        const QImage paper = QImage(u":"_s + Bundle::main().imageUrl(name).path()).scaled(200, 200).convertToFormat(QImage::Format_RGB32);
        QVERIFY2(!paper.isNull(), qPrintable(name));
        for (int y = 0; y < paper.height(); ++y) {
            for (int x = 0; x < paper.width(); ++x) {
                const QColor pixel(paper.pixel(x, y));
                const auto mix = [dim](float c, float p) { return float(dim * c + (1 - dim) * p); };
                const QColor under = QColor::fromRgbF(mix(surface.redF(), pixel.redF()), mix(surface.greenF(), pixel.greenF()),
                                                      mix(surface.blueF(), pixel.blueF()));
                worst = std::min(worst, contrast(text, under));
            }
        }
    }
    qInfo("%s: lowest contrast %.2f:1", QTest::currentDataTag(), worst);
    QVERIFY(worst >= 7);
}

// A night page in the real window: the day look, the night look, then the switch off again.
void TestNightReading::switchingOffRestoresTheLook()
{
    TestEnvironment environment;
    UserDefaults::standard().set(u"hasBeenLaunchedBeforeFlag"_s, true);
    UserDefaults::standard().set(u"useWallpaper"_s, 1);
    UserDefaults::standard().set(u"textColor"_s, 3);
    // One wallpaper may be drawn, so every opening shows the same one.
    for (const QString &name : Wallpapers::ViewerWallpaper())
        UserDefaults::standard().set(name, name == u"Page1" ? u"true"_s : u"false"_s);
    QQmlApplicationEngine engine;
    QQuickWindow *window = loadMainWindow(engine);
    QVERIFY(window);
    QVERIFY(waitForItem(window, u"ControlButton"_s));

    const auto look = [&] {
        selectPage(true);
        Navigator::shared().performSegue(u"ViewPoemSegue"_s);
        QVariantMap shown;
        if (!QTest::qWaitFor([&] { return topPage(window) == u"View"_s; }))
            return shown;
        QQuickItem *text = waitForItem(window, u"PoemPrayerTextView"_s);
        QQuickItem *wallpaper = waitForItem(window, u"img"_s);
        shown = {{u"text colour"_s, text->property("color")},
                 {u"font"_s, text->property("font")},
                 {u"wallpaper"_s, wallpaper->property("source")},
                 {u"wallpaper shown"_s, wallpaper->isVisible()},
                 {u"surface"_s, findItem(window->contentItem(), u"nightSurface"_s)->isVisible()},
                 {u"dimmed"_s, findItem(window->contentItem(), u"nightDim"_s)->isVisible()}};
        click(window, waitForItem(window, u"backButton"_s));
        if (!QTest::qWaitFor([&] { return topPage(window) == u"CoverView"_s; }))
            shown.clear();
        return shown;
    };

    const QVariantMap day = look();
    QCOMPARE(day.value(u"text colour"_s).value<QColor>(), *textColorFor(3));
    QVERIFY(day.value(u"wallpaper shown"_s).toBool());

    Preferences::write(PreferenceKeys::NightReading, true);
    const QVariantMap night = look();
    QVERIFY(night.value(u"surface"_s).toBool() && night.value(u"dimmed"_s).toBool());
    QCOMPARE(night.value(u"wallpaper"_s), day.value(u"wallpaper"_s)); // dimmed, not removed
    QVERIFY(contrast(night.value(u"text colour"_s).value<QColor>(), Qt::white) < 2);

    Preferences::write(PreferenceKeys::NightReading, false);
    QCOMPARE(look(), day);
}

QTEST_MAIN(TestNightReading)
#include "tst_nightreading.moc"
