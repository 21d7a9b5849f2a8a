#include "Alerts.h"
#include "PageRows.h"
#include "Selection.h"
#include "Sharing.h"
#include "TestSupport.h"
#include "UserDefaults.h"
#include "ViewController.h"
#include "Wallpapers.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
void select(const QString &ampm, const QString &dt, const QString &text, const QString &favorite = u"F"_s)
{
    Selection &selection = Selection::shared();
    selection.setSelectedAmpm(ampm);
    selection.setSelectedDt(dt);
    selection.setSelectedPoemPrayer(text);
    selection.setSelectedFavorite(favorite);
}

// A scripted random source: hands out the given draws and records each bound asked for.
struct Draws {
    QList<int> values;
    QList<int> bounds;
    Wallpapers::Uniform uniform()
    {
        return [this](int bound) { bounds.append(bound); return values.takeFirst(); };
    }
};
}

class TestReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void composesHeadingDateAndText_data();
    void composesHeadingDateAndText();
    void appearanceFromPreferences_data();
    void appearanceFromPreferences();
    void favouriteSavesExactlyOnePage_data();
    void favouriteSavesExactlyOnePage();
    void stepperMovesOnePointAndStoresTheSize();
    void wallpaperDrawBounds_data();
    void wallpaperDrawBounds();
    void shareGate_data();
    void shareGate();
    void generalShareLogsItsOutcome();
};

void TestReader::composesHeadingDateAndText_data()
{
    QTest::addColumn<QString>("ampm");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::newRow("morning") << u"AM"_s << u"Good Morning"_s << u"\nFrom The Larkwells\n Good Morning\n\nMay 1\n\nBody"_s;
    QTest::newRow("night") << u"PM"_s << u"Good Night"_s << u"\nFrom The Larkwells\n Good Night\n\nMay 1\n\nBody"_s;
    QTest::newRow("neither") << u"am"_s << u"View Poems/Prayers"_s << u"Body"_s;
}

void TestReader::composesHeadingDateAndText()
{
    QFETCH(QString, ampm);
    QFETCH(QString, title);
    QFETCH(QString, text);
    TestEnvironment environment;
    select(ampm, u"May 1"_s, u"Body"_s);
    ViewController controller;
    controller.viewDidLoad();
    QCOMPARE(controller.title(), title);
    QCOMPARE(controller.PoemPrayerText(), text);
    QCOMPARE(controller.CombinedText(), text);
    QCOMPARE(Selection::shared().selectedPoemPrayer(), text);
    QCOMPARE(UserDefaults::standard().integerForKey(u"reviewWorthyActionCount"_s), 1); // the review rule ran
}

void TestReader::appearanceFromPreferences_data()
{
    QTest::addColumn<QVariantMap>("preferences");
    QTest::addColumn<QString>("fatal"); // the stop's message, empty for none
    QTest::addColumn<bool>("styled");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<double>("size");
    QTest::addColumn<QString>("wallpaper");
    QTest::newRow("defaults") << QVariantMap() << QString() << true << QColor(Qt::black) << 15.0 << QString();
    QTest::newRow("blue, larger, with wallpaper")
        << QVariantMap{{u"textColor"_s, 3}, {u"ReaderFontSize"_s, 21.0}, {u"useWallpaper"_s, 1},
                       {u"FontName"_s, u"EB Garamond"_s}}
        << QString() << true << QColor(Qt::blue) << 21.0 << u"Page1.jpg"_s;
    QTest::newRow("whole size stored as integer") << QVariantMap{{u"ReaderFontSize"_s, 17}} << QString() << true
                                                  << QColor(Qt::black) << 17.0 << QString();
    QTest::newRow("colour code 7 keeps the laid-out text view") << QVariantMap{{u"textColor"_s, 7}} << QString() << false
                                                                << QColor(Qt::black) << 15.0 << QString();
    QTest::newRow("unknown font") << QVariantMap{{u"FontName"_s, u"Nowhere Sans Imaginary"_s}}
                                  << u"Fatal error: the font \"Nowhere Sans Imaginary\" is not known on this system"_s << false
                                  << QColor() << 0.0 << QString();
    QTest::newRow("colour stored as text") << QVariantMap{{u"textColor"_s, u"2"_s}}
                                           << u"Fatal error: the setting \"textColor\" holds a value that is not an integer"_s << false << QColor()
                                           << 0.0 << QString();
}

