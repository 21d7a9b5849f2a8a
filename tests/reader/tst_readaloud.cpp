#include "DefaultsViewController.h"
#include "Navigator.h"
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

using namespace Qt::StringLiterals;

// Read Aloud in every reader against the voice double, the rate set on User Defaults, and the
// voice chosen for the locale.
class TestReadAloud : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }

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

QTEST_MAIN(TestReadAloud)
#include "tst_readaloud.moc"
