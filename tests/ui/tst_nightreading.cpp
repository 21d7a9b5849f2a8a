#include "AboutEditViewController.h"
#include "Appearance.h"
#include "Bundle.h"
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
#include <cmath>

using namespace Qt::StringLiterals;

namespace {
// Relative luminance as WCAG defines it.
double luminance(const QColor &color)
{
    const auto channel = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) + 0.0722 * channel(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

// `cover` at `opacity` over `under`, blended as the scene graph blends (in sRGB).
QColor over(const QColor &cover, double opacity, const QColor &under)
{
    const auto mix = [opacity](double c, double u) { return opacity * c + (1 - opacity) * u; };
    return QColor::fromRgbF(float(mix(cover.redF(), under.redF())), float(mix(cover.greenF(), under.greenF())),
                            float(mix(cover.blueF(), under.blueF())));
}

// The lightest pixel of a picture: light text is read against the lightest parts of the paper.
QColor lightestPixel(const QImage &picture)
{
    const QImage image = picture.scaled(200, 200, Qt::IgnoreAspectRatio).convertToFormat(QImage::Format_RGB32);
    QColor lightest = Qt::black;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (const QColor pixel(image.pixel(x, y)); luminance(pixel) > luminance(lightest))
                lightest = pixel;
    return lightest;
}

// A desktop in a dark colour scheme for as long as it lives.
class DarkDesktop
{
public:
    explicit DarkDesktop(bool dark)
    {
        if (!dark)
            return;
        QPalette palette = m_before;
        palette.setColor(QPalette::Window, QColor(0x20, 0x20, 0x24));
        QGuiApplication::setPalette(palette);
    }
    ~DarkDesktop() { QGuiApplication::setPalette(m_before); }

private:
    const QPalette m_before = QGuiApplication::palette();
};

// The selection of a morning or night page, for every reader.
void selectPage(bool nightPage)
{
    Selection &selection = Selection::shared();
    const QString ampm = nightPage ? u"PM"_s : u"AM"_s;
    selection.setSelectedAmpm(ampm);
    selection.setSelectedDt(u"June 21"_s);
    selection.setSelectedPoemPrayer(u"The longest light"_s);
    selection.setSelectedSpecialAmpm(ampm);
    selection.setSelectedSpecialDayName(u"Midsummer"_s);
    selection.setSelectedSpecialPoem(u"The longest light"_s);
    selection.setSelectedAboutName(nightPage ? u"Good Night Preface"_s : u"Good Morning Preface"_s);
    selection.setSelectedAboutText(u"The longest light"_s);
}

// Loads the named reader on a morning or night page.
ReaderAppearance *loadReader(const QString &reader, bool nightPage, std::unique_ptr<ReaderScreen> &screen)
{
    selectPage(nightPage);
    if (reader == u"page") {
        auto *view = new ViewController;
        screen.reset(view);
        view->viewDidLoad();
    } else if (reader == u"search") {
        auto *view = new SearchViewController;
        screen.reset(view);
        view->viewDidLoad();
    } else if (reader == u"special day") {
        auto *view = new EditSpecialDaysViewController;
        screen.reset(view);
        view->viewDidLoad();
    } else {
        auto *view = new AboutEditViewController;
        screen.reset(view);
        view->viewDidLoad();
    }
    return screen->appearance();
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
    QTest::addColumn<QString>("reader");
    QTest::addColumn<QVariant>("nightReading"); // invalid: never set
    QTest::addColumn<bool>("nightPage");
    QTest::addColumn<bool>("darkDesktop");
    QTest::addColumn<bool>("night");
    QTest::newRow("night page, switch on") << u"page"_s << QVariant(true) << true << false << true;
    QTest::newRow("morning page, switch on") << u"page"_s << QVariant(true) << false << false << false;
    QTest::newRow("night page, switch never set") << u"page"_s << QVariant() << true << false << false;
    QTest::newRow("night page, switch off") << u"page"_s << QVariant(false) << true << false << false;
    QTest::newRow("morning page, dark desktop") << u"page"_s << QVariant(true) << false << true << true;
    QTest::newRow("morning page, dark desktop, off") << u"page"_s << QVariant(false) << false << true << false;
    QTest::newRow("search, night page") << u"search"_s << QVariant(true) << true << false << true;
    QTest::newRow("search, morning page") << u"search"_s << QVariant(true) << false << false << false;
    QTest::newRow("special day, night") << u"special day"_s << QVariant(true) << true << false << true;
    QTest::newRow("special day, morning") << u"special day"_s << QVariant(true) << false << false << false;
    QTest::newRow("about, night article") << u"about"_s << QVariant(true) << true << false << true;
    QTest::newRow("about, morning article, dark desktop") << u"about"_s << QVariant(true) << false << true << true;
}

void TestNightReading::whenTheNightLookShows()
{
    QFETCH(QString, reader);
    QFETCH(QVariant, nightReading);
    QFETCH(bool, nightPage);
    QFETCH(bool, darkDesktop);
    QFETCH(bool, night);
    TestEnvironment environment;
    UserDefaults::standard().set(u"textColor"_s, 2);
    if (nightReading.isValid())
        Preferences::write(PreferenceKeys::NightReading, nightReading);
    DarkDesktop desktop(darkDesktop);
    std::unique_ptr<ReaderScreen> screen;
    const ReaderAppearance *appearance = loadReader(reader, nightPage, screen);
    QCOMPARE(appearance->night(), night);
    // The stored colour and the colour the day look uses are left alone.
    QCOMPARE(UserDefaults::standard().integerForKey(u"textColor"_s), 2);
    if (reader != u"search")
        QCOMPARE(appearance->textColor(), *textColorFor(2));
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
    QVERIFY(appearance.night());
    const QColor text = appearance.nightTextColor();
    const QColor surface = appearance.nightSurfaceColor();

    double worst = contrast(text, surface);
    QString worstName = u"the bare surface"_s;
    for (const QString &name : Wallpapers::ViewerWallpaper()) {
        const QImage paper(u":"_s + Bundle::main().imageUrl(name).path());
        QVERIFY2(!paper.isNull(), qPrintable(name));
        const double ratio = contrast(text, over(surface, appearance.wallpaperDim(), lightestPixel(paper)));
        if (ratio < worst)
            std::tie(worst, worstName) = std::tuple(ratio, name);
    }
    qInfo("%s: lowest contrast %.2f:1 (on %s)", QTest::currentDataTag(), worst, qPrintable(worstName));
    QVERIFY2(worst >= 7, qPrintable(u"%1:1 on %2"_s.arg(worst, 0, 'f', 2).arg(worstName)));
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
    QVERIFY(!day.isEmpty());
    QCOMPARE(day.value(u"text colour"_s).value<QColor>(), *textColorFor(3));
    QVERIFY(day.value(u"wallpaper shown"_s).toBool());

    Preferences::write(PreferenceKeys::NightReading, true);
    const QVariantMap night = look();
    QVERIFY(night.value(u"surface"_s).toBool());
    QVERIFY(night.value(u"dimmed"_s).toBool());
    QCOMPARE(night.value(u"wallpaper"_s), day.value(u"wallpaper"_s)); // dimmed, not removed
    const QColor nightText = night.value(u"text colour"_s).value<QColor>();
    QVERIFY(contrast(nightText, Qt::white) < 2);

    Preferences::write(PreferenceKeys::NightReading, false);
    QCOMPARE(look(), day);
    QCOMPARE(UserDefaults::standard().integerForKey(u"textColor"_s), 3);
}

QTEST_MAIN(TestNightReading)
#include "tst_nightreading.moc"
