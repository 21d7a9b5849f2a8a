#include "Navigator.h"
#include "PageRows.h"
#include "SearchTableViewController.h"
#include "Selection.h"
#include "TestSupport.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// Stored out of calendar order, to see the list sorted by month then day.
const QStringList pages{
    u"March 3|PM|3|3|124|F|Plain words for the evening"_s,
    u"January 1|AM|1|1|1|F|Snow on the sill"_s,
    u"January 1|PM|1|1|2|T|Night of Lanterns"_s,
    u"February 10|AM|2|10|41|x|the lantern glows"_s,
    u"February 11|am|2|11|43|T|never listed"_s,
};

QList<int> shownPagenums(SearchTableViewController &controller)
{
    QList<int> numbers;
    const PoemPrayerListModel &rows = *controller.rows();
    for (int row = 0; row < rows.rowCount(); ++row)
        numbers.append(rows.pages().at(row)->pagenum());
    return numbers;
}
}

class TestSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void filter_data();
    void filter();
    void staleResultsAfterScopeChange();
    void rowChosenSetsTheSelection_data();
    void rowChosenSetsTheSelection();
};

void TestSearch::filter_data()
{
    QTest::addColumn<int>("scope");
    QTest::addColumn<QStringList>("typed"); // one entry a keystroke
    QTest::addColumn<QList<int>>("shown");
    QTest::addColumn<QString>("count");
    QTest::newRow("nothing typed: every page by month and day")
        << 0 << QStringList() << QList<int>{1, 2, 41, 124} << QString();
    QTest::newRow("dates, upper case") << 0 << QStringList{u"JANUARY"_s} << QList<int>{1, 2} << u"2 pages match"_s;
    QTest::newRow("dates, digits anywhere in the text") << 0 << QStringList{u"1"_s} << QList<int>{1, 2, 41}
                                                        << u"3 pages match"_s;
    QTest::newRow("dates, letter by letter")
        << 0 << QStringList{u"f"_s, u"fe"_s, u"feb"_s} << QList<int>{41} << u"1 page matches"_s;
    QTest::newRow("dates never search the text") << 0 << QStringList{u"snow"_s} << QList<int>{} << u"No pages match"_s;
    QTest::newRow("text, inside words, any case")
        << 1 << QStringList{u"ANT"_s} << QList<int>{2, 41} << u"2 pages match"_s;
    QTest::newRow("text, a trailing space is kept") << 1 << QStringList{u"lantern "_s} << QList<int>{41}
                                                    << u"1 page matches"_s;
    QTest::newRow("text, a leading space is kept") << 1 << QStringList{u" lantern"_s} << QList<int>{2, 41}
                                                   << u"2 pages match"_s;
    QTest::newRow("cleared again: every page")
        << 1 << QStringList{u"s"_s, u"sn"_s, u"s"_s, QString()} << QList<int>{1, 2, 41, 124} << QString();
}

void TestSearch::filter()
{
    QFETCH(int, scope);
    QFETCH(QStringList, typed);
    QFETCH(QList<int>, shown);
    QFETCH(QString, count);
    TestEnvironment environment;
    insertPages(pages);
    SearchTableViewController controller;
    QAbstractItemModelTester tester(controller.rows(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    controller.viewDidLoad();
    controller.segmentedControlAction(scope);
    // Rows that stay keep their cells: typing never replaces the whole list.
    QSignalSpy resets(controller.rows(), &QAbstractItemModel::modelReset);
    for (const QString &text : typed)
        controller.setSearchText(text);
    QCOMPARE(shownPagenums(controller), shown);
    QCOMPARE(controller.matchCountText(), count);
    QCOMPARE(resets.count(), 0);
}

void TestSearch::staleResultsAfterScopeChange()
{
    TestEnvironment environment;
    insertPages(pages);
    SearchTableViewController controller;
    controller.viewDidLoad();
    QCOMPARE(controller.placeholder(), u"Search for Dates"_s);
    controller.setSearchText(u"night"_s);
    QCOMPARE(shownPagenums(controller), QList<int>{});

    controller.segmentedControlAction(1);
    QCOMPARE(shownPagenums(controller), QList<int>{}); // still the dates' result
    controller.setSearchText(u"nigh"_s);
    QCOMPARE(shownPagenums(controller), QList<int>{2});

    controller.segmentedControlAction(0);
    QCOMPARE(shownPagenums(controller), QList<int>{2});
    controller.setSearchText(u"nig"_s);
    QCOMPARE(shownPagenums(controller), QList<int>{});

    // Longer text searches the new scope's pages, not what the old scope left.
    controller.segmentedControlAction(1);
    controller.setSearchText(u"nigh"_s);
    QCOMPARE(shownPagenums(controller), QList<int>{2});
}

void TestSearch::rowChosenSetsTheSelection_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("selection"); // dt, pagenum, favorite
    QTest::newRow("whole list, favourite") << QString() << 1 << u"January 1|2|T"_s;
    QTest::newRow("whole list, other mark reads F") << QString() << 2 << u"February 10|41|F"_s;
    QTest::newRow("filtered, F") << u"o"_s << 0 << u"January 1|1|F"_s;
    QTest::newRow("filtered, other mark reads as none") << u"LANTERN"_s << 1 << u"February 10|41|"_s;
}

void TestSearch::rowChosenSetsTheSelection()
{
    QFETCH(QString, typed);
    QFETCH(int, row);
    QFETCH(QString, selection);
    TestEnvironment environment;
    insertPages(pages);
    SearchTableViewController controller;
    controller.viewDidLoad();
    controller.segmentedControlAction(1);
    controller.setSearchText(typed);
    Selection &selected = Selection::shared();
    selected.setSelectedSearchText(u"left over"_s);
    QSignalSpy segues(&Navigator::shared(), &Navigator::segueRequested);
    controller.didSelectRowAt(row);
    QCOMPARE(selected.selectedSearchText(), typed);
    QCOMPARE(u"%1|%2|%3"_s.arg(selected.selectedDt()).arg(selected.selectedPagenum()).arg(selected.selectedFavorite()), selection);
    QCOMPARE(selected.selectedPoemPrayer(), controller.rows()->pages().at(row)->poemprayer().value());
    QCOMPARE(segues.value(0).value(0).toString(), u"SearchPoemSegue"_s);
}

QTEST_MAIN(TestSearch)
#include "tst_search.moc"