void TestReader::appearanceFromPreferences()
{
    QFETCH(QVariantMap, preferences);
    QFETCH(QString, fatal);
    QFETCH(bool, styled);
    QFETCH(QColor, color);
    QFETCH(double, size);
    QFETCH(QString, wallpaper);
    TestEnvironment environment;
    for (auto it = preferences.begin(); it != preferences.end(); ++it)
        UserDefaults::standard().set(it.key(), it.value());
    select(u"AM"_s, u"May 1"_s, u"Body"_s);
    ViewController controller;
    QCOMPARE(fatalStop([&] { controller.viewDidLoad(); }), fatal);
    if (!fatal.isEmpty())
        return;
    QCOMPARE(controller.appearance()->styled(), styled);
    QCOMPARE(controller.PoemPrayerText().isEmpty(), !styled);
    if (styled) {
        QCOMPARE(controller.appearance()->textColor(), color);
        QCOMPARE(controller.appearance()->fontSize(), size);
    }
    QCOMPARE(controller.appearance()->wallpaper().fileName(), wallpaper);
}

void TestReader::favouriteSavesExactlyOnePage_data()
{
    QTest::addColumn<QStringList>("pages");
    QTest::addColumn<QStringList>("stored");
    const QString heading = u"\nFrom The Larkwells\n Good Morning\n\nMay 1\n\nBody"_s;
    QTest::newRow("one match: favourite and shown text written")
        << QStringList{u"May 1|AM|5|1|241|F|Body"_s, u"May 1|PM|5|1|242|F|Night"_s}
        << QStringList{u"May 1|T|"_s + heading, u"May 1|F|Night"_s};
    QTest::newRow("no match writes nothing") << QStringList{u"May 2|AM|5|2|243|F|Body"_s}
                                             << QStringList{u"May 2|F|Body"_s};
    QTest::newRow("two morning pages share the date: nothing written")
        << QStringList{u"May 1|AM|5|1|241|F|Body"_s, u"May 1|AM|5|1|241|F|Copy"_s}
        << QStringList{u"May 1|F|Body"_s, u"May 1|F|Copy"_s};
}

void TestReader::favouriteSavesExactlyOnePage()
{
    QFETCH(QStringList, pages);
    QFETCH(QStringList, stored);
    TestEnvironment environment;
    insertPages(pages);
    select(u"AM"_s, u"May 1"_s, u"Body"_s);
    ViewController controller;
    QSignalSpy favourite(&controller, &ViewController::favoriteCheckStateRequested);
    controller.viewDidLoad();
    QCOMPARE(favourite.size(), 1);
    QCOMPARE(favourite.first(), (QVariantList{0, false}));

    controller.CheckBoxChecked(1);

    QCOMPARE(Selection::shared().selectedFavorite(), u"T"_s);
    QCOMPARE(storedRows<PoemPrayer>({u"dt"_s, u"favorite"_s, u"poemprayer"_s}), stored);
}

void TestReader::stepperMovesOnePointAndStoresTheSize()
{
    TestEnvironment environment;
    select(u"PM"_s, u"May 1"_s, u"Body"_s);
    ViewController controller;
    controller.viewDidLoad();
    controller.ChangeFontSize(16);
    QCOMPARE(controller.appearance()->fontSize(), 16.0);
    QCOMPARE(UserDefaults::standard().typeOf(u"ReaderFontSize"_s), UserDefaults::Type::Double);
    QCOMPARE(UserDefaults::standard().doubleForKey(u"ReaderFontSize"_s), 16.0);
    controller.ChangeFontSize(26); // a bigger step still moves the text one point
    QCOMPARE(controller.appearance()->fontSize(), 17.0);
    controller.ChangeFontSize(20);
    QCOMPARE(controller.appearance()->fontSize(), 16.0);
    controller.ChangeFontSize(20);
    QCOMPARE(controller.appearance()->fontSize(), 16.0);
}

