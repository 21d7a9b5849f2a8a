#include "Clock.h"
#include "MainTableViewController.h"
#include "Navigator.h"
#include "PageRows.h"
#include "Selection.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
QStringList rowsOf(PoemPrayerListModel &model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row);
        rows.append(index.data(PoemPrayerListModel::DateLabelRole).toString() + u" / "_s
                    + index.data(PoemPrayerListModel::PageLabelRole).toString()
                    + (index.data(PoemPrayerListModel::FavoriteCheckedRole).toBool() ? u" ✓"_s : u""_s));
    }
    return rows;
}
}

class TestPageList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsTheChosenView_data();
    void listsTheChosenView();
    void choosingARowFillsTheSelection_data();
    void choosingARowFillsTheSelection();
    void faultsAreFatal_data();
    void faultsAreFatal();
};

void TestPageList::listsTheChosenView_data()
{
    QTest::addColumn<QString>("selectedList");
    QTest::addColumn<QDate>("today");
    QTest::addColumn<int>("segment");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("today: both pages, morning first") << QString() << QDate(2027, 3, 3) << 0
        << QStringList{u"March 3 / Good Morning:   Page#  125"_s, u"March 3 /   Good Night:   Page#  126 ✓"_s};
    QTest::newRow("today without pages") << u"anything"_s << QDate(2027, 7, 4) << 0 << QStringList();
    QTest::newRow("morning pages in calendar order") << u"AM"_s << QDate(2027, 1, 1) << 2
        << QStringList{u"January 1 / Good Morning:   Page#  1 ✓"_s, u"March 3 / Good Morning:   Page#  125"_s};
    QTest::newRow("night pages") << u"PM"_s << QDate(2027, 1, 1) << 3
        << QStringList{u"January 1 /   Good Night:   Page#  2"_s, u"March 3 /   Good Night:   Page#  126 ✓"_s,
                       u"December 31 /   Good Night:   Page#  732"_s};
    QTest::newRow("favourites include a page of neither time of day") << u"FAV"_s << QDate(2027, 1, 1) << 4
        << QStringList{u"January 1 / Good Morning:   Page#  1 ✓"_s, u"Odd / Blank ✓"_s,
                       u"March 3 /   Good Night:   Page#  126 ✓"_s};
}

void TestPageList::listsTheChosenView()
{
    QFETCH(QString, selectedList);
    QFETCH(QDate, today);
    QFETCH(int, segment);
    QFETCH(QStringList, rows);
    TestEnvironment environment;
    insertPages({u"December 31|PM|12|31|732|F|last"_s, u"March 3|PM|3|3|126|T|m3 night"_s, u"March 3|AM|3|3|125|-|m3 morning"_s,
                 u"January 1|AM|1|1|1|T|first"_s, u"January 1|PM|1|1|2|F|second"_s, u"Odd|am|2|2|9|T|lower case"_s});
    Clock::set([today] { return QDateTime(today, QTime(12, 0)); });
    Selection::shared().setSelectedList(selectedList);
    MainTableViewController controller;
    QAbstractItemModelTester tester(controller.PoemList(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    controller.viewDidLoad();
    QCOMPARE(controller.segmentIndex(), segment);
    QCOMPARE(rowsOf(*controller.PoemList()), rows);
}

void TestPageList::choosingARowFillsTheSelection_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("selection"); // text, dt, ampm, month, day, pagenum, favorite
    QTest::newRow("favourite morning page") << u"May 5|AM|5|5|249|T|line one\nline two"_s
                                            << u"line one\nline two|May 5|AM|5|5|249|T"_s;
    QTest::newRow("absent favourite and text") << u"May 5|PM|5|5|250|-|-"_s << u"|May 5|PM|5|5|250|F"_s;
    QTest::newRow("empty time of day keeps the previous one") << u"May 6||5|6|251|F|t"_s << u"t|May 6|before|5|6|251|F"_s;
}

void TestPageList::choosingARowFillsTheSelection()
{
    QFETCH(QString, page);
    QFETCH(QString, selection);
    TestEnvironment environment;
    insertPages({page});
    Selection &selected = Selection::shared();
    selected.setSelectedAmpm(u"before"_s);
    MainTableViewController controller;
    controller.PoemList()->setPages(AppDelegate::shared().viewContext().fetch<PoemPrayer>(PoemPrayer::fetchRequest()));
    QSignalSpy segues(&Navigator::shared(), &Navigator::segueRequested);
    controller.didSelectRowAt(0);
    QCOMPARE(QStringList({selected.selectedPoemPrayer(), selected.selectedDt(), selected.selectedAmpm(),
                          QString::number(selected.selectedMonth()), QString::number(selected.selectedDay()),
                          QString::number(selected.selectedPagenum()), selected.selectedFavorite()})
                 .join(u'|'),
             selection);
    QCOMPARE(segues.size(), 1);
    QCOMPARE(segues.first().first().toString(), u"ViewPoemSegue"_s);
}

void TestPageList::faultsAreFatal_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("listFont");
    QTest::addColumn<QString>("message");
    QTest::newRow("page without a date") << u"-|AM|1|1|1|T|t"_s << u"Arial"_s << u"Fatal error: page 1 has no date text"_s;
    QTest::newRow("unknown list font") << u"d|AM|1|1|1|T|t"_s << u"No Such Family Anywhere"_s
                                       << u"Fatal error: the font \"No Such Family Anywhere\" is not known on this system"_s;
    QTest::newRow("chosen page without a time of day") << u"d|-|1|1|1|T|t"_s << u"Arial"_s
                                                       << u"Fatal error: the chosen page has no time of day"_s;
}

void TestPageList::faultsAreFatal()
{
    QFETCH(QString, page);
    QFETCH(QString, listFont);
    QFETCH(QString, message);
    TestEnvironment environment;
    insertPages({page});
    UserDefaults::standard().set(u"ListFontName"_s, listFont);
    Selection::shared().setSelectedList(u"FAV"_s);
    MainTableViewController controller;
    QCOMPARE(fatalStop([&] {
                 controller.viewDidLoad();
                 rowsOf(*controller.PoemList());
                 controller.didSelectRowAt(0);
             }),
             message);
}

QTEST_MAIN(TestPageList)
#include "tst_pagelist.moc"
