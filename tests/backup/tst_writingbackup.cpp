#include "Alerts.h"
#include "ExportLarkwellFilesViewController.h"
#include "PageRows.h"
#include "PreferenceKeys.h"
#include "StoreSnapshots.h"
#include "TestSupport.h"
#include "WritingBackup.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// A small shipped book and about file, and a store filled from them as the first launch and the
// first visit of the about list would fill it.
void shipSmallBook(TestEnvironment &environment)
{
    environment.addBundleFile(QStringLiteral("Book.txt"),
                              "[POEMPRAYER]\r\nJanuary 1^AM^1^1^1^F^Frost on the gate@#@and a kettle singing\r\n"
                              "January 1^PM^1^1^2^F^The lamp is low\r\n"
                              "January 2^AM^1^2^3^F^Bread and a blue cup\r\n");
    environment.addBundleFile(QStringLiteral("About.txt"), "[ABOUT]\nWelcome^Read a page a day.@#@Keep it.\n");
}

void seedSmallBook()
{
    insertPages({QStringLiteral("January 1|AM|1|1|1|F|Frost on the gate\nand a kettle singing"),
                 QStringLiteral("January 1|PM|1|1|2|F|The lamp is low"),
                 QStringLiteral("January 2|AM|1|2|3|F|Bread and a blue cup")});
    insertAbouts({QStringLiteral("Welcome|Read a page a day.\nKeep it.")});
}

// Notes as "subject|text|ISO date", written straight into the store.
void insertNotes(const QStringList &rows)
{
    QStringList full;
    for (const QString &row : rows) {
        const QDateTime date = QDateTime::fromString(row.section(u'|', 2), Qt::ISODate);
        full << row + date.toString(QStringLiteral("|MMMM d, yyyy|")) + QLatin1StringView(date.time().hour() < 12 ? "AM" : "PM")
                    + date.toString(QStringLiteral("|yyyy|M|d"));
    }
    insertRows<Notes>({QStringLiteral("subject"), QStringLiteral("notes"), QStringLiteral("dt"), QStringLiteral("dtstring"),
                       QStringLiteral("ampm"), QStringLiteral("year"), QStringLiteral("month"), QStringLiteral("day")},
                      full);
}

// The store's writing as after a restart: notes "subject|text", then pages
// "dt|ampm|favorite|text", then articles "name|text".
QStringList storedWriting()
{
    return storedRows<Notes>({u"subject"_s, u"notes"_s})
        + storedRows<PoemPrayer>({u"dt"_s, u"ampm"_s, u"favorite"_s, u"poemprayer"_s}) + storedAbouts();
}

void setPage(int month, int day, const QString &ampm, const std::optional<QString> &favorite,
             const std::optional<QString> &text)
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    FetchRequest request = PoemPrayer::fetchRequest();
    request.predicate = Predicate::conjunction({Predicate::equals(u"month"_s, month), Predicate::equals(u"day"_s, day),
                                                Predicate::equals(u"ampm"_s, ampm)});
    PoemPrayer *page = context.fetch<PoemPrayer>(request).value(0);
    QVERIFY(page);
    if (favorite)
        page->setFavorite(favorite);
    if (text)
        page->setPoemprayer(text);
    context.save();
}

// Everything the store holds that a backup covers, the book filled and changed by the reader.
void writeSomeWriting()
{
    seedSmallBook();
    setPage(1, 1, u"AM"_s, u"T"_s, {});
    setPage(1, 1, u"PM"_s, {}, u"The lamp is low\nand the door is shut"_s);
    setPage(1, 2, u"AM"_s, u"T"_s, u"Bread and a blue cup\n“Stay,” she said."_s);
    insertNotes({u"Snow day|Walked to the lake\nthen home|2026-01-01T08:00:00Z"_s, u"Évening|Quiet|2026-01-01T21:30:00Z"_s});
    insertAbouts({u"My Prayer|Hold this house.\nKeep the lamp lit."_s});
}

// The menu's restore, as the picker hands it a file; the alert it raised.
QString pick(ExportLarkwellFilesViewController &menu, const QString &path)
{
    menu.documentPicker(QUrl::fromLocalFile(path));
    return Alerts::shared().message();
}
}

