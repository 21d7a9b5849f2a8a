#include "Navigator.h"
#include "Sharing.h"
#include "TestSupport.h"

#include <QAccessible>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

// The file chooser as a reader walks it: into a folder and back up, and a file opened, by touch
// and by a screen reader.
class TestFileChooser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }

    void opensOnAFolderThatIsThere_data()
    {
        QTest::addColumn<bool>("documents");
        QTest::newRow("with Documents") << true;
        QTest::newRow("without Documents") << false;
    }

    void opensOnAFolderThatIsThere()
    {
        QFETCH(bool, documents);
        QTemporaryDir home;
        const QByteArray oldHome = qgetenv("HOME");
        qputenv("HOME", home.path().toUtf8());
        if (documents)
            QVERIFY(QDir(home.path()).mkdir(u"Documents"_s));
        const QString folder = Sharing::shared().documentsFolder().toLocalFile();
        qputenv("HOME", oldHome);
        QCOMPARE(folder, documents ? home.filePath(u"Documents"_s) : home.path());
    }

    // On a tablet the chooser is a card: a tap beside it closes it and reaches nothing behind.
    void aTapBesideTheCardStaysOnTheScreen()
    {
        TestEnvironment environment;
        QQmlApplicationEngine engine;
        QQuickWindow *window = loadLaunchedWindow(engine);
        QVERIFY(window);
        dismissAlerts();
        window->resize(1024, 768);
        Navigator::shared().performSegue(u"AboutImportSegue"_s);
        QTemporaryDir empty; // no row to take the keys
        QObject *dialog = fileDialogShowing(window, empty.path());
        QVERIFY(dialog);
        // The keys stay in the chooser, once the screen under it has come in too.
        QTest::qWait(600);
        const QQuickItem *card = qvariant_cast<QQuickItem *>(dialog->property("contentItem"))->parentItem();
        for (int tab = 0; tab < 8; ++tab) {
            QTest::keyClick(window, Qt::Key_Tab);
            QVERIFY2(window->activeFocusItem() && card->isAncestorOf(window->activeFocusItem()),
                     qPrintable(window->activeFocusItem() ? window->activeFocusItem()->objectName() : u"none"_s));
        }
        click(window, waitForItem(window, u"backButton"_s));
        QTRY_VERIFY(!dialog->property("visible").toBool());
        QTest::qWait(100);
        QCOMPARE(topPage(window), u"AboutImportView"_s);
    }

    void walkFoldersAndOpenAFile()
    {
        TestEnvironment environment;
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"inner"_s));
        const QString picked = folder.filePath(u"inner/About.txt"_s);
        QVERIFY(writeFile(picked, "[ABOUT]\nPicked^By hand\n"));

        QQmlApplicationEngine engine;
        QQuickWindow *window = loadLaunchedWindow(engine);
        QVERIFY(window);
        dismissAlerts();
        Navigator::shared().performSegue(u"AboutImportSegue"_s);
        QObject *dialog = fileDialogShowing(window, folder.path());
        QVERIFY(dialog);

        // On a phone one tap opens a folder.
        click(window, waitForItem(window, u"file-inner"_s));
        QTRY_COMPARE(dialog->property("currentFolder").toUrl(), QUrl::fromLocalFile(folder.filePath(u"inner"_s)));
        QVERIFY(waitForItem(window, u"file-About.txt"_s));

        QQuickItem *up = waitForItem(window, u"upButton"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(up)->text(QAccessible::Name), u"Up"_s);
        click(window, up);
        QTRY_COMPARE(dialog->property("currentFolder").toUrl(), QUrl::fromLocalFile(folder.path()));

        // A screen reader's press on a file opens it at once.
        click(window, waitForItem(window, u"file-inner"_s));
        QAccessibleInterface *row = QAccessible::queryAccessibleInterface(waitForItem(window, u"file-About.txt"_s));
        QCOMPARE(row->text(QAccessible::Name), u"About.txt"_s);
        row->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QTRY_VERIFY(!dialog->property("visible").toBool());
        QTRY_COMPARE(findVisibleItem(window, u"ImportTextView"_s)->property("text").toString(),
                     u"[ABOUT]\nPicked^By hand\n"_s);
    }
};

QTEST_MAIN(TestFileChooser)
#include "tst_filechooser.moc"
