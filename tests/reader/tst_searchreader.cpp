#include "Alerts.h"
#include "PageRows.h"
#include "SearchViewController.h"
#include "Selection.h"
#include "Sharing.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QTest>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {
void select(const QString &ampm, const QString &dt, const QString &text, const QString &searchText)
{
    Selection &selection = Selection::shared();
    selection.setSelectedAmpm(ampm);
    selection.setSelectedDt(dt);
    selection.setSelectedPoemPrayer(text);
    selection.setSelectedSearchText(searchText);
    selection.setSelectedFavorite(u"F"_s);
}

}

class TestSearchReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void composesAndMarks_data();
    void composesAndMarks();
    void invalidPatternStops();
    void favouriteSavesTheFirstPage_data();
    void favouriteSavesTheFirstPage();
    void share_data();
    void share();
};

void TestSearchReader::composesAndMarks_data()
{
    QTest::addColumn<QString>("ampm");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("search");
    QTest::addColumn<int>("colour");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QStringList>("marked");
    QTest::addColumn<bool>("styled");
    QTest::addColumn<QColor>("textColor");
    const QString morning = u"\n\nFrom The Larkwells\n Good Morning\n\nJanuary 1\n\n"_s;
    const QString body = u"Snow on the sill,  SNOW & <bread>"_s;
    QTest::newRow("no search: red, nothing marked")
        << u"AM"_s << body << QString() << 2 << morning + body << QStringList() << true << QColor(0xb0, 0, 0);
    QTest::newRow("every case marked, black over red")
        << u"AM"_s << body << u"snow"_s << 2 << morning + body << QStringList{u"Snow"_s, u"SNOW"_s} << true
        << QColor(Qt::black);
    QTest::newRow("heading and date line marked")
        << u"PM"_s << body << u"n"_s << 0
        << u"\n\nFrom The Larkwells\n Good Night\n\nJanuary 1\n\n"_s + body
        << QStringList{u"N"_s, u"n"_s, u"n"_s, u"n"_s, u"N"_s} << true << QColor(Qt::black);
    QTest::newRow("a full stop is any letter") << u"AM"_s << body << u"s.ll"_s << 1 << morning + body
                                               << QStringList{u"sill"_s} << true << QColor(Qt::black);
    QTest::newRow("markup characters are text") << u"AM"_s << body << u"<bread>"_s << 0 << morning + body
                                                << QStringList{u"<bread>"_s} << true << QColor(Qt::black);
    QTest::newRow("no match: the plain style") << u"AM"_s << body << u"zebra"_s << 3 << morning + body
                                               << QStringList() << false << QColor(Qt::black);
    QTest::newRow("colour code 7, match: shown black") << u"AM"_s << body << u"sill"_s << 7 << morning + body
                                                       << QStringList{u"sill"_s} << true << QColor(Qt::black);
    QTest::newRow("colour code 7, no search: empty") << u"AM"_s << body << QString() << 7 << QString()
                                                     << QStringList() << false << QColor(Qt::black);
    QTest::newRow("neither morning nor night: the text alone")
        << u"am"_s << body << u"bread"_s << 0 << body << QStringList{u"bread"_s} << true << QColor(Qt::black);
}

void TestSearchReader::composesAndMarks()
{
    QFETCH(QString, ampm);
    QFETCH(QString, text);
    QFETCH(QString, search);
    QFETCH(int, colour);
    QFETCH(QString, shown);
    QFETCH(QStringList, marked);
    QFETCH(bool, styled);
    QFETCH(QColor, textColor);
    TestEnvironment environment;
    UserDefaults::standard().set(u"textColor"_s, colour);
    select(ampm, u"January 1"_s, text, search);
    SearchViewController controller;
    controller.viewDidLoad();
    QCOMPARE(controller.title(), u"Search Poems/Prayers"_s);
    QCOMPARE(Selection::shared().selectedPoemPrayer(), controller.CombinedText());
    QCOMPARE(controller.shownText(), shown);
    QTextDocument document;
    document.setHtml(controller.PoemPrayerText());
    QCOMPARE(document.toPlainText(), shown);
    QCOMPARE(markedFragments(document), marked);
    QCOMPARE(controller.firstMatchPosition(), marked.isEmpty() ? -1 : int(shown.indexOf(marked.first())));
    QCOMPARE(controller.appearance()->styled(), styled);
    if (styled)
        QCOMPARE(controller.appearance()->textColor(), textColor);
}

