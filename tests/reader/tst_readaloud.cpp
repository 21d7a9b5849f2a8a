#include "DefaultsViewController.h"
#include "Navigator.h"
#include "PageRows.h"
#include "PreferenceKeys.h"
#include "ReadAloud.h"
#include "Selection.h"
#include "SpeechDouble.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickTextDocument>
#include <QQuickWindow>
#include <QTest>
#include <QTextDocument>
#include <functional>

using namespace Qt::StringLiterals;

namespace {
using Setup = std::function<void()>;

// The selection each reader is opened with; every page carries the words "lark at dawn".
Setup pageReader()
{
    return [] {
        Selection &selection = Selection::shared();
        selection.setSelectedAmpm(u"AM"_s);
        selection.setSelectedDt(u"March 3"_s);
        selection.setSelectedPoemPrayer(u"A lark at dawn"_s);
    };
}

Setup searchReader()
{
    return [] {
        pageReader()();
        Selection::shared().setSelectedSearchText(u"dawn"_s);
    };
}

Setup specialDayReader()
{
    return [] {
        Selection &selection = Selection::shared();
        selection.setSelectedSpecialAmpm(u"PM"_s);
        selection.setSelectedSpecialDayName(u"Midsummer"_s);
        selection.setSelectedSpecialPoem(u"A lark at dawn, and the long light"_s);
    };
}

Setup aboutReader()
{
    return [] {
        Selection &selection = Selection::shared();
        selection.setSelectedAboutName(u"Good Morning Preface"_s);
        selection.setSelectedAboutText(u"Why a lark at dawn"_s);
    };
}

QString shownText(QQuickWindow *window)
{
    QQuickItem *surface = findVisibleItem(window->contentItem(), u"scroller"_s);
    auto *text = surface->property("textView").value<QQuickItem *>();
    return text->property("textDocument").value<QQuickTextDocument *>()->textDocument()->toPlainText();
}

QString buttonText(QQuickWindow *window)
{
    return findVisibleItem(window->contentItem(), u"ReadAloudButton"_s)->property("text").toString();
}
}

// Read Aloud in every reader against the voice double: play, pause, resume, stop, leaving the
// screen, no engine; the rate set on User Defaults; the voice chosen for the locale.
class TestReadAloud : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }
    void playPauseStopLeave_data();
    void playPauseStopLeave();
    void hiddenWithoutEngine_data() { playPauseStopLeave_data(); }
    void hiddenWithoutEngine();
    void rateStoredAndApplied_data();
    void rateStoredAndApplied();
    void settingsRowsOnThePage();
    void voiceFollowsTheLocale_data();
    void voiceFollowsTheLocale();

private:
    // The cover, then the reader opened by `segue` with `setup`'s selection.
    QQuickWindow *openReader(QQmlApplicationEngine &engine, const QString &segue, const Setup &setup,
                             const QString &page);
};

QQuickWindow *TestReadAloud::openReader(QQmlApplicationEngine &engine, const QString &segue, const Setup &setup,
                                        const QString &page)
{
    UserDefaults::standard().set(u"hasBeenLaunchedBeforeFlag"_s, true);
    QQuickWindow *window = loadMainWindow(engine);
    if (!window || !waitForItem(window, u"ControlButton"_s))
        return nullptr;
    setup();
    Navigator::shared().performSegue(segue);
    if (!QTest::qWaitFor([&] { return topPage(window) == page; }))
        return nullptr;
    return window;
}

void TestReadAloud::playPauseStopLeave_data()
{
    QTest::addColumn<QString>("segue");
    QTest::addColumn<Setup>("setup");
    QTest::addColumn<QString>("page");
    QTest::newRow("page reader") << u"ViewPoemSegue"_s << pageReader() << u"View"_s;
    QTest::newRow("search-result reader") << u"SearchPoemSegue"_s << searchReader() << u"SearchView"_s;
    QTest::newRow("special-day reader") << u"SpecialDayReaderSegue"_s << specialDayReader() << u"EditSpecialDaysView"_s;
    QTest::newRow("about article") << u"AboutEditSegue"_s << aboutReader() << u"AboutEditView"_s;
}

void TestReadAloud::playPauseStopLeave()
{
    QFETCH(QString, segue);
    QFETCH(Setup, setup);
    QFETCH(QString, page);
    TestEnvironment environment;
    SpeechDouble &voice = SpeechDouble::shared();
    UserDefaults::standard().set(u"ReadAloudRate"_s, -0.4);
    QQmlApplicationEngine engine;
    QQuickWindow *window = openReader(engine, segue, setup, page);
    QVERIFY(window);
    QQuickItem *button = waitForItem(window, u"ReadAloudButton"_s);
    QVERIFY(button);
    QCOMPARE(buttonText(window), u"Read Aloud"_s);
    QVERIFY(!findVisibleItem(window->contentItem(), u"StopReadingButton"_s));

    // The voice is chosen when reading starts, from the locale then in force.
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria));
    click(window, button);
    QLocale::setDefault(before);
    QCOMPARE(voice.spokenText, shownText(window));
    QVERIFY(voice.spokenText.contains(u"lark at dawn"_s));
    QCOMPARE(voice.spokenLocale, QLocale(QLocale::German, QLocale::Austria));
    QCOMPARE(voice.spokenRate, -0.4);
    QCOMPARE(buttonText(window), u"Pause"_s);

    click(window, button);
    QCOMPARE(voice.state(), Speech::State::Paused);
    QCOMPARE(buttonText(window), u"Resume"_s);
    voice.spokenText.clear();
    click(window, button);
    QCOMPARE(voice.state(), Speech::State::Speaking);
    QVERIFY(voice.spokenText.isEmpty()); // resumed, not started again

    click(window, waitForItem(window, u"StopReadingButton"_s));
    QCOMPARE(voice.state(), Speech::State::Ready);
    QCOMPARE(buttonText(window), u"Read Aloud"_s);
    QTRY_VERIFY(!findVisibleItem(window->contentItem(), u"StopReadingButton"_s));

    // Reaching the end brings the button back; leaving while reading stops the voice.
    click(window, button);
    voice.finish();
    QCOMPARE(buttonText(window), u"Read Aloud"_s);
    click(window, button);
    const int stops = voice.stops;
    click(window, waitForItem(window, u"backButton"_s));
    QTRY_COMPARE(topPage(window), u"CoverView"_s);
    QTRY_COMPARE(voice.stops, stops + 1);
    QCOMPARE(voice.state(), Speech::State::Ready);
}

