#include "PageRows.h"
#include "TestSupport.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

// "Go to Date" on the page list, in the real window: whatever view was open, the list shows all
// pages with the chosen day's morning page in sight, lit for a moment.
class TestGoToDate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }
    void goToDate_data();
    void goToDate();
};

namespace {
QQuickItem *visible(QQuickWindow *window, const QString &name)
{
    return findVisibleItem(window->contentItem(), name);
}

// Two pages a day for a whole leap year, as the book has them.
void insertLeapYear()
{
    QStringList rows;
    int page = 1;
    for (QDate day(2024, 1, 1); day.year() == 2024; day = day.addDays(1)) {
        const QString dt = QLocale::c().toString(day, u"MMMM d"_s);
        for (const QString &ampm : {u"AM"_s, u"PM"_s})
            rows.append(u"%1|%2|%3|%4|%5|F|A page for %1"_s.arg(dt, ampm).arg(day.month()).arg(day.day()).arg(page++));
    }
    insertPages(rows);
}
}

void TestGoToDate::goToDate_data()
{
    QTest::addColumn<int>("month");
    QTest::addColumn<int>("day"); // the row's name is the date the list must show
    QTest::newRow("January 1") << 1 << 1;
    QTest::newRow("February 29") << 2 << 29;
    QTest::newRow("December 31") << 12 << 31;
}

void TestGoToDate::goToDate()
{
    QFETCH(int, month);
    QFETCH(int, day);
    TestEnvironment environment;
    insertLeapYear();
    QQmlApplicationEngine engine;
    // Opened on another view than "All".
    QQuickWindow *window = openFromCover(engine, u"GoodNightButton"_s, u"MainTableView"_s);
    QVERIFY(window);

    click(window, waitForItem(window, u"GoToDateButton"_s));
    QQuickItem *monthWheel = waitForItem(window, u"monthWheel"_s);
    QVERIFY(monthWheel);
    QVERIFY(!visible(window, u"yearWheel"_s));
    monthWheel->setProperty("currentIndex", month - 1);
    QQuickItem *dayWheel = visible(window, u"dayWheel"_s);
    QTRY_COMPARE(dayWheel->property("count").toInt(), QDate(2024, month, 1).daysInMonth());
    dayWheel->setProperty("currentIndex", day - 1);
    click(window, visible(window, u"DoneButton"_s));

    QTRY_VERIFY(!visible(window, u"monthWheel"_s));
    QCOMPARE(visible(window, u"segment"_s)->property("currentIndex").toInt(), 1);
    auto *table = visible(window, u"table"_s);
    const int row = table->property("currentIndex").toInt();
    QQuickItem *found = visible(window, u"row-%1"_s.arg(row));
    QVERIFY(found);
    QCOMPARE(found->property("dateText").toString(), QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(found->property("pageText").toString().startsWith(u"Good Morning"_s));
    // In sight, and lit for a moment only.
    const QRectF shown = found->mapRectToItem(table, found->boundingRect());
    QVERIFY(shown.top() >= 0 && shown.bottom() <= table->height());
    QQuickItem *light = findItem(found, u"dateHighlight"_s);
    QTRY_COMPARE(light->opacity(), 1.0);
    QTRY_COMPARE_WITH_TIMEOUT(light->opacity(), 0.0, 5000);
    QVERIFY(table->hasActiveFocus()); // the keyboard goes on from the day found
}

QTEST_MAIN(TestGoToDate)
#include "tst_gotodate.moc"
