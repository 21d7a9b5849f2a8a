#include "AboutImportUndo.h"
#include "PageRows.h"
#include "Alerts.h"
#include "TestSupport.h"

#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

// The cover's Update Files menu in the real window: a page file made, then an about file picked
// through the file dialog, imported, and undone.
class TestUpdateFileWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }
    void exportPagesThenImportAndUndoAnAboutFile();
};

void TestUpdateFileWindow::exportPagesThenImportAndUndoAnAboutFile()
{
    TestEnvironment environment;
    insertPages({u"January 1|AM|1|1|1|F|Snow"_s});
    insertAbouts({u"Before|-"_s});
    QTemporaryDir folder;
    const QString picked = folder.filePath(u"About.txt"_s);
    QFile file(picked);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[ABOUT]\nImported^From the file\n");
    file.close();

    QQmlApplicationEngine engine;
    QQuickWindow *window = openFromCover(engine, u"ResetButton"_s, u"ExportLarkwellFilesView"_s);
    QVERIFY(window);
    click(window, waitForItem(window, u"PoemPrayerButton"_s));
    QTRY_COMPARE(topPage(window), u"ExportView"_s);
    QObject *exportScreen = currentScreen(window)->property("controller").value<QObject *>();
    QCOMPARE(exportScreen->property("HelpTextView").toString(),
             u"Step 1: Create the Export File\nStep 2: Option 1: Click 'Save To Files' button\n             Option 2: "
             "Click the Email File button to email the file to yourself and then from your email save the file to your "
             "iCloud Drive. There are size limits to email attachments for most carriers."_s);
    QQuickItem *exportButton = waitForItem(window, u"ExportButton"_s);
    click(window, exportButton);
    QTRY_COMPARE(findVisibleItem(window->contentItem(), u"ExportTextView"_s)->property("text").toString(),
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

    click(window, waitForItem(window, u"backButton"_s));
    QTRY_COMPARE(topPage(window), u"ExportLarkwellFilesView"_s);
    click(window, waitForItem(window, u"AboutButton"_s));
    QTRY_COMPARE(topPage(window), u"AboutImportView"_s);
    QObject *picker = currentScreen(window)->findChild<QObject *>(u"documentPicker"_s);
    QVERIFY(picker);
    QTRY_VERIFY(picker->property("visible").toBool()); // the screen opens with the picker in front
    QVERIFY(!waitForItem(window, u"ImportButton"_s)->isEnabled());
    // The picker's own dialog, as if the user chose the file in it and pressed Open.
    QObject *pickerDialog = nullptr;
    QTRY_VERIFY(pickerDialog = [window]() -> QObject * {
        for (QObject *object : window->findChildren<QObject *>()) {
            if (object->inherits("QQuickFileDialogImpl"))
                return object;
        }
        return nullptr;
    }());
    QVERIFY(pickerDialog->setProperty("currentFolder", QUrl::fromLocalFile(folder.path())));
    QVERIFY(pickerDialog->setProperty("selectedFile", QUrl::fromLocalFile(picked)));
    QVERIFY(QMetaObject::invokeMethod(pickerDialog, "accept"));
    QTRY_COMPARE(findVisibleItem(window->contentItem(), u"ImportTextView"_s)->property("text").toString(),
                 u"[ABOUT]\nImported^From the file\n"_s);

    QTRY_VERIFY(!pickerDialog->property("visible").toBool());
    click(window, waitForItem(window, u"ImportButton"_s));
    QCOMPARE(storedAbouts(), QStringList{u"Imported|From the file"_s});
    QTRY_COMPARE(Alerts::shared().message(), u"Data Import Completed"_s);
    Alerts::shared().dismiss(0);
    QVERIFY(environment.logLines.contains(u"Back button Clicked"_s));

    QQmlComponent component(&engine, QUrl(u"qrc:/qt/qml/Larkwells/about/UndoImportButton.qml"_s));
    std::unique_ptr<QObject> object(component.create());
    auto *undo = qobject_cast<QQuickItem *>(object.get());
    QVERIFY2(undo, qPrintable(component.errorString()));
    undo->setParentItem(window->contentItem());
    undo->setZ(1000);
    QVERIFY(undo->isVisible());
    QObject *alertDialog = window->findChild<QObject *>(u"alertDialog"_s);
    QTRY_VERIFY(!alertDialog->property("visible").toBool()); // its modal shade would take the click
    click(window, undo);
    QCOMPARE(storedAbouts(), QStringList{u"Before|-"_s});
    QVERIFY(!undo->isVisible());
}

QTEST_MAIN(TestUpdateFileWindow)
#include "tst_updatefilewindow.moc"