void TestReader::wallpaperDrawBounds_data()
{
    QTest::addColumn<int>("firstBound");
    QTest::addColumn<QStringList>("unused"); // names set to "false"; all others "true"
    QTest::addColumn<bool>("fresh");         // no wallpaper keys at all
    QTest::addColumn<QList<int>>("draws");
    QTest::addColumn<int>("index");
    QTest::addColumn<QList<int>>("bounds");
    QTest::newRow("reader's first draw reaches the last") << 35 << QStringList() << false << QList<int>{34} << 34
                                                          << QList<int>{35};
    QTest::newRow("redraws stop short of the last") << 35 << QStringList{u"Page3"_s} << false
                                                    << QList<int>{2, 33} << 33 << QList<int>{35, 34};
    QTest::newRow("list draws never reach the last") << 34 << QStringList{u"Page1"_s, u"Page2"_s} << false
                                                     << QList<int>{0, 1, 5} << 5 << QList<int>{34, 34, 34};
    QTest::newRow("a name without a key keeps the start") << 35 << QStringList() << true << QList<int>{9} << 0
                                                          << QList<int>{35};
}

void TestReader::wallpaperDrawBounds()
{
    QFETCH(int, firstBound);
    QFETCH(QStringList, unused);
    QFETCH(bool, fresh);
    QFETCH(QList<int>, draws);
    QFETCH(int, index);
    QFETCH(QList<int>, bounds);
    TestEnvironment environment;
    if (!fresh)
        Wallpapers::enableUnsetWallpapers();
    for (const QString &name : unused)
        UserDefaults::standard().set(name, u"false"_s);
    Draws script{draws, {}};
    QCOMPARE(Wallpapers::draw(Wallpapers::ViewerWallpaper(), firstBound, 0, script.uniform()), index);
    QCOMPARE(script.bounds, bounds);
}

void TestReader::shareGate_data()
{
    QTest::addColumn<bool>("canSendText");
    QTest::addColumn<QString>("ampm");
    QTest::addColumn<bool>("alert");
    QTest::addColumn<bool>("sheet");
    QTest::newRow("no text messages: alert, never the sheet") << false << u"AM"_s << true << false;
    QTest::newRow("morning page") << true << u"AM"_s << false << true;
    QTest::newRow("night page") << true << u"PM"_s << false << true;
    QTest::newRow("neither: nothing") << true << u"x"_s << false << false;
}

void TestReader::shareGate()
{
    QFETCH(bool, canSendText);
    QFETCH(QString, ampm);
    QFETCH(bool, alert);
    QFETCH(bool, sheet);
    TestEnvironment environment;
    Sharing::shared().setCanSendTextForTesting(canSendText);
    select(ampm, u"May 1"_s, u"Body"_s);
    ViewController controller;
    controller.viewDidLoad();
    controller.setPoemPrayerText(u"edited, not saved"_s);
    QSignalSpy alerts(&Alerts::shared(), &Alerts::presented);

    controller.SharePoem();

    QCOMPARE(alerts.wait(100), alert); // the alert comes on the next turn of the event loop
    if (alert) {
        QCOMPARE(alerts.first().at(0).toString(), u"Can't Send Text Message"_s);
        QCOMPARE(alerts.first().at(1).toString(), u"Your Device is not able to send text messages."_s);
        QCOMPARE(Alerts::shared().buttons(), QStringList{u"OK"_s});
        Alerts::shared().dismiss(0);
    }
    QCOMPARE(Sharing::shared().showing(), sheet);
    if (sheet)
        QCOMPARE(Sharing::shared().text(), u"edited, not saved"_s);
    Sharing::shared().cancel();
    Sharing::shared().setCanSendTextForTesting(std::nullopt);
}

void TestReader::generalShareLogsItsOutcome()
{
    TestEnvironment environment;
    select(u"x"_s, u"May 1"_s, u"Body"_s);
    ViewController controller;
    controller.viewDidLoad();
    environment.logLines.clear();
    controller.FacebookShare();
    QCOMPARE(Sharing::shared().text(), u"Body"_s);
    Sharing::shared().sheetPresented();
    Sharing::shared().cancel();
    controller.FacebookShare();
    Sharing::shared().sheetPresented();
    Sharing::shared().copyToClipboard();
    QCOMPARE(environment.logLines, (QStringList{u"presented"_s, u"canceled"_s, u"presented"_s, u"completed"_s}));
}

QTEST_MAIN(TestReader)
#include "tst_reader.moc"
