#include "AboutEditViewController.h"
#include "Art.h"
#include "Bundle.h"
#include "DefaultsViewController.h"
#include "EditSpecialDaysViewController.h"
#include "Navigator.h"
#include "PreferenceKeys.h"
#include "ReadAloud.h"
#include "SearchViewController.h"
#include "Selection.h"
#include "SpeechDouble.h"
#include "TestSupport.h"
#include "UserDefaults.h"
#include "ViewController.h"
#include "Wallpapers.h"

#include <QGuiApplication>
#include <QImage>
#include <QPalette>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickTextDocument>
#include <QQuickWindow>
#include <QTest>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {
// The contrast ratio of two colours, as WCAG defines it.
double contrast(const QColor &a, const QColor &b)
{
    const double x = Art::luminance(a.rgb());
    const double y = Art::luminance(b.rgb());
    return (std::max(x, y) + 0.05) / (std::min(x, y) + 0.05);
}

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

// The reader of that name, loaded.
template <class Screen> std::unique_ptr<ReaderScreen> load()
{
    auto view = std::make_unique<Screen>();
    view->viewDidLoad();
    return view;
}

std::unique_ptr<ReaderScreen> load(const QString &reader)
{
    return reader == u"search" ? load<SearchViewController>() : reader == u"special day" ? load<EditSpecialDaysViewController>()
        : reader == u"about" ? load<AboutEditViewController>() : load<ViewController>();
}
}

