#include "AppDelegate.h"
#include "Entities.h"
#include "PageRows.h"
#include "TestSupport.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
PoemPrayer *addPage(ManagedObjectContext &context, const QString &dt, const QString &ampm, qint16 month, qint16 day,
                    const QString &favorite = u"F"_s)
{
    PoemPrayer *page = context.insertNewObject<PoemPrayer>();
    page->setDt(dt);
    page->setAmpm(ampm);
    page->setMonth(month);
    page->setDay(day);
    page->setFavorite(favorite);
    return page;
}

QStringList datesOf(const QList<PoemPrayer *> &pages)
{
    QStringList dates;
    for (const PoemPrayer *page : pages)
        dates.append(page->dt().value_or(u"-"_s) + u' ' + page->ampm().value_or(u"-"_s));
    return dates;
}
}

class TestStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        addPage(context, u"Dec 31"_s, u"PM"_s, 12, 31);
        addPage(context, u"Jan 2"_s, u"PM"_s, 1, 2, u"T"_s);
        addPage(context, u"Feb 1"_s, u"AM"_s, 2, 1);
        addPage(context, u"Jan 2"_s, u"AM"_s, 1, 2);
        addPage(context, u"Mar 3"_s, u"am"_s, 3, 3, u"T"_s);
        QVERIFY(!context.save());

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
        PoemPrayer *saved = addPage(context, u"Jan 1"_s, u"AM"_s, 1, 1);
        addPage(context, u"Jan 3"_s, u"AM"_s, 1, 3);
        QVERIFY(!context.save());
        addPage(context, u"Jan 2"_s, u"AM"_s, 1, 2);
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
        PoemPrayer *page = addPage(context, u"Jan 1"_s, u"AM"_s, 1, 1);
        QVERIFY(!context.save());
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

QTEST_GUILESS_MAIN(TestStore)
#include "tst_store.moc"
