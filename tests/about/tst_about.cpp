#include "AboutEditViewController.h"
#include "AboutImportViewController.h"
#include "AboutNewViewController.h"
#include "PageRows.h"
#include "AboutTableViewController.h"
#include "Alerts.h"
#include "Selection.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
QString writeFile(const QTemporaryDir &folder, const QByteArray &bytes)
{
    const QString path = folder.filePath(u"picked.txt"_s);
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    return path;
}
}

// The about list's seeding, its articles' headings, new articles, and the about import.

class TestAbout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstVisitSeeds_data();
    void firstVisitSeeds();
    void secondVisitLeavesTheTable();
    void headings_data();
    void headings();
    void savingRepeatsTheHeading();
    void newArticle();
    void import_data();
    void import();
    void unreadableFileChangesNothing();
};

void TestAbout::firstVisitSeeds_data()
{
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<QString>("stop"); // part of the fatal stop's message
    QTest::newRow("CR LF, markers and blank lines anywhere, earlier rows gone")
        << QStringList{u"Old|old"_s} << u"[ABOUT]\r\nA^one\r\n\r\n[ABOUT]\r\nB^two\r\n"_s
        << QStringList{u"A|one"_s, u"B|two"_s} << QString();
    QTest::newRow("a line without ^ is a name alone") << QStringList() << u"Just a name"_s
                                                      << QStringList{u"Just a name|-"_s} << QString();
    QTest::newRow("a line starting with ^ has no name; two of them both stay")
        << QStringList() << u"^first\n^second"_s << QStringList{u"-|first"_s, u"-|second"_s} << QString();
    QTest::newRow("the first line of a name wins") << QStringList() << u"A^first\nB^b\nA^second"_s
                                                   << QStringList{u"A|first"_s, u"B|b"_s} << QString();
    QTest::newRow("@#@ is a line break; an empty text is not stored")
        << QStringList() << u"A^one@#@@#@two\nB^"_s << QStringList{u"A|one\n\ntwo"_s, u"B|-"_s} << QString();
    QTest::newRow("only markers") << QStringList{u"Old|old"_s} << u"[ABOUT]\n\n[ABOUT]"_s << QStringList() << QString();
    QTest::newRow("three fields stop after the lines before them") << QStringList() << u"A^one\nB^two^three\nC^four"_s
                                                                    << QStringList{u"A|one"_s} << u"Index out of range"_s;
}

void TestAbout::firstVisitSeeds()
{
    QFETCH(QStringList, before);
    QFETCH(QString, file);
    QFETCH(QStringList, stored);
    QFETCH(QString, stop);
    TestEnvironment environment;
    insertAbouts(before);
    environment.addBundleFile(u"About.txt"_s, file.toUtf8());
    AboutTableViewController controller;
    const QString stopped = fatalStop([&] { controller.viewDidLoad(); });
    QVERIFY2(stop.isEmpty() ? stopped.isEmpty() : stopped.contains(stop), qPrintable(stopped));
    QCOMPARE(storedAbouts(), stored);
    if (stop.isEmpty())
        QCOMPARE(controller.AboutList().size(), stored.size());
    QCOMPARE(environment.logLines, QStringList{u"First Launch"_s});
    QVERIFY(UserDefaults::standard().boolForKey(u"AboutHasBeenLaunchedBeforeFlag"_s));
}

void TestAbout::secondVisitLeavesTheTable()
{
    TestEnvironment environment;
    environment.addBundleFile(u"About.txt"_s, "A^one");
    AboutTableViewController().viewDidLoad();
    // The user's articles are gone and the file changed: neither matters any more.
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    context.deleteObject(context.fetch<About>(About::fetchRequest()).first());
    QVERIFY(!context.save());
    environment.addBundleFile(u"About.txt"_s, "B^two");
    environment.logLines.clear();

    AboutTableViewController second;
    second.viewDidLoad();

    QCOMPARE(environment.logLines, QStringList{u"Not First Launch"_s});
    QVERIFY(storedAbouts().isEmpty());
    QVERIFY(second.AboutNames().isEmpty());
}

