#include "AboutEditViewController.h"
#include "AboutImportViewController.h"
#include "AboutNewViewController.h"
#include "AboutTableViewController.h"
#include "Alerts.h"
#include "FatalError.h"
#include "Navigator.h"
#include "PageFileWriter.h"
#include "PageRows.h"
#include "PageSeeding.h"
#include "Selection.h"
#include "Sharing.h"
#include "SpecialDaysExportViewController.h"
#include "StoreSnapshots.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QFileInfo>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
QString writePicked(const QTemporaryDir &folder, const QByteArray &bytes)
{
    const QString path = folder.filePath(u"picked.txt"_s);
    return writeFile(path, bytes) ? path : QString();
}

// A stand-in for xdg-email on PATH: records its arguments, ends with the status asked for. The
// files handed to it are written to its folder.
class FakeMailer
{
public:
    explicit FakeMailer(int status)
    {
        const QString script = m_folder.filePath(u"xdg-email"_s);
        writeFile(script, "#!/bin/sh\nprintf '%s\\n' \"$@\" > \"$(dirname \"$0\")/arguments\"\nexit " + QByteArray::number(status) + "\n");
        QFile::setPermissions(script, QFile::permissions(script) | QFile::ExeOwner);
        qputenv("PATH", m_folder.path().toUtf8() + ':' + m_path);
        qputenv("TMPDIR", m_folder.path().toUtf8());
    }
    ~FakeMailer()
    {
        qputenv("PATH", m_path);
        qunsetenv("TMPDIR");
    }
    QStringList arguments() const
    {
        const QString file = temporary(u"arguments"_s);
        return QFile::exists(file) ? QString::fromUtf8(readFile(file)).split(u'\n', Qt::SkipEmptyParts) : QStringList();
    }
    QString temporary(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    QByteArray m_path = qgetenv("PATH");
};

// Builds the file on one of the three export screens, lets the user edit it, and mails it.
void buildEditAndMail(const QString &screen, const QString &edited)
{
    if (screen == u"about") {
        AboutImportViewController controller;
        controller.CreateExportFile();
        controller.setImportTextView(edited);
        controller.EmailExportFile();
        return;
    }
    std::unique_ptr<ExportViewController> controller = screen == u"pages"
        ? std::make_unique<ExportViewController>() : std::make_unique<SpecialDaysExportViewController>();
    controller->viewDidLoad();
    controller->CreateUpdateFile();
    controller->setExportTextView(edited);
    controller->WriteTextFile();
    QCOMPARE(controller->ExportTextView(), edited); // read back from the written file
}

QStringList rowNames(QQuickWindow *window)
{
    QStringList names;
    for (int row = 0; QQuickItem *item = findVisibleItem(window, u"row-%1"_s.arg(row)); ++row)
        names.append(item->property("modelData").toString());
    return names;
}

void typeAtEnd(QQuickWindow *window, QQuickItem *field, const QString &text)
{
    QMetaObject::invokeMethod(field, "forceActiveFocus");
    QTest::keyClick(window, Qt::Key_End, Qt::ControlModifier);
    typeText(window, text);
}
}

