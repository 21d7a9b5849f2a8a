#include "Bundle.h"
#include "Clock.h"
#include "MainTableViewController.h"
#include "Navigator.h"
#include "PageRows.h"
#include "SearchTableViewController.h"
#include "Selection.h"
#include "SpecialDayFile.h"
#include "SpecialDaysTableViewController.h"
#include "TestSupport.h"
#include "UserDefaults.h"
#include "Wallpapers.h"

#include <QAbstractItemModelTester>
#include <QImage>
#include <QAccessible>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <functional>

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

// Stored out of calendar order, to see the list sorted by month then day.
const QStringList searchPages{
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

const QString flag = u"SpecialDayshasBeenLaunchedBeforeFlag"_s;

// Each shown row as "label|section|stored poem", absent poems as "-".
QStringList rowsOf(SpecialDaysTableViewController &controller)
{
    QStringList rows;
    SpecialDayListModel &model = *controller.SpecialDayList();
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row);
        rows.append(index.data(SpecialDayListModel::DayTextRole).toString() + u'|'
                    + index.data(SpecialDayListModel::SectionRole).toString() + u'|'
                    + model.days().at(row)->poemprayer().value_or(u"-"_s));
    }
    return rows;
}

QList<SpecialDayFile::Record> parsed(const QByteArray &bytes)
{
    const auto records = SpecialDayFile::records(QString::fromUtf8(bytes));
    return std::get<QList<SpecialDayFile::Record>>(records);
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

// The page list, the search list, the special-day list and "Go to Date".
class TestLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }

    void listsTheChosenView_data()
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

    void listsTheChosenView()
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

    void choosingARowFillsTheSelection_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("selection"); // text, dt, ampm, month, day, pagenum, favorite
        QTest::newRow("favourite morning page") << u"May 5|AM|5|5|249|T|line one\nline two"_s
                                                << u"line one\nline two|May 5|AM|5|5|249|T"_s;
        QTest::newRow("absent favourite and text") << u"May 5|PM|5|5|250|-|-"_s << u"|May 5|PM|5|5|250|F"_s;
        QTest::newRow("empty time of day keeps the previous one") << u"May 6||5|6|251|F|t"_s << u"t|May 6|before|5|6|251|F"_s;
    }

    void choosingARowFillsTheSelection()
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

    void faultsAreFatal_data()
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

    void faultsAreFatal()
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

    void goToDate_data()
    {
        QTest::addColumn<int>("month");
        QTest::addColumn<int>("day"); // the row's name is the date the list must show
        QTest::newRow("January 1") << 1 << 1;
        QTest::newRow("February 29") << 2 << 29;
        QTest::newRow("December 31") << 12 << 31;
    }

    void goToDate()
    {
        QFETCH(int, month);
        QFETCH(int, day);
        TestEnvironment environment;
        insertLeapYear();
        QAccessible::setActive(true); // as under a screen reader, from the start
        QQmlApplicationEngine engine;
        // Opened on another view than "All".
        QQuickWindow *window = openFromCover(engine, u"GoodNightButton"_s, u"MainTableView"_s);
        QVERIFY(window);

        click(window, waitForItem(window, u"GoToDateButton"_s));
        QQuickItem *monthWheel = waitForItem(window, u"monthWheel"_s);
        QVERIFY(monthWheel);
        QVERIFY(!findVisibleItem(window, u"yearWheel"_s));
        // A screen reader finds each wheel as a spin box that says what it shows.
        QAccessibleInterface *wheel = QAccessible::queryAccessibleInterface(monthWheel);
        QCOMPARE(wheel->role(), QAccessible::SpinBox);
        QCOMPARE(wheel->text(QAccessible::Name), u"Month, "_s + QLocale().monthName(QDate::currentDate().month()));
        monthWheel->setProperty("currentIndex", month - 1);
        QQuickItem *dayWheel = findVisibleItem(window, u"dayWheel"_s);
        QTRY_COMPARE(dayWheel->property("count").toInt(), QDate(2024, month, 1).daysInMonth());
        dayWheel->setProperty("currentIndex", day - 1);
        click(window, findVisibleItem(window, u"DoneButton"_s));

        QTRY_VERIFY(!findVisibleItem(window, u"monthWheel"_s));
        QCOMPARE(findVisibleItem(window, u"segment"_s)->property("currentIndex").toInt(), 1);
        auto *table = findVisibleItem(window, u"table"_s);
        const int row = table->property("currentIndex").toInt();
        QQuickItem *found = findVisibleItem(window, u"row-%1"_s.arg(row));
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

    void searchFilter_data()
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

    void searchFilter()
    {
        QFETCH(int, scope);
        QFETCH(QStringList, typed);
        QFETCH(QList<int>, shown);
        QFETCH(QString, count);
        TestEnvironment environment;
        insertPages(searchPages);
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

    void searchStaleResultsAfterScopeChange()
    {
        TestEnvironment environment;
        insertPages(searchPages);
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

    void searchRowChosenSetsTheSelection_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("selection"); // dt, pagenum, favorite
        QTest::newRow("whole list, favourite") << QString() << 1 << u"January 1|2|T"_s;
        QTest::newRow("whole list, other mark reads F") << QString() << 2 << u"February 10|41|F"_s;
        QTest::newRow("filtered, F") << u"o"_s << 0 << u"January 1|1|F"_s;
        QTest::newRow("filtered, other mark reads as none") << u"LANTERN"_s << 1 << u"February 10|41|"_s;
    }

    void searchRowChosenSetsTheSelection()
    {
        QFETCH(QString, typed);
        QFETCH(int, row);
        QFETCH(QString, selection);
        TestEnvironment environment;
        insertPages(searchPages);
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

    void specialDaysFirstVisitSeeds_data()
    {
        QTest::addColumn<QByteArray>("file"); // null: the bundle has no special-day file
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<QString>("logLine"); // after "First Launch"

        const QStringList easter{u"Good Morning - Easter|Morning|Risen\nindeed"_s, u"Good Night - Easter|Night|Sleep"_s};
        QTest::newRow("CR LF reads the same") << "[SPECIALDAYS]\r\nAM^Easter^Risen@#@indeed\r\nPM^Easter^Sleep\r\n"_ba
                                              << easter << QString();
        QTest::newRow("markers and blank lines anywhere, no header")
            << "\n\nPM^Easter^Sleep\n[SPECIALDAYS]\n\r\n\nAM^Easter^Risen@#@indeed\n[SPECIALDAYS]"_ba << easter << QString();
        QTest::newRow("first of two same days wins; the other time of day is its own row")
            << "AM^Easter^Risen@#@indeed\nAM^Easter^second\nPM^Easter^Sleep\nAM^Easter^third"_ba << easter << QString();
        QTest::newRow("mornings first, each block by name")
            << "PM^Advent^a\nAM^Zion^b\nPM^All Saints^c\nAM^Advent^d"_ba
            << QStringList{u"Good Morning - Advent|Morning|d"_s, u"Good Morning - Zion|Morning|b"_s,
                           u"Good Night - Advent|Night|a"_s, u"Good Night - All Saints|Night|c"_s}
            << QString();
        QTest::newRow("short records keep the fields they have")
            << "PM^Lammas\nAM\nAM^Lammas^\n"_ba
            << QStringList{u"Good Morning - |Morning|-"_s, u"Good Morning - Lammas|Morning|"_s, u"Good Night - Lammas|Night|-"_s}
            << QString();
        QTest::newRow("line breaks only in the poem") << "AM^A@#@B^x@#@@#@y"_ba
            << QStringList{u"Good Morning - A@#@B|Morning|x\n\ny"_s} << QString();
        QTest::newRow("missing file keeps the table") << QByteArray()
            << QStringList{u"Good Morning - Old|Morning|kept"_s}
            << u"Error reading file: The file “SpecialDays.txt” couldn’t be opened because there is no such file."_s;
        QTest::newRow("not UTF-8 keeps the table") << "AM^Caf\xe9^x"_ba
            << QStringList{u"Good Morning - Old|Morning|kept"_s}
            << u"Error reading file: The file “SpecialDays.txt” couldn’t be opened using text encoding Unicode (UTF-8)."_s;
    }

    void specialDaysFirstVisitSeeds()
    {
        QFETCH(QByteArray, file);
        QFETCH(QStringList, rows);
        QFETCH(QString, logLine);
        TestEnvironment environment;
        if (file.isNull())
            environment.addBundleFile(u"Other.txt"_s, "AM^Not^this");
        else
            environment.addBundleFile(u"SpecialDays.txt"_s, file);
        insertSpecialDays({u"AM|Old|kept"_s});
        UserDefaults::standard().set(u"ListFontSize"_s, 30.0);

        SpecialDaysTableViewController controller;
        QAbstractItemModelTester tester(controller.SpecialDayList(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        controller.viewDidLoad();

        QCOMPARE(rowsOf(controller), rows);
        QCOMPARE(environment.logLines.join(u'\n'), (QStringList{u"First Launch"_s, logLine}.join(u'\n').trimmed()));
        QVERIFY(UserDefaults::standard().boolForKey(flag));
        QCOMPARE(UserDefaults::standard().stringForKey(u"ListFontName"_s).value_or(QString()), u"Arial"_s);
        QCOMPARE(controller.appearance()->ListFontSize(), 17.0);
    }

    void specialDaysLongRecordIsFatalAfterTheDaysBeforeIt()
    {
        TestEnvironment environment;
        environment.addBundleFile(u"SpecialDays.txt"_s, "[SPECIALDAYS]\nAM^Lady Day^ok\r\nPM^Lady Day^x^y\nAM^Whitsun^never\n");
        {
            SpecialDaysTableViewController controller;
            QCOMPARE(fatalStop([&] { controller.viewDidLoad(); }),
                     u"Fatal error: SpecialDays.txt line 3 has 4 fields where a special day has at most 3: “PM^Lady Day^x^y”"_s);
        }
        // The next visit keeps what the stopped seeding stored.
        environment.logLines.clear();
        SpecialDaysTableViewController controller;
        controller.viewDidLoad();
        QCOMPARE(environment.logLines, QStringList{u"Not First Launch"_s});
        QCOMPARE(rowsOf(controller), QStringList{u"Good Morning - Lady Day|Morning|ok"_s});
    }

    void specialDaysChoosingADayFillsTheSelection()
    {
        TestEnvironment environment;
        UserDefaults::standard().set(flag, true);
        UserDefaults::standard().set(u"ListFontName"_s, u"DejaVu Sans"_s);
        insertSpecialDays({u"PM|Michaelmas|Angels\nkeep watch"_s, u"AM|-|-"_s});
        SpecialDaysTableViewController controller;
        controller.viewDidLoad();
        QCOMPARE(controller.appearance()->ListFontName(), u"DejaVu Sans"_s);
        QSignalSpy segues(&Navigator::shared(), &Navigator::segueRequested);
        Selection &selection = Selection::shared();
        QStringList chosen;
        for (const int row : {1, 0}) { // a day without name or poem gives empty strings, not the last ones
            controller.didSelectRowAt(row);
            chosen << selection.selectedSpecialAmpm() + u'|' + selection.selectedSpecialDayName() + u'|' + selection.selectedSpecialPoem();
        }
        QCOMPARE(chosen, (QStringList{u"PM|Michaelmas|Angels\nkeep watch"_s, u"AM||"_s}));
        QCOMPARE(segues.size(), 2);
        QCOMPARE(segues.first().first().toString(), u"SpecialDayReaderSegue"_s);
    }

    // A row brought into view shows its mark at once: a reused row does not draw its favourite in
    // as though it had just been ticked.
    void rowsComingIntoViewShowTheirMarkAtOnce()
    {
        TestEnvironment environment;
        QStringList rows;
        for (int page = 1; page <= 200; ++page) {
            const QDate day = QDate(2024, 1, 1).addDays((page - 1) / 2);
            rows.append(u"%1|%2|%3|%4|%5|%6|A page"_s.arg(QLocale::c().toString(day, u"MMMM d"_s), page % 2 ? u"AM"_s : u"PM"_s)
                            .arg(day.month()).arg(day.day()).arg(page).arg(page == 1 || page == 149 ? u"T"_s : u"F"_s));
        }
        insertPages(rows);
        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"GoodMorningButton"_s, u"MainTableView"_s);
        QVERIFY(window);
        QQuickItem *table = waitForItem(window, u"table"_s);
        QTRY_VERIFY(findVisibleItem(window, u"row-0"_s));
        // Every box takes for ever over a change it draws: a mark drawn in would never show.
        const std::function<void(QQuickItem *)> slow = [&](QQuickItem *item) {
            if (item->objectName() == u"FavoriteCheckBox"_s)
                item->setProperty("animationDuration", 1000.0);
            for (QQuickItem *child : item->childItems())
                slow(child);
        };
        slow(table);
        // The pixels of a row's box in the tint's blue: a ticked box is ringed and marked in it.
        const auto blueOf = [&](const QString &row) {
            QQuickItem *box = findItem(findVisibleItem(window, row), u"FavoriteCheckBox"_s);
            const QImage shot = window->grabWindow().copy(box->mapRectToScene(box->boundingRect()).toAlignedRect());
            return countPixels(shot, [](QRgb pixel) { return qBlue(pixel) > qRed(pixel) + 80; });
        };
        const int marked = blueOf(u"row-0"_s);
        QVERIFY(marked > 50);
        // Scrolled as a flick does, a quarter of the list a frame, to page 149.
        const auto inView = [&] {
            QQuickItem *row = findVisibleItem(window, u"row-74"_s);
            return row && row->mapRectToItem(table, row->boundingRect()).bottom() <= table->height();
        };
        for (int step = 0; step < 100 && !inView(); ++step) {
            table->setProperty("contentY", table->property("contentY").toReal() + table->height() / 4);
            QTest::qWait(20);
        }
        QVERIFY(inView());
        QVERIFY(findVisibleItem(window, u"row-74"_s)->property("favoriteChecked").toBool());
        QVERIFY2(blueOf(u"row-74"_s) > marked / 2, "the mark of a row scrolled into view is still to be drawn");
    }

    // A row's card shows the list wallpaper when one is given, and the plain card colour again
    // when it is taken away (the card keeps no stale picture), pressed or not.
    void cardWallpaperComesAndGoes()
    {
        QQmlEngine engine;
        const auto window = qmlWindow(engine, u"Window { width: 300; height: 80; visible: true\n"
                                              "CellCard { objectName: \"card\"; anchors.fill: parent } }"_s);
        QVERIFY(window);
        QQuickItem *card = findItem(window->contentItem(), u"card"_s);
        QVERIFY(card);
        const auto middle = [&] { return window->grabWindow().pixel(150, 40); };
        const auto cardColour = [card] { return card->property("color").value<QColor>().rgb(); };
        QCOMPARE(middle(), cardColour());
        const QUrl wallpaper = Bundle::main().imageUrl(Wallpapers::PMWallpaper().first());
        QStringList shown;
        for (const auto &[url, pressed] : {std::pair{wallpaper, false}, {QUrl(), false}, {wallpaper, true}, {QUrl(), true}}) {
            card->setProperty("wallpaper", url);
            card->setProperty("pressed", pressed);
            shown << (middle() == cardColour() ? u"card colour"_s : u"picture"_s);
        }
        QCOMPARE(shown, (QStringList{u"picture"_s, u"card colour"_s, u"picture"_s, u"card colour"_s}));
    }

    void specialDaysWriterRoundTrips()
    {
        const QByteArray file = "[SPECIALDAYS]\nAM^New Year’s Day^First@#@@#@Second\nPM^A@#@B^one\nPM^Short\n^No time^x\n"_ba;
        QCOMPARE(std::get<QByteArray>(SpecialDayFile::write(parsed(file))), file);

        // The shipped file survives a round trip day for day.
        const QList<SpecialDayFile::Record> days = parsed(readFile(TestEnvironment::sourceResources() + u"/SpecialDays.txt"_s));
        QVERIFY(days.size() > 40);
        const QList<SpecialDayFile::Record> again = parsed(std::get<QByteArray>(SpecialDayFile::write(days)));
        QCOMPARE(again.size(), days.size());
        for (qsizetype i = 0; i < days.size(); ++i)
            QCOMPARE(again[i].fields, days[i].fields);

        // What the format cannot spell is refused, not written wrong.
        for (const QStringList &fields : {QStringList{u"AM"_s, u"Easter"_s, u"a^b"_s}, QStringList{u"AM"_s, u"East\ner"_s},
                                          QStringList{u"AM"_s, u"Easter"_s, u"x"_s, u"y"_s}})
            QVERIFY(std::holds_alternative<SpecialDayFile::WriteError>(SpecialDayFile::write({{fields}})));
    }
};

QTEST_MAIN(TestLists)
#include "tst_lists.moc"
