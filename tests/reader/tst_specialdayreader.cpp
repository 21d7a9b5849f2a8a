#include "EditSpecialDaysViewController.h"
#include "Navigator.h"
#include "PageRows.h"
#include "Selection.h"
#include "Sharing.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
void select(const QString &ampm, const QString &poem)
{
    Selection &selection = Selection::shared();
    selection.setSelectedSpecialAmpm(ampm);
    selection.setSelectedSpecialDayName(u"Easter"_s);
    selection.setSelectedSpecialPoem(poem);
}
}

class TestSpecialDayReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*"_s)); }
    void composesAndStyles_data();
    void composesAndStyles();
    void saveWritesOnlyForHeadingWords_data();
    void saveWritesOnlyForHeadingWords();
    void listReaderAndBack();
};

void TestSpecialDayReader::composesAndStyles_data()
{
    QTest::addColumn<QString>("ampm");
    QTest::addColumn<QVariantMap>("preferences");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("look"); // colour, size, wallpaper
    QTest::newRow("morning: a blank before the name; 17 points")
        << u"AM"_s << QVariantMap() << u"Good Morning\n\n Easter\n\nRisen\nindeed"_s << u"#000000 17 "_s;
    QTest::newRow("night: no blank; stored size, red, wallpaper")
        << u"PM"_s << QVariantMap{{u"ReaderFontSize"_s, 22.0}, {u"textColor"_s, 2}, {u"useWallpaper"_s, 1}}
        << u"Good Night\n\nEaster\n\nRisen\nindeed"_s << u"#b00000 22 Page1.jpg"_s;
    QTest::newRow("neither: the poem alone; colour code 7 shows it in black")
        << u"pm"_s << QVariantMap{{u"textColor"_s, 7}} << u"Risen\nindeed"_s << u"#000000 17 "_s;
}

void TestSpecialDayReader::composesAndStyles()
{
    QFETCH(QString, ampm);
    QFETCH(QVariantMap, preferences);
    QFETCH(QString, text);
    QFETCH(QString, look);
    TestEnvironment environment;
    for (auto it = preferences.begin(); it != preferences.end(); ++it)
        UserDefaults::standard().set(it.key(), it.value());
    select(ampm, u"Risen\nindeed"_s);
    EditSpecialDaysViewController controller;
    controller.viewDidLoad();
    QCOMPARE(controller.PoemPrayerText(), text);
    QCOMPARE(Selection::shared().selectedSpecialPoem(), text);
    QCOMPARE(controller.title(), u"Easter"_s);
    const ReaderAppearance &shown = *controller.appearance();
    QVERIFY(shown.styled());
    QCOMPARE(u"%1 %2 %3"_s.arg(shown.textColor().name()).arg(shown.fontSize()).arg(shown.wallpaper().fileName()), look);

    // The keyboard steps the shown size within the stepper's range and stores nothing.
    for (int i = 0; i < 40; ++i)
        controller.StepFontSize(1);
    QCOMPARE(shown.fontSize(), 48.0);
    QCOMPARE(UserDefaults::standard().object(u"ReaderFontSize"_s), preferences.value(u"ReaderFontSize"_s));
}

void TestSpecialDayReader::saveWritesOnlyForHeadingWords_data()
{
    QTest::addColumn<QString>("ampm");
    QTest::addColumn<QString>("night"); // the night poem stored after the save
    QTest::newRow("the list's AM writes nothing") << u"AM"_s << u"old night"_s;
    QTest::newRow("the list's PM writes nothing") << u"PM"_s << u"old night"_s;
    QTest::newRow("Good Night writes the night poem") << u"Good Night"_s << u"edited"_s;
}

void TestSpecialDayReader::saveWritesOnlyForHeadingWords()
{
    QFETCH(QString, ampm);
    QFETCH(QString, night);
    TestEnvironment environment;
    insertSpecialDays({u"AM|Easter|old"_s, u"PM|Easter|old night"_s});
    select(ampm, u"old"_s);
    EditSpecialDaysViewController controller;
    controller.viewDidLoad();
    controller.setPoemPrayerText(u"edited"_s);
    environment.logLines.clear();
    QSignalSpy unwinds(&Navigator::shared(), &Navigator::unwindRequested);
    controller.SaveSpecialDays();
    QCOMPARE(storedRows<SpecialDay>({u"ampm"_s, u"poemprayer"_s}), (QStringList{u"AM|old"_s, u"PM|"_s + night}));
    QCOMPARE(environment.logLines, QStringList{u"Back button Clicked"_s});
    QCOMPARE(unwinds.value(0), QVariantList{u"unwindToSpecialDaysSegue"_s});
}

// Cover → Special Days (first visit seeds) → a day → share → back, in the real pages.
void TestSpecialDayReader::listReaderAndBack()
{
    TestEnvironment environment;
    environment.addBundleFile(u"SpecialDays.txt"_s,
                              "[SPECIALDAYS]\r\nPM^Candlemas^Light kept@#@for the dark\r\nAM^Candlemas^Morning light\r\n");
    QQmlApplicationEngine engine;
    QQuickWindow *window = openFromCover(engine, u"SpecialDaysButton"_s, u"SpecialDaysTableView"_s);
    QVERIFY(window);
    QQuickItem *nightRow = waitForItem(window, u"row-1"_s);
    QVERIFY(nightRow && waitForItem(window, u"section-Morning"_s) && waitForItem(window, u"section-Night"_s));
    QCOMPARE(nightRow->property("dayText").toString(), u"Good Night - Candlemas"_s);

    click(window, nightRow);
    QTRY_COMPARE(topPage(window), u"EditSpecialDaysView"_s);
    QQuickItem *text = waitForItem(window, u"PoemPrayerTextView"_s);
    QVERIFY(text);
    QCOMPARE(text->property("text").toString(), u"Good Night\n\nCandlemas\n\nLight kept\nfor the dark"_s);

    // Sharing hands over the text as it stands, edits included, with no text-message gate.
    Sharing::shared().setCanSendTextForTesting(false);
    text->setProperty("text", text->property("text").toString() + u"\nAmen"_s);
    click(window, waitForItem(window, u"ShareButton"_s));
    QTRY_VERIFY(Sharing::shared().showing());
    QCOMPARE(Sharing::shared().text(), u"Good Night\n\nCandlemas\n\nLight kept\nfor the dark\nAmen"_s);
    Sharing::shared().cancel();
    Sharing::shared().setCanSendTextForTesting(std::nullopt);

    click(window, waitForItem(window, u"backButton"_s));
    QTRY_COMPARE(topPage(window), u"SpecialDaysTableView"_s);
}

QTEST_MAIN(TestSpecialDayReader)
#include "tst_specialdayreader.moc"
