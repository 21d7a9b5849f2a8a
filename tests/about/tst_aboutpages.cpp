#include "Alerts.h"
#include "Navigator.h"
#include "PageRows.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
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

// The about list, an article and a new article in the real pages; the cover's Update Files menu
// with a page file made, then an about file picked through the file dialog, imported, and undone.
class TestAboutPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }

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
};

QTEST_MAIN(TestAboutPages)
#include "tst_aboutpages.moc"