// Text that reads on every paper, and the night look: when it shows, that it reads at 7:1 or
// better, and that turning it off gives back the day look exactly. Read Aloud in every reader
// against the voice double, the rate set on User Defaults, and the voice chosen for the locale.
class TestNightReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

    void textOverEveryWallpaper_data()
    {
        QTest::addColumn<qint64>("code");
        QTest::newRow("black") << qint64(0);
        QTest::newRow("magenta") << qint64(1);
        QTest::newRow("red") << qint64(2);
        QTest::newRow("blue") << qint64(3);
        QTest::newRow("a code outside the colours") << qint64(9);
    }

    // By day, text is read against the darker parts of the paper: all but its darkest 5 % of pixels;
    // magenta and red are the standard colours the reader picks by name, light as they are.
    // By night, light text is read against the lightest pixel under the dimming surface, blended in
    // sRGB as the scene graph blends.
    void textOverEveryWallpaper()
    {
        QFETCH(qint64, code);
        TestEnvironment environment;
        UserDefaults::standard().set(u"textColor"_s, code);
        Preferences::write(PreferenceKeys::NightReading, true);
        ReaderAppearance appearance;
        appearance.read();
        appearance.applyTextColor();
        appearance.setNightPage(true);
        const std::optional<QColor> day = textColorFor(code);
        const QColor night = appearance.nightTextColor();
        const QColor surface = appearance.nightSurfaceColor();
        const double dim = appearance.wallpaperDim();
        const auto mix = [dim](float c, float p) { return float(dim * c + (1 - dim) * p); };
        double worstDay = 21;
        double worstNight = contrast(night, surface);
        for (const QString &name : Wallpapers::ViewerWallpaper()) {
            const QImage paper = QImage(u":"_s + Bundle::main().imageUrl(name).path()).scaled(200, 200).convertToFormat(QImage::Format_RGB32);
            QVERIFY2(!paper.isNull(), qPrintable(name));
            std::vector<double> luminances;
            for (int y = 0; y < paper.height(); ++y) {
                for (int x = 0; x < paper.width(); ++x) {
                    const QColor pixel(paper.pixel(x, y));
                    luminances.push_back(Art::luminance(pixel.rgb()));
                    const QColor under = QColor::fromRgbF(mix(surface.redF(), pixel.redF()), mix(surface.greenF(), pixel.greenF()),
                                                          mix(surface.blueF(), pixel.blueF()));
                    worstNight = std::min(worstNight, contrast(night, under));
                }
            }
            const auto nth = luminances.begin() + std::ptrdiff_t(luminances.size() / 20);
            std::nth_element(luminances.begin(), nth, luminances.end());
            const double text = Art::luminance(day.value_or(QColor()).rgb());
            if (day)
                worstDay = std::min(worstDay, (std::max(text, *nth) + 0.05) / (std::min(text, *nth) + 0.05));
        }
        qInfo("%s: lowest contrast %.2f:1 by day, %.2f:1 by night", QTest::currentDataTag(), worstDay, worstNight);
        QVERIFY(!day || code == 1 || code == 2 || worstDay >= 4.5);
        QVERIFY(worstNight >= 7);
    }

    void emptyCheckCircleOnTheCell()
    {
        QQmlEngine engine;
        const auto window = qmlWindow(engine, u"Window { property color cell: Theme.cellColor; visible: true\nFavoriteBox {} }"_s);
        QVERIFY(window);
        auto *box = findItem(window->contentItem(), u"FavoriteCheckBox"_s);
        QVERIFY(box);
        const double ratio = contrast(box->property("secondaryTintColor").value<QColor>(), window->property("cell").value<QColor>());
        qInfo("empty circle: %.2f:1", ratio);
        QVERIFY(ratio >= 3);
    }

    void whenTheNightLookShows_data()
    {
        QTest::addColumn<QString>("reader");
        QTest::addColumn<QVariant>("nightReading"); // invalid: never set
        QTest::addColumn<bool>("nightPage");
        QTest::addColumn<bool>("darkDesktop");
        QTest::addColumn<bool>("night");
        QTest::newRow("night page, switch on") << u"page"_s << QVariant(true) << true << false << true;
        QTest::newRow("morning page, switch on") << u"page"_s << QVariant(true) << false << false << false;
        QTest::newRow("night page, switch never set") << u"page"_s << QVariant() << true << false << false;
        QTest::newRow("morning page, dark desktop") << u"page"_s << QVariant(true) << false << true << true;
        QTest::newRow("dark desktop, switch off") << u"page"_s << QVariant(false) << false << true << false;
        QTest::newRow("search, night page") << u"search"_s << QVariant(true) << true << false << true;
        QTest::newRow("special day, morning") << u"special day"_s << QVariant(true) << false << false << false;
        QTest::newRow("special day, night") << u"special day"_s << QVariant(true) << true << false << true;
        QTest::newRow("about, night article") << u"about"_s << QVariant(true) << true << false << true;
    }

    void whenTheNightLookShows()
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
        const QPalette before = QGuiApplication::palette();
        if (darkDesktop) {
            QPalette dark = before;
            dark.setColor(QPalette::Window, QColor(0x20, 0x20, 0x24));
            QGuiApplication::setPalette(dark);
        }
        selectPage(nightPage);
        const bool shown = load(reader)->appearance()->night();
        QGuiApplication::setPalette(before);
        QCOMPARE(shown, night);
        QCOMPARE(UserDefaults::standard().integerForKey(u"textColor"_s), 2); // the stored colour stays
    }

    // A night page in the real window: the day look, the night look, then the switch off again.
    void switchingOffRestoresTheLook()
    {
        TestEnvironment environment;
        UserDefaults::standard().set(u"useWallpaper"_s, 1);
        UserDefaults::standard().set(u"textColor"_s, 3);
        // One wallpaper may be drawn, so every opening shows the same one.
        for (const QString &name : Wallpapers::ViewerWallpaper())
            UserDefaults::standard().set(name, name == u"Page1" ? u"true"_s : u"false"_s);
        QQmlApplicationEngine engine;
        QQuickWindow *window = loadLaunchedWindow(engine);
        QVERIFY(window);

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

    void playPauseStopLeave_data()
    {
        QTest::addColumn<QString>("segue");
        QTest::addColumn<QString>("page");
        QTest::newRow("page reader") << u"ViewPoemSegue"_s << u"View"_s;
        QTest::newRow("search-result reader") << u"SearchPoemSegue"_s << u"SearchView"_s;
        QTest::newRow("special-day reader") << u"SpecialDayReaderSegue"_s << u"EditSpecialDaysView"_s;
        QTest::newRow("about article") << u"AboutEditSegue"_s << u"AboutEditView"_s;
    }

    void playPauseStopLeave()
    {
        QFETCH(QString, page);
        TestEnvironment environment;
        SpeechDouble &voice = SpeechDouble::shared();
        UserDefaults::standard().set(u"ReadAloudRate"_s, -0.4);
        QQmlApplicationEngine engine;
        QQuickWindow *window = openReader(engine);
        QVERIFY(window);
        QQuickItem *button = waitForItem(window, u"ReadAloudButton"_s);
        QVERIFY(button);
        // What the reader offers: the button's label, and whether Stop shows.
        const auto offered = [&] {
            return button->property("label").toString()
                + (findVisibleItem(window, u"StopReadingButton"_s) ? u" + Stop"_s : u""_s);
        };
        QCOMPARE(offered(), u"Read Aloud"_s);

        // The voice is chosen when reading starts, from the locale then in force.
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria));
        click(window, button);
        QLocale::setDefault(before);
        auto *text = findVisibleItem(window, u"scroller"_s)->property("textView").value<QQuickItem *>();
        QCOMPARE(voice.spokenText, text->property("textDocument").value<QQuickTextDocument *>()->textDocument()->toPlainText());
        QVERIFY(voice.spokenText.contains(u"lark at dawn"_s));
        QCOMPARE(voice.spokenLocale, QLocale(QLocale::German, QLocale::Austria));
        QCOMPARE(voice.spokenRate, -0.4);
        QTRY_COMPARE(offered(), u"Pause + Stop"_s);

        click(window, button);
        QCOMPARE(voice.state(), Speech::State::Paused);
        QCOMPARE(offered(), u"Resume + Stop"_s);
        voice.spokenText.clear();
        click(window, button);
        QCOMPARE(voice.state(), Speech::State::Speaking);
        QVERIFY(voice.spokenText.isEmpty()); // resumed, not started again

        click(window, waitForItem(window, u"StopReadingButton"_s));
        QCOMPARE(voice.state(), Speech::State::Ready);
        QTRY_COMPARE(offered(), u"Read Aloud"_s);

        // Reaching the end brings the button back; leaving while reading stops the voice.
        click(window, button);
        voice.finish();
        QCOMPARE(button->property("label").toString(), u"Read Aloud"_s);
        click(window, button);
        const int stops = voice.stops;
        click(window, waitForItem(window, u"backButton"_s));
        QTRY_VERIFY(topPage(window) != page);
        QTRY_COMPARE(voice.stops, stops + 1);
        QCOMPARE(voice.state(), Speech::State::Ready);
    }
    void hiddenWithoutEngine_data() { playPauseStopLeave_data(); }

    void hiddenWithoutEngine()
    {
        TestEnvironment environment;
        SpeechDouble::shared().hasEngine = false;
        QQmlApplicationEngine engine;
        QQuickWindow *window = openReader(engine);
        QVERIFY(window && waitForItem(window, u"scroller"_s));
        QVERIFY(findItem(window->contentItem(), u"ReadAloudButton"_s));
        QVERIFY(!findVisibleItem(window, u"ReadAloudButton"_s));
    }

    // The slider's rate, kept within the fastest, is stored and read by the next reading.
    void rateStoredAndApplied()
    {
        TestEnvironment environment;
        for (const auto &[moved, stored] : {std::pair{-0.5, -0.5}, {1.6, 1.0}}) {
            DefaultsViewController defaults;
            defaults.viewDidLoad();
            defaults.ReadAloudRateSliderChanged(moved);
            DefaultsViewController reopened;
            reopened.viewDidLoad();
            QCOMPARE(reopened.ReadAloudRate(), stored);
            ReadAloud().play(u"The lark"_s);
            QCOMPARE(SpeechDouble::shared().spokenRate, stored);
        }
    }

    void voiceFollowsTheLocale()
    {
        const QList<QLocale> offered{QLocale(u"en_US"_s), QLocale(u"de_AT"_s), QLocale(u"de_DE"_s)};
        QStringList chosen; // empty: the engine keeps its own voice
        for (const QString &wanted : {u"de_DE"_s, u"de_CH"_s, u"fr_FR"_s}) {
            const std::optional<QLocale> voice = voiceLocale(QLocale(wanted), offered);
            chosen << (voice ? voice->name() : QString());
        }
        // The locale itself, else the first of its language, else none.
        QCOMPARE(chosen, (QStringList{u"de_DE"_s, u"de_AT"_s, QString()}));
    }

private:
    // The cover, then the reader of the row (every reader's selection carries "lark at dawn").
    QQuickWindow *openReader(QQmlApplicationEngine &engine)
    {
        QFETCH(QString, segue);
        QFETCH(QString, page);
        QQuickWindow *window = loadLaunchedWindow(engine);
        if (!window)
            return nullptr;
        Selection &selection = Selection::shared();
        selection.setSelectedAmpm(u"AM"_s);
        selection.setSelectedDt(u"March 3"_s);
        selection.setSelectedPoemPrayer(u"A lark at dawn"_s);
        selection.setSelectedSearchText(u"dawn"_s);
        selection.setSelectedSpecialAmpm(u"PM"_s);
        selection.setSelectedSpecialPoem(u"A lark at dawn"_s);
        selection.setSelectedAboutName(u"Good Morning Preface"_s);
        selection.setSelectedAboutText(u"Why a lark at dawn"_s);
        Navigator::shared().performSegue(segue);
        return QTest::qWaitFor([&] { return topPage(window) == page; }) ? window : nullptr;
    }
};

QTEST_MAIN(TestNightReading)
#include "tst_nightreading.moc"
