#include "Alerts.h"
#include "PreferenceKeys.h"
#include "WritingRows.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// Once the file dialog is on screen, the user chooses `file` in it and presses its button.
bool chooseInFileDialog(QQuickWindow *window, const QString &file)
{
    QObject *dialog = nullptr;
    const bool shown = QTest::qWaitFor([&] {
        for (QObject *object : window->findChildren<QObject *>()) {
            if (object->inherits("QQuickFileDialogImpl") && object->property("visible").toBool())
                dialog = object;
        }
        return dialog != nullptr;
    });
    return shown && dialog->setProperty("currentFolder", QUrl::fromLocalFile(QFileInfo(file).path()))
        && dialog->setProperty("selectedFile", QUrl::fromLocalFile(file)) && QMetaObject::invokeMethod(dialog, "accept");
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

QTEST_MAIN(TestWritingWindow)
#include "tst_writingwindow.moc"
