#include "AboutImportUndo.h"
#include "AboutImportViewController.h"
#include "AboutRows.h"
#include "Alerts.h"
#include "FatalError.h"
#include "TestSupport.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// The stored articles as "name|text", "-" for absent, in name order.
QStringList storedArticles()
{
    QStringList rows = storedAbouts();
    rows.sort();
    return rows;
}

QString writeFile(const QTemporaryDir &folder, const QByteArray &bytes)
{
    const QString path = folder.filePath(u"picked.txt"_s);
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    return path;
}
}

// The about import: what the store holds after each kind of file, its alerts, and undoing it.
class TestAboutImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void import_data();
    void import();
    void unreadableFileChangesNothing();
    void undoPutsBackTheArticles();
};

void TestAboutImport::import_data()
{
    QTest::addColumn<QByteArray>("file"); // null: no file was picked
    QTest::addColumn<QStringList>("articles");
    QTest::addColumn<QStringList>("alerts");
    QTest::addColumn<bool>("fatal");
    const QStringList completed{u"Data Import Completed"_s};
    const QStringList rejected{u"WRONG TEXT FILE - ABORTING"_s, u"Data Import Completed"_s};
    QTest::newRow("header alone empties the table") << QByteArray("[ABOUT]\n") << QStringList() << completed << false;
    QTest::newRow("lower-case header is rejected") << QByteArray("[about]\nA^b\n") << QStringList() << rejected << false;
    QTest::newRow("header on the last line") << QByteArray("A^x@#@y\n[ABOUT]") << QStringList{u"A|x\ny"_s} << completed << false;
    QTest::newRow("a name twice keeps the later text literally")
        << QByteArray("[ABOUT]\nA^x@#@y\nA^z@#@w\n") << QStringList{u"A|z@#@w"_s} << completed << false;
    QTest::newRow("empty name gives an article without one")
        << QByteArray("[ABOUT]\n^Text only\n^Again\n") << QStringList{u"-|Again"_s, u"-|Text only"_s} << completed << false;
    QTest::newRow("no caret, empty text, CRLF")
        << QByteArray("[ABOUT]\r\nJust a name\r\nB^\r\nC^c\r\n") << QStringList{u"B|-"_s, u"C|c"_s, u"Just a name|-"_s}
        << completed << false;
    QTest::newRow("only empty lines pass before the header check") << QByteArray("\n\r\n\n") << QStringList() << completed << false;
    QTest::newRow("UTF-16 with a byte-order mark")
        << QByteArray("\xff\xfe[\0A\0B\0O\0U\0T\0]\0\n\0\xe9\0^\0x\0", 24) << QStringList{u"é|x"_s} << completed << false;
    QTest::newRow("a third field stops after the lines before it")
        << QByteArray("[ABOUT]\nA^a\nB^b^c\nC^c\n") << QStringList{u"A|a"_s} << QStringList() << true;
    QTest::newRow("no file picked stops after emptying") << QByteArray() << QStringList() << QStringList() << true;
}

void TestAboutImport::import()
{
    QFETCH(QByteArray, file);
    QFETCH(QStringList, articles);
    QFETCH(QStringList, alerts);
    QFETCH(bool, fatal);
    TestEnvironment environment;
    insertAbouts({u"Old|Written before"_s});
    QTemporaryDir folder;
    AboutImportViewController controller;
    QVERIFY(!controller.ImportButtonEnabled());
    if (!file.isNull()) {
        controller.documentPicker(QUrl::fromLocalFile(writeFile(folder, file)));
        QVERIFY(controller.ImportButtonEnabled());
    }
    QSignalSpy presented(&Alerts::shared(), &Alerts::presented);
    bool stopped = false;
    try {
        controller.ImportButtonClicked();
    } catch (const FatalErrorException &) {
        stopped = true;
    }
    QCOMPARE(stopped, fatal);
    QCOMPARE(storedArticles(), articles);
    QStringList messages;
    for (const QList<QVariant> &alert : presented) {
        QCOMPARE(alert[0].toString(), u"Data Import"_s);
        messages.append(alert[1].toString());
    }
    QCOMPARE(messages, alerts);
    dismissAlerts(); // each "OK" leads back to the about list
    QCOMPARE(environment.logLines.count(u"Back button Clicked"_s), alerts.size());
}

void TestAboutImport::unreadableFileChangesNothing()
{
    TestEnvironment environment;
    QTemporaryDir folder;
    AboutImportViewController controller;
    controller.documentPicker(QUrl::fromLocalFile(writeFile(folder, "[ABOUT]\nA^b\n")));
    controller.documentPicker(QUrl::fromLocalFile(folder.filePath(u"gone.txt"_s)));
    controller.documentPicker(QUrl::fromLocalFile(writeFile(folder, "\xc3\x28 not UTF-8")));
    QCOMPARE(environment.logLines.size(), 2);
    QCOMPARE(controller.ImportTextView(), u"[ABOUT]\nA^b\n"_s);
}

void TestAboutImport::undoPutsBackTheArticles()
{
    TestEnvironment environment;
    insertAbouts({u"Introduction|As the reader wrote it"_s, u"Thanks|To the family"_s});
    const QStringList before = storedArticles();
    AboutImportUndo::shared().reset();
    QTemporaryDir folder;
    AboutImportViewController controller;
    controller.documentPicker(QUrl::fromLocalFile(writeFile(folder, "not an about file\n")));
    QSignalSpy undone(&AboutImportUndo::shared(), &AboutImportUndo::undone);
    QVERIFY(!AboutImportUndo::shared().available());
    controller.ImportButtonClicked();
    dismissAlerts();
    QCOMPARE(storedArticles(), QStringList());
    QVERIFY(AboutImportUndo::shared().available());

    QVERIFY(AboutImportUndo::shared().undo());
    QCOMPARE(storedArticles(), before);
    QCOMPARE(undone.size(), 1);
    QVERIFY(!AboutImportUndo::shared().available());
    QVERIFY(!AboutImportUndo::shared().undo()); // once only
}

QTEST_MAIN(TestAboutImport)
#include "tst_aboutimport.moc"