void TestReadAloud::hiddenWithoutEngine()
{
    QFETCH(QString, segue);
    QFETCH(Setup, setup);
    QFETCH(QString, page);
    TestEnvironment environment;
    SpeechDouble::shared().hasEngine = false;
    QQmlApplicationEngine engine;
    QQuickWindow *window = openReader(engine, segue, setup, page);
    QVERIFY(window);
    QVERIFY(waitForItem(window, u"scroller"_s));
    QVERIFY(findItem(window->contentItem(), u"ReadAloudButton"_s));
    QVERIFY(!findVisibleItem(window->contentItem(), u"ReadAloudButton"_s));
    QVERIFY(environment.logLines.filter(u"rror"_s).isEmpty());
}

void TestReadAloud::rateStoredAndApplied_data()
{
    QTest::addColumn<double>("moved");
    QTest::addColumn<double>("stored");
    QTest::newRow("slower") << -0.5 << -0.5;
    QTest::newRow("faster") << 0.7 << 0.7;
    QTest::newRow("beyond the fastest") << 1.6 << 1.0;
    QTest::newRow("beyond the slowest") << -3.0 << -1.0;
}

void TestReadAloud::rateStoredAndApplied()
{
    QFETCH(double, moved);
    QFETCH(double, stored);
    TestEnvironment environment;
    {
        DefaultsViewController defaults;
        defaults.viewDidLoad();
        QCOMPARE(defaults.ReadAloudRate(), 0.0);
        defaults.ReadAloudRateSliderChanged(moved);
    }
    QCOMPARE(Preferences::doubleIfPresent(PreferenceKeys::ReadAloudRate), stored);
    DefaultsViewController reopened;
    reopened.viewDidLoad();
    QCOMPARE(reopened.ReadAloudRate(), stored);

    ReadAloud readAloud;
    readAloud.play(u"The lark"_s);
    QCOMPARE(SpeechDouble::shared().spokenRate, stored);
}

// The two rows on User Defaults, driven by keyboard and mouse, store their keys.
void TestReadAloud::settingsRowsOnThePage()
{
    TestEnvironment environment;
    QQmlApplicationEngine engine;
    UserDefaults::standard().set(u"hasBeenLaunchedBeforeFlag"_s, true);
    QQuickWindow *window = loadMainWindow(engine);
    QVERIFY(window);
    QVERIFY(waitForItem(window, u"ControlButton"_s));
    Navigator::shared().performSegue(u"UserDefaultsSegue"_s);
    QTRY_COMPARE(topPage(window), u"DefaultsView"_s);

    QQuickItem *night = waitForItem(window, u"NightReadingSwitch"_s);
    QVERIFY(!night->property("checked").toBool());
    click(window, night);
    QTRY_VERIFY(Preferences::boolForKey(PreferenceKeys::NightReading));

    QQuickItem *slider = waitForItem(window, u"ReadAloudRateSlider"_s);
    slider->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(window, Qt::Key_Right);
    QTest::keyClick(window, Qt::Key_Right);
    QTRY_COMPARE(qRound(Preferences::doubleOrAbsent(PreferenceKeys::ReadAloudRate) * 10), 2);

    click(window, night);
    QTRY_VERIFY(!Preferences::boolForKey(PreferenceKeys::NightReading));
    QVERIFY(UserDefaults::standard().contains(u"NightReading"_s));
}

void TestReadAloud::voiceFollowsTheLocale_data()
{
    QTest::addColumn<QLocale>("wanted");
    QTest::addColumn<QList<QLocale>>("offered");
    QTest::addColumn<QString>("chosen"); // empty: the engine keeps its own voice
    const QList<QLocale> voices{QLocale(u"en_US"_s), QLocale(u"de_AT"_s), QLocale(u"de_DE"_s)};
    QTest::newRow("the locale itself") << QLocale(u"de_DE"_s) << voices << u"de_DE"_s;
    QTest::newRow("the first of its language") << QLocale(u"de_CH"_s) << voices << u"de_AT"_s;
    QTest::newRow("no voice of its language") << QLocale(u"fr_FR"_s) << voices << QString();
    QTest::newRow("an engine without voices") << QLocale(u"en_GB"_s) << QList<QLocale>{} << QString();
}

void TestReadAloud::voiceFollowsTheLocale()
{
    QFETCH(QLocale, wanted);
    QFETCH(QList<QLocale>, offered);
    QFETCH(QString, chosen);
    const std::optional<QLocale> voice = voiceLocale(wanted, offered);
    QCOMPARE(voice ? voice->name() : QString(), chosen);
}

QTEST_MAIN(TestReadAloud)
#include "tst_readaloud.moc"