// The backup file against its golden file, files that must be refused, restores merged into
// stores in different states, and a round trip through the real window.
class TestWritingBackup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }
    void cleanup() { dismissAlerts(); }

    // Restoring it is the window test's round trip.
    void backupMatchesGoldenFile()
    {
        TestEnvironment environment;
        shipSmallBook(environment);
        writeSomeWriting();
        QCOMPARE(QString::fromUtf8(WritingBackup::toJson(WritingBackup::collect(AppDelegate::shared().viewContext(),
                                                                                WritingBackup::shippedPageTexts()))),
                 QString::fromUtf8(golden(u"writing.json"_s)));
    }

    void refusedFilesWriteNothing_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("message");

        const QString damaged = u"This backup is damaged: %1. Nothing was restored."_s;
        const QByteArray head = R"({"format": "LarkwellsWriting", "version": 1, "notes": [], "favorites": [], )";
        QTest::newRow("plain text") << QByteArray("[ABOUT]\nWelcome^Hello\n")
                                    << u"This file is not a backup of your writing. Nothing was restored."_s;
        QTest::newRow("newer version") << QByteArray(R"({"format": "LarkwellsWriting", "version": 2})")
                                       << u"This backup was made by a newer version of The Larkwells Book. Nothing was restored."_s;
        QTest::newRow("cut short") << golden(u"merge.json"_s).left(400)
                                   << damaged.arg(u"invalid termination by number at byte 400"_s);
        QTest::newRow("articles missing") << head + R"("pages": []})" << damaged.arg(u"the articles are missing"_s);
        QTest::newRow("month 13 on the last page")
            << head + R"("pages": [{"month": 1, "day": 1, "ampm": "AM", "poemprayer": "x"},
                                   {"month": 13, "day": 1, "ampm": "AM", "poemprayer": "x"}], "articles": []})"
            << damaged.arg(u"page 2 has a month that is not a number from 1 to 12"_s);
        QTest::newRow("note with a wrong date")
            << QByteArray(R"({"format": "LarkwellsWriting", "version": 1, "favorites": [], "pages": [], "articles": [],
                              "notes": [{"subject": "a", "dt": "yesterday"}]})")
            << damaged.arg(u"note 1 has a dt that is not a date"_s);
    }

    void refusedFilesWriteNothing()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, message);
        TestEnvironment environment;
        shipSmallBook(environment);
        writeSomeWriting();
        const QStringList before = storedWriting();
        QTemporaryDir folder;
        const QString picked = folder.filePath(u"picked.json"_s);
        QVERIFY(writeFile(picked, file));

        ExportLarkwellFilesViewController menu;
        QCOMPARE(pick(menu, picked), message);
        QCOMPARE(Alerts::shared().buttons(), QStringList{u"OK"_s});
        Alerts::shared().dismiss(0);
        QCOMPARE(storedWriting(), before);
        QVERIFY(StoreSnapshots::latest(u"writing-restore"_s).isEmpty());
    }

    void restoreMerges_data()
    {
        QTest::addColumn<bool>("aboutListOpened");
        QTest::addColumn<QStringList>("notesHere");
        QTest::addColumn<bool>("changedHere"); // a favourite, a page and the shipped article changed here
        QTest::addColumn<QString>("summary");
        QTest::addColumn<QStringList>("writing");

        const QStringList notes{u"Snow day|Walked to the lake"_s, u"Evening|Quiet"_s};
        const QString firstPage = u"January 1|AM|T|Frost on the gate\nand my own line"_s;
        const QString secondPage = u"January 2|AM|T|Bread and a blue cup"_s;
        const QString prayer = u"My Prayer|Hold this house."_s;
        const QString all = u"2 notes, 2 favourites, 2 pages, 2 articles will be restored"_s;
        const QStringList restored = notes + QStringList{firstPage, u"January 1|PM|F|The lamp is low\nand the door is shut"_s,
                                                         secondPage, u"Welcome|Read a page a day.\nKeep it close."_s, prayer};

        QTest::newRow("onto the book as shipped") << true << QStringList() << false << all << restored;
        QTest::newRow("a note already here, a page and an article changed here")
            << true << QStringList{u"Snow day|Walked to the lake|2026-01-01T08:00:00Z"_s} << true
            << u"1 note, 1 favourite, 1 page, 1 article will be restored\n\nAlready here: 2 notes.\n\n"
               "Changed here, so kept as they are: 1 page, 1 article."_s
            << notes + QStringList{firstPage, u"January 1|PM|F|My own lamp"_s, secondPage, u"Welcome|My welcome"_s, prayer};
        QTest::newRow("the about list never opened") << false << QStringList() << false << all << restored;
    }

    void restoreMerges()
    {
        QFETCH(bool, aboutListOpened);
        QFETCH(QStringList, notesHere);
        QFETCH(bool, changedHere);
        QFETCH(QString, summary);
        QFETCH(QStringList, writing);
        TestEnvironment environment;
        shipSmallBook(environment);
        seedSmallBook();
        Preferences::write(PreferenceKeys::AboutHasBeenLaunchedBeforeFlag, aboutListOpened);
        ManagedObjectContext &context = AppDelegate::shared().viewContext();
        About *welcome = context.fetch<About>(About::fetchRequest()).first();
        if (!aboutListOpened)
            context.deleteObject(welcome);
        else if (changedHere)
            welcome->setAboutText(u"My welcome"_s);
        context.save();
        insertNotes(notesHere);
        if (changedHere) {
            setPage(1, 2, u"AM"_s, u"T"_s, {});
            setPage(1, 1, u"PM"_s, {}, u"My own lamp"_s);
        }

        // Cancelled first: nothing written, no snapshot taken.
        const QStringList before = storedWriting();
        ExportLarkwellFilesViewController menu;
        QCOMPARE(pick(menu, goldenPath(u"merge.json"_s)), summary);
        QCOMPARE(Alerts::shared().buttons(), (QStringList{u"Cancel"_s, u"Restore"_s}));
        Alerts::shared().dismiss(0);
        QCOMPARE(storedWriting(), before);
        QVERIFY(StoreSnapshots::latest(u"writing-restore"_s).isEmpty());

        QCOMPARE(pick(menu, goldenPath(u"merge.json"_s)), summary);
        Alerts::shared().dismiss(1);
        QCOMPARE(Alerts::shared().message(), u"Your writing was restored."_s);
        Alerts::shared().dismiss(0);
        QVERIFY(!StoreSnapshots::latest(u"writing-restore"_s).isEmpty());
        QCOMPARE(storedWriting(), writing);
        // The list's first visit must not empty the restored articles.
        QVERIFY(Preferences::boolForKey(PreferenceKeys::AboutHasBeenLaunchedBeforeFlag));

        // A second restore of the same file finds nothing left to do.
        QVERIFY(pick(menu, goldenPath(u"merge.json"_s)).startsWith(u"Everything in this backup is already here."_s));
        QCOMPARE(Alerts::shared().buttons(), QStringList{u"OK"_s});
        Alerts::shared().dismiss(0);
        QCOMPARE(storedWriting(), writing);
    }

    // The export menu in the real window: the writing backed up and saved through the share sheet,
    // lost, then restored from the saved copy after the summary was confirmed.
    void backUpThenRestoreThroughTheMenu()
    {
        TestEnvironment environment;
        shipSmallBook(environment);
        seedSmallBook();
        Preferences::write(PreferenceKeys::AboutHasBeenLaunchedBeforeFlag, true);
        insertNotes({u"Snow day|Walked to the lake|2026-01-01T08:00:00Z"_s, u"Evening|Quiet|2026-01-01T21:00:00Z"_s});
        ManagedObjectContext &context = AppDelegate::shared().viewContext();
        context.fetch<PoemPrayer>(PoemPrayer::fetchRequest()).last()->setFavorite(u"T"_s);
        context.save();
        const QStringList written = storedWriting();
        QTemporaryDir folder;
        const QString copy = folder.filePath(u"LarkwellsWriting.json"_s);

        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"ResetButton"_s, u"ExportLarkwellFilesView"_s);
        QVERIFY(window);

        click(window, waitForItem(window, u"BackUpButton"_s));
        click(window, waitForItem(window, u"share-savecopy"_s));
        QVERIFY(chooseInFileDialog(window, copy));
        QTRY_VERIFY(QFileInfo::exists(copy));

        // The writing lost: the notes deleted, the favourite cleared.
        for (Notes *note : context.fetch<Notes>(Notes::fetchRequest()))
            context.deleteObject(note);
        context.fetch<PoemPrayer>(PoemPrayer::fetchRequest()).last()->setFavorite(u"F"_s);
        context.save();
        QVERIFY(storedWriting() != written);

        // The closing share sheet's shade would take the click.
        QTRY_VERIFY(!window->findChild<QObject *>(u"shareSheet"_s)->property("visible").toBool());
        click(window, waitForItem(window, u"RestoreButton"_s));
        QVERIFY(chooseInFileDialog(window, copy));
        QTRY_COMPARE(Alerts::shared().message(), u"2 notes, 1 favourite will be restored"_s);
        click(window, waitForItem(window, u"alertButton-Restore"_s));
        QTRY_COMPARE(Alerts::shared().message(), u"Your writing was restored."_s);
        click(window, waitForItem(window, u"alertButton-OK"_s));
        QTRY_VERIFY(!Alerts::shared().showing());
        QCOMPARE(storedWriting(), written);
    }
};

QTEST_MAIN(TestWritingBackup)
#include "tst_writingbackup.moc"
