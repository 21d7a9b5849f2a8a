#include "Alerts.h"
#include "PreferenceKeys.h"
#include "WritingRows.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
QObject *visibleFileDialog(QQuickWindow *window)
{
    for (QObject *object : window->findChildren<QObject *>()) {
        if (object->inherits("QQuickFileDialogImpl") && object->property("visible").toBool())
            return object;
    }
    return nullptr;
}

// The file dialog on screen, as if the user chose `file` in it and pressed its button.
bool chooseInFileDialog(QObject *dialog, const QString &file)
{
    return dialog->setProperty("currentFolder", QUrl::fromLocalFile(QFileInfo(file).path()))
        && dialog->setProperty("selectedFile", QUrl::fromLocalFile(file)) && QMetaObject::invokeMethod(dialog, "accept");
}

void forgetSomeWriting()
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    for (Notes *note : context.fetch<Notes>(Notes::fetchRequest()))
        context.deleteObject(note);
    for (PoemPrayer *page : context.fetch<PoemPrayer>(PoemPrayer::fetchRequest()))
        page->setFavorite(u"F"_s);
    context.save();
}
}

// The export menu in the real window: the writing backed up and saved through the share sheet,
// lost, then restored from the saved copy after the summary was confirmed.
class TestWritingWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }
    void backUpThenRestoreThroughTheMenu();
};

void TestWritingWindow::backUpThenRestoreThroughTheMenu()
{
    TestEnvironment environment;
    shipSmallBook(environment);
    seedSmallBook();
    Preferences::write(PreferenceKeys::hasBeenLaunchedBeforeFlag, true);
    Preferences::write(PreferenceKeys::AboutHasBeenLaunchedBeforeFlag, true);
    insertNotes({u"Snow day|Walked to the lake|2026-01-01T08:00:00Z"_s, u"Evening|Quiet|2026-01-01T21:00:00Z"_s});
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    context.fetch<PoemPrayer>(PoemPrayer::fetchRequest()).last()->setFavorite(u"T"_s);
    context.save();
    const QStringList written = storedWriting();
    QTemporaryDir folder;
    const QString copy = folder.filePath(u"LarkwellsWriting.json"_s);

    QQmlApplicationEngine engine;
    QQuickWindow *window = loadMainWindow(engine);
    QVERIFY(window);
    click(window, waitForItem(window, u"ControlButton"_s));
    click(window, waitForItem(window, u"ResetButton"_s));
    QTRY_COMPARE(topPage(window), u"ExportLarkwellFilesView"_s);

    click(window, waitForItem(window, u"BackUpButton"_s));
    click(window, waitForItem(window, u"share-savecopy"_s));
    QObject *dialog = nullptr;
    QTRY_VERIFY((dialog = visibleFileDialog(window)));
    QVERIFY(chooseInFileDialog(dialog, copy));
    QTRY_VERIFY(QFileInfo::exists(copy));

    forgetSomeWriting();
    QVERIFY(storedWriting() != written);

    // The closing share sheet's shade would take the click.
    QTRY_VERIFY(!window->findChild<QObject *>(u"shareSheet"_s)->property("visible").toBool());
    click(window, waitForItem(window, u"RestoreButton"_s));
    QTRY_VERIFY((dialog = visibleFileDialog(window)));
    QVERIFY(chooseInFileDialog(dialog, copy));
    QTRY_COMPARE(Alerts::shared().message(), u"2 notes, 1 favourite will be restored"_s);
    click(window, waitForItem(window, u"alertButton-Restore"_s));
    QTRY_COMPARE(Alerts::shared().message(), u"Your writing was restored."_s);
    click(window, waitForItem(window, u"alertButton-OK"_s));
    QTRY_VERIFY(!Alerts::shared().showing());
    QCOMPARE(storedWriting(), written);
    QCOMPARE(topPage(window), u"ExportLarkwellFilesView"_s);
}

QTEST_MAIN(TestWritingWindow)
#include "tst_writingwindow.moc"