// The about list's seeding, its articles' headings, new articles; the update files against golden
// files, importing, saving and mailing them; and the store copies. In the real pages: the about
// list, an article and a new article; the cover's Update Files menu with a page file made, then an
// about file picked through the file dialog, imported, and undone.
class TestAbout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }
    void cleanup() { dismissAlerts(); }

    // The real pages run first: the export screens below leave alerts due seconds later, which
    // would take the pages' keys.
    void readResizeEditSaveAndWriteNew()
    {
        TestEnvironment environment;
        UserDefaults::standard().set(u"AboutHasBeenLaunchedBeforeFlag"_s, true);
        UserDefaults::standard().set(u"useWallpaper"_s, 1);
        insertAbouts({u"Good Night Preface|Rest now."_s, u"Good Morning Authors|We wrote it."_s});
        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"AboutButton"_s, u"AboutTableView"_s);
        QVERIFY(window);
        QVERIFY(waitForItem(window, u"row-1"_s));
        QCOMPARE(rowNames(window), (QStringList{u"Good Morning Authors"_s, u"Good Night Preface"_s}));

        QVERIFY(clickTo(window, u"row-1"_s, u"AboutEditView"_s));
        QQuickItem *text = waitForItem(window, u"AboutItemTextView"_s);
        QVERIFY(text);
        const QString shown = u"From The Larkwells\n Good Night \n\n Rest now."_s;
        QCOMPARE(text->property("text").toString(), shown);
        QCOMPARE(text->property("horizontalAlignment").toInt(), int(Qt::AlignHCenter));

        // Turning the screen back and forth lays nothing more beneath the text.
        QQuickItem *scroller = findItem(window->contentItem(), u"scroller"_s);
        auto *content = scroller->property("contentItem").value<QQuickItem *>();
        const qsizetype layers = content->childItems().size();
        for (int turn = 0; turn < 100; ++turn) {
            window->resize(turn % 2 ? QSize(420, 860) : QSize(860, 420));
            QCoreApplication::processEvents();
        }
        QCOMPARE(content->childItems().size(), layers);

        QTest::keyClick(window, Qt::Key_Equal, Qt::ControlModifier); // the reader's keyboard zoom
        QTRY_COMPARE(text->property("font").value<QFont>().pixelSize(), 16);
        QCOMPARE(UserDefaults::standard().typeOf(u"ReaderFontSize"_s), UserDefaults::Type::Double);
        QCOMPARE(UserDefaults::standard().doubleForKey(u"ReaderFontSize"_s), 16.0);

        typeAtEnd(window, text, u" Sleep."_s);
        QVERIFY(clickTo(window, u"SaveButton"_s, u"AboutTableView"_s));
        QCOMPARE(storedAbouts().first(), u"Good Night Preface|"_s + shown + u" Sleep."_s);

        QVERIFY(clickTo(window, u"NewArticleButton"_s, u"AboutNewView"_s));
        typeAtEnd(window, waitForItem(window, u"NameTextField"_s), u"Good Morning Acknowledgements"_s);
        typeAtEnd(window, waitForItem(window, u"AboutItemTextView"_s), u"Thanks."_s);
        QVERIFY(clickTo(window, u"SaveButton"_s, u"AboutTableView"_s));
        QTRY_COMPARE(rowNames(window), (QStringList{u"Good Morning Acknowledgements"_s, u"Good Morning Authors"_s,
                                                    u"Good Night Preface"_s}));

        QVERIFY(clickTo(window, u"row-1"_s, u"AboutEditView"_s));
        text = waitForItem(window, u"AboutItemTextView"_s);
        QCOMPARE(text->property("text").toString(), u"From The Larkwells\nGood Morning Authors\n\nWe wrote it."_s);
        QCOMPARE(text->property("horizontalAlignment").toInt(), int(Qt::AlignLeft));
        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_COMPARE(topPage(window), u"AboutTableView"_s);
    }

    void exportPagesThenImportAndUndoAnAboutFile()
    {
        TestEnvironment environment;
        insertPages({u"January 1|AM|1|1|1|F|Snow"_s});
        insertAbouts({u"Before|-"_s});
        QTemporaryDir folder;
        const QString picked = folder.filePath(u"About.txt"_s);
        QVERIFY(writeFile(picked, "[ABOUT]\nImported^From the file\n"));

        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"ResetButton"_s, u"ExportLarkwellFilesView"_s);
        QVERIFY(window);
        QVERIFY(clickTo(window, u"PoemPrayerButton"_s, u"ExportView"_s));
        QObject *exportScreen = currentScreen(window)->property("controller").value<QObject *>();
        QCOMPARE(exportScreen->property("HelpTextView").toString(),
                 u"Step 1: Create the Export File\nStep 2: Option 1: Click 'Save To Files' button\n             Option 2: "
                 "Click the Email File button to email the file to yourself and then from your email save the file to your "
                 "iCloud Drive. There are size limits to email attachments for most carriers."_s);
        QQuickItem *exportButton = waitForItem(window, u"ExportButton"_s);
        click(window, exportButton);
        QTRY_COMPARE(findVisibleItem(window, u"ExportTextView"_s)->property("text").toString(),
                     u"[POEMPRAYER]\nJanuary 1^AM^1^1^1^F^Snow\n"_s);
        QVERIFY(!exportButton->isEnabled());
        // The export's alert comes 3 s later, wherever the reader is by then; answered here, its shade
        // cannot take a later click.
        QTRY_COMPARE_WITH_TIMEOUT(Alerts::shared().message(), u"Process Complete - File Ready to Save To Files or Email"_s, 6000);
        QCOMPARE(Alerts::shared().buttons(), QStringList{u"OK"_s});
        Alerts::shared().dismiss(0);
        // Typing in the shown file edits the text the mail would send.
        click(window, waitForItem(window, u"ExportTextViewBlock0"_s));
        QTest::keyClick(window, Qt::Key_End);
        QTest::keyClick(window, '!');
        QTRY_COMPARE(exportScreen->property("ExportTextView").toString(), u"[POEMPRAYER]!\nJanuary 1^AM^1^1^1^F^Snow\n"_s);
        QVERIFY(waitForItem(window, u"SaveButton"_s)->isEnabled() && waitForItem(window, u"EmailButton"_s)->isEnabled());

        QVERIFY(clickTo(window, u"backButton"_s, u"ExportLarkwellFilesView"_s));
        QVERIFY(clickTo(window, u"AboutButton"_s, u"AboutImportView"_s));
        QObject *picker = currentScreen(window)->findChild<QObject *>(u"documentPicker"_s);
        QVERIFY(picker);
        QTRY_VERIFY(picker->property("visible").toBool()); // the screen opens with the picker in front
        QVERIFY(!waitForItem(window, u"ImportButton"_s)->isEnabled());
        // On a phone-wide window a file's date stands clear of its size.
        QVERIFY(window->width() < 480 && fileDialogShowing(window, folder.path()));
        QQuickItem *size = waitForItem(window, u"fileSize"_s);
        QQuickItem *date = findVisibleItem(window, u"fileDate"_s);
        QVERIFY(size && date && date->mapToScene({}).x() >= size->mapToScene({size->width(), 0}).x());
        QVERIFY(chooseInFileDialog(window, picked)); // the picker's own dialog
        QTRY_COMPARE(findVisibleItem(window, u"ImportTextView"_s)->property("text").toString(),
                     u"[ABOUT]\nImported^From the file\n"_s);

        QTRY_VERIFY(!picker->property("visible").toBool());
        click(window, waitForItem(window, u"ImportButton"_s));
        QCOMPARE(storedAbouts(), QStringList{u"Imported|From the file"_s});
        QTRY_COMPARE(Alerts::shared().message(), u"Data Import Completed"_s);
        Alerts::shared().dismiss(0);
        QVERIFY(environment.logLines.contains(u"Back button Clicked"_s));
        // Reached from the cover's menu, the import gives way to the about list with the new article.
        QTRY_COMPARE(topPage(window), u"AboutTableView"_s);
        QTRY_COMPARE(rowNames(window), QStringList{u"Imported"_s});

        QQuickItem *undo = waitForItem(window, u"UndoImportButton"_s);
        QVERIFY(undo && undo->isVisible());
        QObject *alertDialog = window->findChild<QObject *>(u"alertDialog"_s);
        QTRY_VERIFY(!alertDialog->property("visible").toBool()); // its modal shade would take the click
        click(window, undo);
        QCOMPARE(storedAbouts(), QStringList{u"Before|-"_s});
        QTRY_COMPARE(rowNames(window), QStringList{u"Before"_s});
        QVERIFY(!undo->isVisible());
    }

    // A file without "[ABOUT]" empties the table all the same. Its two alerts each go back to the
    // about list: the second finds it shown and leaves it there.
    void rejectedFileEndsOnTheEmptiedList()
    {
        TestEnvironment environment;
        UserDefaults::standard().set(u"AboutHasBeenLaunchedBeforeFlag"_s, true);
        insertAbouts({u"Old|Kept until the import"_s});
        QTemporaryDir folder;
        const QString picked = folder.filePath(u"About.txt"_s);
        QVERIFY(writeFile(picked, "Imported^No header line\n"));
        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"AboutButton"_s, u"AboutTableView"_s);
        QVERIFY(window);
        Navigator::shared().performSegue(u"ExportMenuSegue"_s);
        QTRY_COMPARE(topPage(window), u"ExportLarkwellFilesView"_s);
        QVERIFY(clickTo(window, u"AboutButton"_s, u"AboutImportView"_s));
        QVERIFY(chooseInFileDialog(window, picked));
        QQuickItem *importButton = waitForItem(window, u"ImportButton"_s);
        QTRY_VERIFY(importButton->isEnabled());
        click(window, importButton);
        for (const QString &message : {u"WRONG TEXT FILE - ABORTING"_s, u"Data Import Completed"_s}) {
            QTRY_COMPARE(Alerts::shared().message(), message);
            Alerts::shared().dismiss(0);
        }
        QTRY_COMPARE(topPage(window), u"AboutTableView"_s);
        QTest::qWait(300); // a second way back would have happened by now
        QCOMPARE(topPage(window), u"AboutTableView"_s);
        QCOMPARE(rowNames(window), QStringList());
    }

    void firstVisitSeeds_data()
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
        QTest::newRow("a name already stored is passed over before its fields are counted")
            << QStringList() << u"A^one\nA^two^three\nB^four"_s << QStringList{u"A|one"_s, u"B|four"_s} << QString();
    }

    void firstVisitSeeds()
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

    void secondVisitLeavesTheTable()
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

    void headings_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("left");
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

    void headings()
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

    void savingRepeatsTheHeading()
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
    void newArticle()
    {
        TestEnvironment environment;
        insertAbouts({u"Same|old"_s});
        for (const QString &name : {QString(), u"Same"_s})
            AboutNewViewController().SaveAboutItem(name, u"line one\nline @#@ two"_s);
        QCOMPARE(storedAbouts(), (QStringList{u"Same|old"_s, u"Same|line one\nline @#@ two"_s}));
        QCOMPARE(environment.logLines, (QStringList{u"Back button Clicked"_s, u"Back button Clicked"_s}));
    }

    void import_data()
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

    void import()
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
            controller.documentPicker(QUrl::fromLocalFile(writePicked(folder, file)));
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

    void unreadableFileChangesNothing()
    {
        TestEnvironment environment;
        QTemporaryDir folder;
        AboutImportViewController controller;
        controller.documentPicker(QUrl::fromLocalFile(writePicked(folder, "[ABOUT]\nA^b\n")));
        controller.documentPicker(QUrl::fromLocalFile(folder.filePath(u"gone.txt"_s)));
        controller.documentPicker(QUrl::fromLocalFile(writePicked(folder, "\xc3\x28 not UTF-8")));
        QCOMPARE(environment.logLines.size(), 2);
        QCOMPARE(controller.ImportTextView(), u"[ABOUT]\nA^b\n"_s);
    }

    void pageUpdateFile_data()
    {
        QTest::addColumn<QStringList>("pages");
        QTest::addColumn<QString>("change"); // made in the context and not saved
        QTest::addColumn<QByteArray>("file");
        const QStringList two{u"January 1|AM|1|1|1|F|first"_s, u"January 1|PM|1|1|2|T|second"_s};
        QTest::newRow("empty table") << QStringList() << QString() << QByteArray("[POEMPRAYER]\n");
        QTest::newRow("line breaks, absent values, caret, month 0, negatives")
            << QStringList{u"d1|AM|12|25|359|F|First line\nsecond line"_s, u"January 2|PM|1|2|4|-|A caret ^ stays"_s,
                           u"-|-|0|0|0|T|-"_s, u"New Year|AM|-1|31|-7|F|"_s}
            << QString() << golden(u"pages.txt"_s);
        QTest::newRow("the smallest and largest numbers, accents") << QStringList{u"d|AM|-3|-32768|32767|-|“Tomáš”"_s} << QString()
                                                                  << u"[POEMPRAYER]\nd^AM^-3^-32768^32767^^“Tomáš”\n"_s.toUtf8();
        QTest::newRow("an unsaved favourite") << two << u"favorite"_s
            << "[POEMPRAYER]\nJanuary 1^AM^1^1^1^T^first\nJanuary 1^PM^1^1^2^T^second\n"_ba;
        QTest::newRow("an unsaved new page") << two << u"insert"_s
            << "[POEMPRAYER]\nJanuary 1^AM^1^1^1^F^first\nJanuary 1^PM^1^1^2^T^second\nnew^AM^5^6^7^^n\n"_ba;
        QTest::newRow("an unsaved deletion") << two << u"delete"_s << "[POEMPRAYER]\nJanuary 1^PM^1^1^2^T^second\n"_ba;
    }

    // The export reads the columns straight from the store unless the context holds unsaved page
    // changes; either way the file is what the store plus those changes hold.
    void pageUpdateFile()
    {
        QFETCH(QStringList, pages);
        QFETCH(QString, change);
        QFETCH(QByteArray, file);
        TestEnvironment environment;
        insertPages(pages);
        AppDelegate::shared().reset(); // no page objects made yet, as when the screen opens
        ManagedObjectContext &context = AppDelegate::shared().viewContext();
        if (change == u"insert") {
            PoemPrayer *page = context.insertNewObject<PoemPrayer>();
            for (const auto &[column, value] : {std::pair{u"dt"_s, u"new"_s}, {u"ampm"_s, u"AM"_s}, {u"month"_s, u"5"_s},
                                                {u"day"_s, u"6"_s}, {u"pagenum"_s, u"7"_s}, {u"poemprayer"_s, u"n"_s}})
                page->setValueForKey(column, value);
        } else if (!change.isEmpty()) {
            PoemPrayer *first = context.fetch<PoemPrayer>(PoemPrayer::fetchRequest()).constFirst();
            change == u"favorite" ? first->setFavorite(u"T"_s) : context.deleteObject(first);
        }
        QCOMPARE(ExportViewController().updateFileText().toUtf8(), file);
        if (change.isEmpty()) // the writer over page objects agrees
            QCOMPARE(PageFile::updateFileText(context.fetch<PoemPrayer>(PoemPrayer::fetchRequest())).toUtf8(), file);
    }

    void aboutFileSortedByNameWithoutNamelessArticles()
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
    }

    void aboutArticleWithoutTextCannotBeWritten()
    {
        TestEnvironment environment;
        insertAbouts({u"Draft|-"_s});
        AboutImportViewController controller;
        QVERIFY_THROWS_EXCEPTION(FatalErrorException, controller.CreateExportFile());
    }

    void specialDaysFile()
    {
        TestEnvironment environment;
        const QList<SpecialDay *> days = insertSpecialDays({u"AM|Midsummer|Long light\nshort night"_s, u"PM|Quiet Day|-"_s,
                                                            u"-|Nameless|A line"_s});
        // The bytes; reading them back is the special-day file's own round trip.
        QCOMPARE(std::get<QByteArray>(SpecialDayFile::write(SpecialDaysExportViewController::recordsOf(days))),
                 golden(u"specialdays.txt"_s));
    }

    void savesAndSharesTheFile()
    {
        TestEnvironment environment;
        FakeMailer mailer(0);
        insertPages({u"d1|PM|1|1|2|T|Night"_s});
        ExportViewController controller;
        controller.CreateUpdateFile();
        controller.setExportTextView(u"edited, not saved"_s);
        controller.SaveToFiles();
        const QString written = mailer.temporary(u"PoemPrayer.txt"_s);
        QCOMPARE(environment.logLines, QStringList{written});
        QCOMPARE(readFile(written), QByteArray("[POEMPRAYER]\nd1^PM^1^1^2^T^Night\n")); // the file as built
        QVERIFY(Sharing::shared().showing() && Sharing::shared().sharesFile());
        QCOMPARE(Sharing::shared().suggestedCopy().fileName(), u"PoemPrayer.txt"_s);

        Sharing::shared().saveCopy(QUrl::fromLocalFile(mailer.temporary(u"no/such/folder.txt"_s)));
        QTRY_COMPARE(Alerts::shared().title(), u"Share"_s); // never a silent failure
        QVERIFY(Sharing::shared().showing());
        dismissAlerts();
        const QString copy = mailer.temporary(u"copy.txt"_s);
        Sharing::shared().saveCopy(QUrl::fromLocalFile(copy));
        QCOMPARE(readFile(copy), readFile(written));
        QVERIFY(!Sharing::shared().showing());
    }

    void mail_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("subject");
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("fileName");
        QTest::newRow("pages") << u"pages"_s << u"Larkwell Books Update Text File"_s << u"Attachment: Larkwell Books Text File"_s
                               << u"PoemPrayer.txt"_s;
        QTest::newRow("special days") << u"special days"_s << u"Larkwell Books Special Days Update Text File"_s
                                      << u"Attachment: Larkwell Books Special Days Text File"_s << u"SpecialDays.txt"_s;
        QTest::newRow("about") << u"about"_s << u"Larkwell's About Update Text File"_s
                               << u"Attachment: Larkwell's About Text File"_s << u"About.txt"_s;
    }

    void mail()
    {
        QFETCH(QString, screen);
        QFETCH(QString, subject);
        QFETCH(QString, body);
        QFETCH(QString, fileName);
        TestEnvironment environment;
        // The export screens' own "Data Export" alerts may come in between; only mail alerts count.
        QSignalSpy presented(&Alerts::shared(), &Alerts::presented);
        const auto mailAlerts = [&presented] {
            QStringList messages;
            for (const QList<QVariant> &alert : std::as_const(presented)) {
                if (alert[0] == u"Sending Email"_s)
                    messages.append(alert[1].toString());
            }
            return messages;
        };
        {
            FakeMailer mailer(0);
            Sharing::shared().setCanSendMailForTesting(false);
            buildEditAndMail(screen, u"edited once"_s);
            QCOMPARE(mailAlerts(), QStringList{u"Email not Setup or Unavailable"_s});
            QVERIFY(mailer.arguments().isEmpty());

            Sharing::shared().setCanSendMailForTesting(true);
            buildEditAndMail(screen, u"edited twice"_s);
            const QString attachment = mailer.temporary(fileName);
            QTRY_COMPARE(mailer.arguments(), (QStringList{u"--subject"_s, subject, u"--body"_s, body, u"--attach"_s, attachment}));
            QCOMPARE(readFile(attachment), QByteArray("edited twice")); // the text view's content, edits included
            QCOMPARE(mailAlerts().size(), 1);
        }
        FakeMailer failing(3);
        buildEditAndMail(screen, u"edited"_s);
        QTRY_COMPARE(mailAlerts().size(), 2);
        QCOMPARE(mailAlerts().last(), u"The mail program could not be started: xdg-email ended with status 3"_s);
    }

    void snapshotsKeepTheNewestFive()
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
        context.deleteObject(context.fetch<About>(About::fetchRequest()).first());
        insertAbouts({u"Later|Written after"_s});
        QVERIFY(StoreSnapshots::restoreArticles(taken[5]));
        QCOMPARE(storedAbouts(), QStringList{u"Kept|In every copy"_s});
        QVERIFY(!StoreSnapshots::restoreArticles(taken[0])); // pruned
    }

    void firstLaunchSeedingCopiesTheStoreFirst()
    {
        TestEnvironment environment;
        insertPages({u"January 1|AM|1|1|1|T|A favourite kept in the copy"_s});
        PageSeeding().clearPoemPrayers();
        const QString copy = StoreSnapshots::latest(u"first-launch"_s);
        QVERIFY(!copy.isEmpty());
        QCOMPARE(sqlRun(copy, {u"SELECT poemprayer FROM PoemPrayer"_s}), QStringList{u"A favourite kept in the copy"_s});
    }
};

QTEST_MAIN(TestAbout)
#include "tst_about.moc"
