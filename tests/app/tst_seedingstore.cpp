#include "AppDelegate.h"
#include "Entities.h"
#include "PageFile.h"
#include "PageRows.h"
#include "PageSeeding.h"
#include "TestSupport.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// Each page after a fresh open of the store, as "dt|ampm|month|day", in row order.
QStringList storedPages()
{
    const auto container = loadedContainer();
    QStringList rows;
    for (const PoemPrayer *page : container->viewContext().fetch<PoemPrayer>(PoemPrayer::fetchRequest()))
        rows.append(QStringList{page->dt().value_or(u"-"_s), page->ampm().value_or(u"-"_s),
                                QString::number(page->month()), QString::number(page->day())}.join(u'|'));
    return rows;
}
}

// Loading the page file over pages the store already holds (the clearing skipped or failed):
// the duplicate check counts those pages too, and everything loaded survives a restart.
class TestSeedingStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storedPagesCount_data();
    void storedPagesCount();
};

void TestSeedingStore::storedPagesCount_data()
{
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("pages");

    QTest::newRow("a stored day wins over the file") << QStringList{u"old|AM|1|1|1|F|x"_s}
        << u"new^AM^1^1^1^F^y\nnight^PM^1^1^2^F^z"_s << QStringList{u"old|AM|1|1"_s, u"night|PM|1|1"_s};
    QTest::newRow("a stored page without a month matches nothing") << QStringList{u"old|AM|-|1|1|F|x"_s}
        << u"new^AM^0^1^1^F^y"_s << QStringList{u"old|AM|0|1"_s, u"new|AM|0|1"_s};
    QTest::newRow("time of day compared exactly") << QStringList{u"old|am|1|1|1|F|x"_s}
        << u"new^AM^1^1^1^F^y\nagain^AM^1^1^1^F^y"_s << QStringList{u"old|am|1|1"_s, u"new|AM|1|1"_s};
}

void TestSeedingStore::storedPagesCount()
{
    QFETCH(QStringList, stored);
    QFETCH(QString, file);
    QFETCH(QStringList, pages);
    TestEnvironment environment;
    environment.addBundleFile(u"Book.txt"_s, file.toLatin1());
    insertPages(stored);

    PageSeeding seeding;
    seeding.loadPoemPrayers(PageFile::columns);
    AppDelegate::shared().reset(); // as after a restart
    QCOMPARE(storedPages(), pages);
    QVERIFY(environment.logLines.isEmpty());
}

QTEST_MAIN(TestSeedingStore)
#include "tst_seedingstore.moc"
