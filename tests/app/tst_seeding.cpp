#include "Alerts.h"
#include "AppDelegate.h"
#include "CoverViewController.h"
#include "Entities.h"
#include "PageFile.h"
#include "PageRows.h"
#include "PageSeeding.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// Each page as "dt|ampm|month|day|pagenum|favorite|text", absent values as "-", in row order.
QStringList storedPages()
{
    return storedRows<PoemPrayer>(PageFile::columns);
}

QByteArray windows1250(const QString &text)
{
    QByteArray bytes;
    for (const QChar c : text) {
        switch (c.unicode()) {
        case 0x2019: bytes.append('\x92'); break;
        case 0x201C: bytes.append('\x93'); break;
        case 0x201D: bytes.append('\x94'); break;
        case 0x0161: bytes.append('\x9A'); break; // š
        case 0x0085: bytes.append('\x85'); break; // stands for the byte 0x85 itself
        default: bytes.append(char(c.unicode()));
        }
    }
    return bytes;
}

QStringList datesOf(const QList<PoemPrayer *> &pages)
{
    QStringList dates;
    for (const PoemPrayer *page : pages)
        dates.append(page->dt().value_or(u"-"_s) + u' ' + page->ampm().value_or(u"-"_s));
    return dates;
}
}

class TestSeeding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstLaunchLoadsPages_data()
    {
        QTest::addColumn<QString>("file"); // null: the bundle has no page file
        QTest::addColumn<QStringList>("pages");
        QTest::addColumn<QString>("ending"); // "stop: " and part of the fatal stop, "log: " and part of the logged error

        const QStringList one{u"d1|AM|12|25|359|F|text"_s};
        QTest::newRow("seven fields") << u"d1^AM^12^25^359^F^text"_s << one << QString();
        QTest::newRow("marker and CR LF read the same") << u"[POEMPRAYER]\r\nd1^AM^12^25^359^F^text\r\n\r\n"_s << one << QString();
        QTest::newRow("marker anywhere, blank lines") << u"\n\nd1^AM^12^25^359^F^text\n[POEMPRAYER]\n"_s << one << QString();
        QTest::newRow("marker with spaces is a page") << u" [POEMPRAYER]"_s << QStringList{u" [POEMPRAYER]|-|-|-|-|-|-"_s} << QString();
        // Windows-1250 can hold line feed, vertical tab, form feed and carriage return; its byte 0x85
        // is an ellipsis, not a next-line character.
        QTest::newRow("every newline kind the encoding can hold")
            << u"a^AM^1^1^1^F^x\x0B" "b^AM^1^2^2^F^x\x0C" "c^AM^1^3^3^F^x\r\r\n" "d^AM^1^4^4^F^x\ru\x85"_s
            << QStringList{u"a|AM|1|1|1|F|x"_s, u"b|AM|1|2|2|F|x"_s, u"c|AM|1|3|3|F|x"_s, u"d|AM|1|4|4|F|xu…"_s} << QString();
        QTest::newRow("first line of a day wins")
            << u"first^AM^1^1^1^F^one\nsecond^AM^1^1^2^T^two\nnight^PM^1^1^3^F^three"_s
            << QStringList{u"first|AM|1|1|1|F|one"_s, u"night|PM|1|1|3|F|three"_s} << QString();
        QTest::newRow("duplicate check sees the fields before quotes go")
            << u"a^AM^1^1^1^F^x\nb^AM^\"1\"^1^2^F^y"_s
            << QStringList{u"a|AM|1|1|1|F|x"_s, u"b|AM|1|1|2|F|y"_s} << QString();
        QTest::newRow("duplicate check compares numbers") << u"a^AM^01^1^1^F^x\nb^AM^1^+1^2^F^y"_s
                                                          << QStringList{u"a|AM|1|1|1|F|x"_s} << QString();
        QTest::newRow("quotes, commas and apostrophes vanish")
            << u"d1^AM^1^1^1^F^Good \"day\", it's fine"_s << QStringList{u"d1|AM|1|1|1|F|Good day its fine"_s} << QString();
        QTest::newRow("@#@ becomes a line feed") << u"d1^PM^1^1^2^F^one@#@two@#@@#@three"_s
                                                  << QStringList{u"d1|PM|1|1|2|F|one\ntwo\n\nthree"_s} << QString();
        QTest::newRow("@#@ only in the text") << u"a@#@b^AM^1^1^1^F^x"_s << QStringList{u"a@#@b|AM|1|1|1|F|x"_s} << QString();
        QTest::newRow("short lines leave columns unset")
            << u"only a date\nd2^PM\nd3^AM^2^3"_s
            << QStringList{u"only a date|-|-|-|-|-|-"_s, u"d2|PM|-|-|-|-|-"_s, u"d3|AM|2|3|-|-|-"_s} << QString();
        QTest::newRow("empty text piece is stored empty") << u"d^AM^1^1^1^F^"_s << QStringList{u"d|AM|1|1|1|F|"_s} << QString();
        QTest::newRow("signed and bounded numbers") << u"d^AM^-3^+4^32767^F^x"_s << QStringList{u"d|AM|-3|4|32767|F|x"_s} << QString();
        QTest::newRow("Windows-1250 letters and marks") << u"d^AM^1^1^1^F^“Tomáš’s” song"_s
                                                         << QStringList{u"d|AM|1|1|1|F|“Tomáš’s” song"_s} << QString();
        QTest::newRow("three circumflexes") << u"^^^"_s << QStringList() << u"stop: month"_s;
        QTest::newRow("eight fields") << u"ok^AM^1^1^1^F^x\nd^AM^1^2^2^F^x^extra"_s << QStringList{u"ok|AM|1|1|1|F|x"_s}
                                      << u"stop: Index out of range"_s;
        QTest::newRow("month not a number") << u"d^AM^x^1^1^F^t"_s << QStringList() << u"stop: month"_s;
        QTest::newRow("day with spaces") << u"d^AM^1^ 2^1^F^t"_s << QStringList() << u"stop: day"_s;
        QTest::newRow("page number out of range") << u"d^AM^1^1^32768^F^t"_s << QStringList() << u"stop: pagenum"_s;
        QTest::newRow("decimal point") << u"d^AM^1^1^1.0^F^t"_s << QStringList() << u"stop: pagenum"_s;
        QTest::newRow("missing file") << QString() << QStringList() << u"log: because there is no such file."_s;
        QTest::newRow("byte undefined in Windows-1250") << u"d^AM^1^1^1^F^\x81"_s << QStringList() << u"log: using text encoding"_s;
    }

    void firstLaunchLoadsPages()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, pages);
        QFETCH(QString, ending);
        TestEnvironment environment;
        environment.addBundleFile(file.isNull() ? u"Other.png"_s : u"Book.txt"_s, windows1250(file));
        AppDelegate::shared().viewContext().insertNewObject<PoemPrayer>()->setDt(u"left from before"_s);
        QVERIFY(!AppDelegate::shared().viewContext().save());
        QSignalSpy alerts(&Alerts::shared(), &Alerts::presented);

        CoverViewController cover;
        const QString stop = fatalStop([&] { cover.viewDidLoad(); });
        QVERIFY2(ending.startsWith(u"stop: "_s) ? stop.contains(ending.mid(6)) : stop.isEmpty(), qPrintable(stop));
        AppDelegate::shared().reset(); // drop a half-made page
        QCOMPARE(storedPages(), pages); // what was there before is gone
        QVERIFY(UserDefaults::standard().boolForKey(u"hasBeenLaunchedBeforeFlag"_s));
        if (!stop.isEmpty())
            return;
        const QStringList logged{u"First Launch"_s, u"Error reading file: The file “Book.txt” couldn’t be opened"_s};
        QCOMPARE(environment.logLines.size(), ending.isEmpty() ? 1 : 2);
        for (qsizetype i = 0; i < environment.logLines.size(); ++i)
            QVERIFY2(environment.logLines[i].startsWith(logged[i]), qPrintable(environment.logLines[i]));
        QVERIFY(environment.logLines.constLast().contains(ending.mid(5)));
        QCOMPARE(UserDefaults::standard().stringForKey(u"Page35"_s), u"true"_s); // the wallpaper defaults, whatever the file
        QCOMPARE(alerts.size(), 1);
        QCOMPARE(alerts.first().at(0).toString(), u"Initial Setup Recomendations?"_s);
        QCOMPARE(alerts.first().at(1).toString(),
                 u"It's recommended that you go to the User Defaults Menu and turn on wallpapers and select custom fonts to enhance your experience."_s);
        QCOMPARE(Alerts::shared().buttons(), QStringList{u"Ok"_s});
        Alerts::shared().dismiss(0);
    }

    void secondLaunchLeavesEverythingAlone()
    {
        TestEnvironment environment;
        environment.addBundleFile(u"Book.txt"_s, "d1^AM^1^1^1^F^x");
        CoverViewController first;
        first.viewDidLoad();
        Alerts::shared().dismiss(0);
        UserDefaults::standard().set(u"AM-40"_s, u"false"_s);
        UserDefaults::standard().removeObject(u"Page3"_s);
        environment.addBundleFile(u"Book.txt"_s, "d2^AM^1^2^2^F^y");
        environment.logLines.clear();
        QSignalSpy alerts(&Alerts::shared(), &Alerts::presented);

        CoverViewController second;
        second.viewDidLoad();

        QCOMPARE(environment.logLines, QStringList{u"Not First Launch"_s});
        QCOMPARE(alerts.size(), 0);
        QCOMPARE(storedPages(), QStringList{u"d1|AM|1|1|1|F|x"_s});
        QCOMPARE(UserDefaults::standard().stringForKey(u"AM-40"_s), u"false"_s);
        QCOMPARE(UserDefaults::standard().stringForKey(u"Page3"_s), u"true"_s);
    }

    // The store the build seeded is the built-in page file as a first launch would seed it, and a
    // fresh install with the built-in bundle takes it; over a store, or with another bundle, not.
    void seededBookIsTheBuiltInBookSeeded()
    {
        QStringList seeded;
        {
            TestEnvironment environment;
            PageSeeding seeding;
            seeding.clearPoemPrayers();
            seeding.loadPoemPrayers(PageFile::columns);
            seeded = storedPages();
        }
        QCOMPARE(seeded.size(), 732);
        TestEnvironment environment;
        QVERIFY(PageSeeding().adoptSeededBook(QStringLiteral(LARKWELLS_SEEDED_BOOK)));
        QCOMPARE(storedPages(), seeded);
        ManagedObjectContext &context = AppDelegate::shared().viewContext();
        context.insertNewObject<Notes>()->setNotes(u"written after"_s);
        QVERIFY(!context.save()); // the copy is the reader's own store, writable
        QVERIFY(!PageSeeding().adoptSeededBook(QStringLiteral(LARKWELLS_SEEDED_BOOK)));
        AppDelegate::shared().reset();
        QCOMPARE(storedPages(), seeded);

        TestEnvironment another;
        another.addBundleFile(u"Book.txt"_s, "d1^AM^1^1^1^F^x");
        QVERIFY(!PageSeeding().adoptSeededBook(QStringLiteral(LARKWELLS_SEEDED_BOOK)));
        QVERIFY(!QFileInfo::exists(QDir(another.dataDirectory()).filePath(u"TheLarkwellsBook.sqlite"_s)));
    }

    // Loading over pages the store already holds (the clearing skipped or failed): the duplicate
    // check counts those too, and everything loaded survives a restart.
    void storedPagesCountAsDuplicates_data()
    {
        QTest::addColumn<QStringList>("stored");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("pages");

        QTest::newRow("a stored day wins over the file") << QStringList{u"old|AM|1|1|1|F|x"_s}
            << u"new^AM^1^1^1^F^y\nnight^PM^1^1^2^F^z"_s << QStringList{u"old|AM|1|1|1|F|x"_s, u"night|PM|1|1|2|F|z"_s};
        QTest::newRow("a stored page without a month matches nothing") << QStringList{u"old|AM|-|1|1|F|x"_s}
            << u"new^AM^0^1^1^F^y"_s << QStringList{u"old|AM|-|1|1|F|x"_s, u"new|AM|0|1|1|F|y"_s};
        QTest::newRow("time of day compared exactly") << QStringList{u"old|am|1|1|1|F|x"_s}
            << u"new^AM^1^1^1^F^y\nagain^AM^1^1^1^F^y"_s << QStringList{u"old|am|1|1|1|F|x"_s, u"new|AM|1|1|1|F|y"_s};
    }

    void storedPagesCountAsDuplicates()
    {
        QFETCH(QStringList, stored);
        QFETCH(QString, file);
        QFETCH(QStringList, pages);
        TestEnvironment environment;
        environment.addBundleFile(u"Book.txt"_s, file.toLatin1());
        insertPages(stored);

        PageSeeding().loadPoemPrayers(PageFile::columns);
        AppDelegate::shared().reset();
        QCOMPARE(storedPages(), pages);
        QVERIFY(environment.logLines.isEmpty());
    }

    // The store itself: fetches, unsaved changes, one object per row, an older store upgraded.
    void fetchesFilterAndSort_data()
    {
        QTest::addColumn<Predicate>("predicate");
        QTest::addColumn<QList<SortDescriptor>>("sort");
        QTest::addColumn<QStringList>("expected");

        const QList<SortDescriptor> calendar{{u"month"_s}, {u"day"_s}, {u"ampm"_s}};
        QTest::newRow("day by decimal text, night after morning")
            << Predicate::conjunction({Predicate::equals(u"month"_s, u"1"_s), Predicate::equals(u"day"_s, u"2"_s)})
            << QList<SortDescriptor>{{u"ampm"_s}, {u"day"_s}} << QStringList{u"Jan 2 AM"_s, u"Jan 2 PM"_s};
        QTest::newRow("text that is no number matches nothing")
            << Predicate::equals(u"month"_s, u"one"_s) << calendar << QStringList();
        QTest::newRow("all pages in calendar order")
            << Predicate::disjunction({Predicate::equals(u"ampm"_s, u"AM"_s), Predicate::equals(u"ampm"_s, u"PM"_s)})
            << calendar << QStringList{u"Jan 2 AM"_s, u"Jan 2 PM"_s, u"Feb 1 AM"_s, u"Dec 31 PM"_s};
        QTest::newRow("favourites; lower-case am is neither AM nor PM")
            << Predicate::equals(u"favorite"_s, u"T"_s) << calendar << QStringList{u"Jan 2 PM"_s, u"Mar 3 am"_s};
        QTest::newRow("descending") << Predicate::equals(u"ampm"_s, u"PM"_s) << QList<SortDescriptor>{{u"month"_s, false}}
                                    << QStringList{u"Dec 31 PM"_s, u"Jan 2 PM"_s};
    }

    void fetchesFilterAndSort()
    {
        QFETCH(Predicate, predicate);
        QFETCH(QList<SortDescriptor>, sort);
        QFETCH(QStringList, expected);
        TestEnvironment environment;
        ManagedObjectContext &context = AppDelegate::shared().viewContext();
        insertPages({u"Dec 31|PM|12|31|-|F|-"_s, u"Jan 2|PM|1|2|-|T|-"_s, u"Feb 1|AM|2|1|-|F|-"_s, u"Jan 2|AM|1|2|-|F|-"_s,
                     u"Mar 3|am|3|3|-|T|-"_s});
        QVERIFY(!context.hasChanges());

        FetchRequest request = PoemPrayer::fetchRequest();
        request.predicate = predicate;
        request.sortDescriptors = sort;
        QCOMPARE(datesOf(context.fetch<PoemPrayer>(request)), expected);
        // A second context on the same store sees the same rows.
        const auto other = loadedContainer();
        QCOMPARE(datesOf(other->viewContext().fetch<PoemPrayer>(request)), expected);
    }

    void unsavedChangesCount()
    {
        TestEnvironment environment;
        ManagedObjectContext &context = AppDelegate::shared().viewContext();
        PoemPrayer *saved = insertPages({u"Jan 1|AM|1|1|-|F|-"_s, u"Jan 3|AM|1|3|-|F|-"_s}).first();
        QVERIFY(!context.hasChanges());
        PoemPrayer *unsaved = context.insertNewObject<PoemPrayer>();
        unsaved->setDt(u"Jan 2"_s);
        unsaved->setAmpm(u"AM"_s);
        unsaved->setDay(2);
        saved->setDay(4);
        FetchRequest request = PoemPrayer::fetchRequest();
        request.sortDescriptors = {{u"day"_s}};
        QCOMPARE(datesOf(context.fetch<PoemPrayer>(request)), (QStringList{u"Jan 2 AM"_s, u"Jan 3 AM"_s, u"Jan 1 AM"_s}));
        request.predicate = Predicate::equals(u"day"_s, 1);
        QCOMPARE(context.fetch<PoemPrayer>(request).size(), 0);
        context.deleteObject(saved);
        request.predicate.reset();
        QCOMPARE(context.fetch<PoemPrayer>(request).size(), 2);
        QVERIFY(context.hasChanges());
        QVERIFY(!context.save());
        QVERIFY(!context.hasChanges());
        QCOMPARE(loadedContainer()->viewContext().fetch<PoemPrayer>(request).size(), 2);
    }

    void identityMapGivesOneObjectPerRow()
    {
        TestEnvironment environment;
        ManagedObjectContext &context = AppDelegate::shared().viewContext();
        PoemPrayer *page = insertPages({u"Jan 1|AM|1|1|-|F|-"_s}).first();
        QCOMPARE(context.fetch<PoemPrayer>(PoemPrayer::fetchRequest()), QList<PoemPrayer *>{page});
        // A change saved elsewhere shows in a fetched object that has no changes of its own.
        const auto other = loadedContainer();
        other->viewContext().fetch<PoemPrayer>(PoemPrayer::fetchRequest()).first()->setFavorite(u"T"_s);
        QVERIFY(!other->viewContext().save());
        QCOMPARE(context.fetch<PoemPrayer>(PoemPrayer::fetchRequest()).first()->favorite(), u"T"_s);
    }

    // A store written by the first version (no lookup indexes) opens in this one, rows intact.
    void olderStoreIsUpgradedWithItsRows()
    {
        TestEnvironment environment;
        const QString path = QDir(environment.dataDirectory()).filePath(u"TheLarkwellsBook.sqlite"_s);
        QCOMPARE(sqlRun(path, {u"CREATE TABLE PoemPrayer (id INTEGER PRIMARY KEY, ampm TEXT, day INTEGER, dt TEXT, favorite TEXT, "
                               "month INTEGER, pagenum INTEGER, poemprayer TEXT)"_s,
                               u"CREATE TABLE Notes (id INTEGER PRIMARY KEY, ampm TEXT, day INTEGER, dt TEXT, dtstring TEXT, "
                               "month INTEGER, notes TEXT, subject TEXT, year INTEGER)"_s,
                               u"CREATE TABLE SpecialDay (id INTEGER PRIMARY KEY, ampm TEXT, dayname TEXT, poemprayer TEXT)"_s,
                               u"CREATE TABLE About (id INTEGER PRIMARY KEY, aboutText TEXT, name TEXT)"_s,
                               u"CREATE INDEX PoemPrayerDay ON PoemPrayer (month, day, ampm)"_s,
                               u"INSERT INTO PoemPrayer VALUES (1, 'AM', 2, 'January 2', 'T', 1, 3, 'Kept')"_s,
                               u"INSERT INTO Notes (subject, notes, year) VALUES ('Mine', 'every word', 2025)"_s,
                               u"PRAGMA user_version = 1"_s}),
                 QStringList());

        QCOMPARE(storedRows<PoemPrayer>({u"dt"_s, u"favorite"_s, u"poemprayer"_s}), QStringList{u"January 2|T|Kept"_s});
        QCOMPARE(storedRows<Notes>({u"notes"_s, u"year"_s}), QStringList{u"every word|2025"_s});
        QCOMPARE(sqlRun(path, {u"SELECT user_version || ' version, ' || (SELECT count(*) FROM sqlite_master WHERE type = 'index' "
                               "AND name IN ('PoemPrayerDate', 'SpecialDayName', 'AboutName')) || ' indexes' FROM pragma_user_version"_s}),
                 QStringList{u"2 version, 3 indexes"_s});
    }
};

QTEST_GUILESS_MAIN(TestSeeding)
#include "tst_seeding.moc"