void TestSearchReader::invalidPatternStops()
{
    TestEnvironment environment;
    select(u"AM"_s, u"January 1"_s, u"Snow"_s, u"(snow"_s);
    SearchViewController controller;
    const QString stop = fatalStop([&] { controller.viewDidLoad(); });
    QVERIFY2(stop.contains(u"\"(snow\" is not a valid pattern"_s), qPrintable(stop));
}

void TestSearchReader::favouriteSavesTheFirstPage_data()
{
    QTest::addColumn<QString>("dt");
    QTest::addColumn<QString>("ampm");
    QTest::addColumn<int>("checkState");
    QTest::addColumn<QString>("stored"); // the marks of the three pages
    QTest::newRow("ticked") << u"May 1"_s << u"PM"_s << 1 << u"T T T"_s;
    QTest::newRow("cleared: the first of two") << u"May 2"_s << u"AM"_s << 0 << u"F F T"_s;
    QTest::newRow("no such page") << u"May 9"_s << u"AM"_s << 1 << u"F T T"_s;
    QTest::newRow("no date") << QString() << u"AM"_s << 0 << u"F T T"_s;
}

void TestSearchReader::favouriteSavesTheFirstPage()
{
    QFETCH(QString, dt);
    QFETCH(QString, ampm);
    QFETCH(int, checkState);
    QFETCH(QString, stored);
    TestEnvironment environment;
    insertPages({u"May 1|PM|5|1|1|F|a"_s, u"May 2|AM|5|2|2|T|b"_s, u"May 2|AM|5|2|3|T|c"_s});
    select(ampm, dt, u"a"_s, QString());
    SearchViewController controller;
    controller.viewDidLoad();
    controller.FavoriteCheckBoxChecked(checkState);
    QCOMPARE(Selection::shared().selectedFavorite(), checkState == 1 ? u"T"_s : u"F"_s);
    QCOMPARE(storedRows<PoemPrayer>({u"favorite"_s}).join(u' '), stored);
}

void TestSearchReader::share_data()
{
    QTest::addColumn<bool>("canSend");
    QTest::addColumn<QString>("ampm");
    QTest::addColumn<QString>("shared");
    QTest::newRow("morning") << true << u"AM"_s
                             << u"From The Larkwells \r\n Good Morning \r\n \r\nMay 1\r\n \r\n"
                                "\n\nFrom The Larkwells\n Good Morning\n\nMay 1\n\nBody"_s;
    QTest::newRow("neither: nothing") << true << u"x"_s << QString();
    QTest::newRow("no text messages: the alert") << false << u"AM"_s << QString();
}

void TestSearchReader::share()
{
    QFETCH(bool, canSend);
    QFETCH(QString, ampm);
    QFETCH(QString, shared);
    TestEnvironment environment;
    Sharing::shared().setCanSendTextForTesting(canSend);
    select(ampm, u"May 1"_s, u"Body"_s, QString());
    SearchViewController controller;
    controller.viewDidLoad();
    controller.ShareButtonClicked();
    QCOMPARE(Sharing::shared().text(), shared);
    QCOMPARE(Alerts::shared().showing(), !canSend);
    if (!canSend) {
        QCOMPARE(Alerts::shared().title(), u"Can't Send Text Message"_s);
        QCOMPARE(Alerts::shared().message(), u"Your Device is not able to send text messages"_s);
        QCOMPARE(Alerts::shared().buttons(), QStringList());
        Alerts::shared().dismiss(0);
    }
    Sharing::shared().cancel();
    Sharing::shared().setCanSendTextForTesting(std::nullopt);
}

QTEST_MAIN(TestSearchReader)
#include "tst_searchreader.moc"