void TestAbout::headings_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("left");
    QTest::newRow("morning authors") << u"Good Morning Authors"_s
                                     << u"From The Larkwells\nGood Morning Authors\n\nT"_s << true;
    QTest::newRow("morning preface") << u"Good Morning Preface"_s << u"From The Larkwells\n Good Morning \n\n T"_s
                                     << false;
    QTest::newRow("night preface") << u"Preface Good Night"_s << u"From The Larkwells\n Good Night \n\n T"_s << false;
    QTest::newRow("night acknowledgements") << u"Good Night Acknowledgements"_s
                                            << u"From The Larkwells\n Good Night \n\n T"_s << false;
    QTest::newRow("authors before preface") << u"Good Night Preface Authors"_s
                                            << u"From The Larkwells\nGood Night Preface Authors\n\nT"_s << true;
    QTest::newRow("acknowledgements alone is empty") << u"Acknowledgements"_s << QString() << false;
    QTest::newRow("case matters") << u"good morning preface"_s << QString() << false;
}

void TestAbout::headings()
{
    QFETCH(QString, name);
    QFETCH(QString, shown);
    QFETCH(bool, left);
    TestEnvironment environment;
    Selection::shared().setSelectedAboutName(name);
    Selection::shared().setSelectedAboutText(u"T"_s);
    AboutEditViewController controller;
    controller.viewDidLoad();
    QCOMPARE(controller.AboutItemText(), shown);
    QCOMPARE(Selection::shared().selectedAboutText(), shown);
    QCOMPARE(controller.leftAligned(), left);
}

void TestAbout::savingRepeatsTheHeading()
{
    TestEnvironment environment;
    UserDefaults::standard().set(u"AboutHasBeenLaunchedBeforeFlag"_s, true);
    insertAbouts({u"Good Night Preface|T"_s, u"Other|x"_s});
    const QString heading = u"From The Larkwells\n Good Night \n\n "_s;
    for (int save = 1; save <= 2; ++save) {
        AboutTableViewController list;
        list.viewDidLoad();
        list.didSelectRowAt(int(list.AboutNames().indexOf(u"Good Night Preface"_s)));
        AboutEditViewController article;
        article.viewDidLoad();
        environment.logLines.clear();
        article.SaveAboutItem();
        QCOMPARE(environment.logLines, QStringList{u"Back button Clicked"_s});
    }
    QCOMPARE(storedAbouts(), (QStringList{u"Good Night Preface|"_s + heading + heading + u"T"_s, u"Other|x"_s}));
}

// An empty name stores nothing; otherwise the text is kept as typed, and a name may repeat.
void TestAbout::newArticle()
{
    TestEnvironment environment;
    insertAbouts({u"Same|old"_s});
    for (const QString &name : {QString(), u"Same"_s})
        AboutNewViewController().SaveAboutItem(name, u"line one\nline @#@ two"_s);
    QCOMPARE(storedAbouts(), (QStringList{u"Same|old"_s, u"Same|line one\nline @#@ two"_s}));
    QCOMPARE(environment.logLines, (QStringList{u"Back button Clicked"_s, u"Back button Clicked"_s}));
}

void TestAbout::import_data()
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

void TestAbout::import()
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
    QCOMPARE(!fatalStop([&] { controller.ImportButtonClicked(); }).isEmpty(), fatal);
    QStringList stored = storedAbouts();
    stored.sort();
    QCOMPARE(stored, articles);
    QStringList messages;
    for (const QList<QVariant> &alert : presented) {
        QCOMPARE(alert[0].toString(), u"Data Import"_s);
        messages.append(alert[1].toString());
    }
    QCOMPARE(messages, alerts);
    dismissAlerts(); // each "OK" leads back to the about list
    QCOMPARE(environment.logLines.count(u"Back button Clicked"_s), alerts.size());
}

void TestAbout::unreadableFileChangesNothing()
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

QTEST_MAIN(TestAbout)
#include "tst_about.moc"
