#include "AppDelegate.h"
#include "Entities.h"
#include "ExportViewController.h"
#include "PageRows.h"
#include "TestSupport.h"

#include <QTest>

using namespace Qt::StringLiterals;

// The page export reads the stored columns straight from the store unless the context holds
// unsaved page changes; either way the file must be what the store plus those changes hold.
class TestPageExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesWhatTheContextHolds_data();
    void writesWhatTheContextHolds();
};

void TestPageExport::writesWhatTheContextHolds_data()
{
    QTest::addColumn<QStringList>("pages");
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("file");

    const QStringList two{u"January 1|AM|1|1|1|F|first"_s, u"January 1|PM|1|1|2|T|second"_s};
    QTest::newRow("empty table") << QStringList() << u"none"_s << u"[POEMPRAYER]\n"_s;
    QTest::newRow("stored pages in row order") << two << u"none"_s
        << u"[POEMPRAYER]\nJanuary 1^AM^1^1^1^F^first\nJanuary 1^PM^1^1^2^T^second\n"_s;
    QTest::newRow("absent values") << QStringList{u"-|-|-|-|-|-|-"_s} << u"none"_s << u"[POEMPRAYER]\n^^0^0^0^^\n"_s;
    QTest::newRow("signed and largest numbers") << QStringList{u"d|AM|-3|-32768|32767|F|x"_s} << u"none"_s
        << u"[POEMPRAYER]\nd^AM^-3^-32768^32767^F^x\n"_s;
    QTest::newRow("text with circumflex, line feeds and accents")
        << QStringList{u"d|PM|2|3|4|F|a^b\nc\n\n“Tomáš”"_s} << u"none"_s
        << u"[POEMPRAYER]\nd^PM^2^3^4^F^a^b\nc\n\n“Tomáš”\n"_s;
    QTest::newRow("an unsaved favourite") << two << u"favorite"_s
        << u"[POEMPRAYER]\nJanuary 1^AM^1^1^1^T^first\nJanuary 1^PM^1^1^2^T^second\n"_s;
    QTest::newRow("an unsaved new page") << two << u"insert"_s
        << u"[POEMPRAYER]\nJanuary 1^AM^1^1^1^F^first\nJanuary 1^PM^1^1^2^T^second\nnew^AM^5^6^7^-^n\n"_s;
    QTest::newRow("an unsaved deletion") << two << u"delete"_s << u"[POEMPRAYER]\nJanuary 1^PM^1^1^2^T^second\n"_s;
}

void TestPageExport::writesWhatTheContextHolds()
{
    QFETCH(QStringList, pages);
    QFETCH(QString, change);
    QFETCH(QString, file);
    TestEnvironment environment;
    insertPages(pages);
    AppDelegate::shared().reset(); // no page objects made yet, as when the screen opens
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    if (change != u"none"_s) {
        const QList<PoemPrayer *> stored = context.fetch<PoemPrayer>(PoemPrayer::fetchRequest());
        if (change == u"favorite"_s) {
            stored.constFirst()->setFavorite(u"T"_s);
        } else if (change == u"delete"_s) {
            context.deleteObject(stored.constFirst());
        } else {
            PoemPrayer *page = context.insertNewObject<PoemPrayer>();
            for (const auto &[column, value] : {std::pair{u"dt"_s, u"new"_s}, {u"ampm"_s, u"AM"_s}, {u"month"_s, u"5"_s},
                                                {u"day"_s, u"6"_s}, {u"pagenum"_s, u"7"_s}, {u"favorite"_s, u"-"_s},
                                                {u"poemprayer"_s, u"n"_s}})
                page->setValueForKey(column, value);
        }
    }

    ExportViewController controller;
    QCOMPARE(controller.updateFileText(), file);
}

QTEST_MAIN(TestPageExport)
#include "tst_pageexport.moc"
