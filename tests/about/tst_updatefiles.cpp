#include "AboutFileWriter.h"
#include "AboutImportViewController.h"
#include "AboutRows.h"
#include "Alerts.h"
#include "FatalError.h"
#include "PageFileWriter.h"
#include "PageRows.h"
#include "PageSeeding.h"
#include "SpecialDaysExportViewController.h"
#include "StoreSnapshots.h"
#include "TestSupport.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
QByteArray golden(const QString &name)
{
    QFile file(QStringLiteral(LARKWELLS_TEST_DIR "/golden/") + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing golden file");
}
}

// The writers against golden files, their round trips through the readers, and the store copies.
class TestUpdateFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageUpdateFile_data();
    void pageUpdateFile();
    void aboutFileSortedByNameWithoutNamelessArticles();
    void aboutArticleWithoutTextCannotBeWritten();
    void aboutExportThenImportGivesTheSameArticles();
    void specialDaysFile();
    void snapshotsKeepTheNewestFive();
    void firstLaunchSeedingCopiesTheStoreFirst();
};

void TestUpdateFiles::pageUpdateFile_data()
{
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("empty table") << QStringList() << QByteArray("[POEMPRAYER]\n");
    QTest::newRow("line breaks, absent favourite, caret, month 0, negatives")
        << QStringList{u"d1|AM|12|25|359|F|First line\nsecond line"_s, u"January 2|PM|1|2|4|-|A caret ^ stays"_s,
                       u"-|-|0|0|0|T|-"_s, u"New Year|AM|-1|31|-7|F|"_s}
        << golden(u"pages.txt"_s);
}

void TestUpdateFiles::pageUpdateFile()
{
    QFETCH(QStringList, rows);
    QFETCH(QByteArray, expected);
    TestEnvironment environment;
    insertPages(rows);
    const auto pages = AppDelegate::shared().viewContext().fetch<PoemPrayer>(PoemPrayer::fetchRequest());
    QCOMPARE(PageFile::updateFileText(pages).toUtf8(), expected);
}

void TestUpdateFiles::aboutFileSortedByNameWithoutNamelessArticles()
{
    TestEnvironment environment;
    insertAbouts({u"Thanks|To our readers.\n\nAnd to our families."_s, u"-|Never written"_s,
                    u"Introduction|A morning and an evening page for each day."_s, u"|Nameless text"_s,
                    u"Caret|one line\ntwo^three"_s});
    AboutImportViewController controller;
    controller.CreateExportFile();
    QCOMPARE(controller.ImportTextView().toUtf8(), golden(u"about.txt"_s));
    QVERIFY(!controller.ExportButtonEnabled());
    QCOMPARE(environment.logLines.size(), 5); // every article is logged, the one left out too
    QTRY_COMPARE_WITH_TIMEOUT(Alerts::shared().message(), u"Process Complete - File Ready to Email"_s, 3000);
    QCOMPARE(Alerts::shared().title(), u"Data Export"_s);
    dismissAlerts();

    TestEnvironment empty;
    AboutImportViewController emptyController;
    emptyController.CreateExportFile();
    QCOMPARE(emptyController.ImportTextView(), u"[ABOUT]\n"_s);
    dismissAlerts();
}

void TestUpdateFiles::aboutArticleWithoutTextCannotBeWritten()
{
    TestEnvironment environment;
    insertAbouts({u"Draft|-"_s});
    AboutImportViewController controller;
    QVERIFY_THROWS_EXCEPTION(FatalErrorException, controller.CreateExportFile());
}

void TestUpdateFiles::aboutExportThenImportGivesTheSameArticles()
{
    TestEnvironment environment;
    const QStringList articles{u"Acknowledgements|To all who read.\n\nThank you."_s, u"Introduction|One page a morning."_s,
                               u"Quiet|Short"_s};
    insertAbouts(articles);
    AboutImportViewController exporter;
    exporter.CreateExportFile();
    QTemporaryDir folder;
    const QString path = folder.filePath(u"About.txt"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(exporter.ImportTextView().toUtf8());
    file.close();

    AboutImportViewController importer;
    importer.documentPicker(QUrl::fromLocalFile(path));
    importer.ImportButtonClicked();
    dismissAlerts();
    QCOMPARE(storedAbouts(), articles); // written in name order, read back in the same

}

void TestUpdateFiles::specialDaysFile()
{
    TestEnvironment environment;
    const QList<SpecialDay *> days = insertSpecialDays({u"AM|Midsummer|Long light\nshort night"_s, u"PM|Quiet Day|-"_s,
                                                        u"-|Nameless|A line"_s});
    // The bytes; reading them back is the special-day file's own round trip.
    QCOMPARE(std::get<QByteArray>(SpecialDayFile::write(SpecialDaysExportViewController::recordsOf(days))),
             golden(u"specialdays.txt"_s));
    QCOMPARE(std::get<QByteArray>(SpecialDayFile::write({})), "[SPECIALDAYS]\n");
}

void TestUpdateFiles::snapshotsKeepTheNewestFive()
{
    TestEnvironment environment;
    QVERIFY(!StoreSnapshots::take(u"first-launch"_s)); // no store yet, nothing to copy
    insertAbouts({u"Kept|In every copy"_s});
    QStringList taken;
    for (int i = 0; i < 7; ++i)
        taken.append(StoreSnapshots::take(i % 2 ? StoreSnapshots::aboutImport : u"seeding"_s).value_or(QString()));
    QCOMPARE(StoreSnapshots::all(), taken.mid(2));
    QCOMPARE(StoreSnapshots::latest(StoreSnapshots::aboutImport), taken[5]);
    QVERIFY(QFileInfo(taken[6]).fileName().startsWith(u"000007-seeding"_s));

    // A copy is a whole store: its articles come back over a changed table.
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    for (About *article : context.fetch<About>(About::fetchRequest()))
        context.deleteObject(article);
    insertAbouts({u"Later|Written after"_s});
    QVERIFY(StoreSnapshots::restoreArticles(taken[5]));
    const auto container = loadedContainer();
    const auto restored = container->viewContext().fetch<About>(About::fetchRequest());
    QCOMPARE(restored.size(), 1);
    QCOMPARE(restored.first()->name(), u"Kept"_s);
    QVERIFY(!StoreSnapshots::restoreArticles(taken[0])); // pruned
}

void TestUpdateFiles::firstLaunchSeedingCopiesTheStoreFirst()
{
    TestEnvironment environment;
    insertPages({u"January 1|AM|1|1|1|T|A favourite kept in the copy"_s});
    PageSeeding().clearPoemPrayers();
    const QString copy = StoreSnapshots::latest(u"first-launch"_s);
    QVERIFY(!copy.isEmpty());
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"copy"_s);
        database.setDatabaseName(copy);
        QVERIFY(database.open());
        QSqlQuery query(u"SELECT favorite, poemprayer FROM PoemPrayer"_s, database);
        QVERIFY(query.next());
        QCOMPARE(query.value(1).toString(), u"A favourite kept in the copy"_s);
    }
    QSqlDatabase::removeDatabase(u"copy"_s);
}

QTEST_MAIN(TestUpdateFiles)
#include "tst_updatefiles.moc"
