#include "Alerts.h"
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

namespace {
// An alert's own window, `%1` pixels wide.
const QString alertWindowBody = u"ApplicationWindow { width: %1; height: 640; visible: true\n"
                                "AlertDialog { Component.onCompleted: open() } }"_s;
}

// The share sheet in a window of its own, as the application shows it; and the file chooser as a
// reader walks it: into a folder and back up, and a file opened, by touch and by a screen reader.
class TestSharing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }

    void cleanup() { Sharing::shared().cancel(); dismissAlerts(); }

    void sheetOffersWhatTheDesktopCanDo_data()
    {
        QTest::addColumn<bool>("text");
        QTest::addColumn<bool>("mail");
        QTest::newRow("mail only") << false << true;
        QTest::newRow("text only") << true << false;
    }

    void sheetOffersWhatTheDesktopCanDo()
    {
        QFETCH(bool, text);
        QFETCH(bool, mail);
        TestEnvironment environment;
        Sharing::shared().setCanSendTextForTesting(text);
        Sharing::shared().setCanSendMailForTesting(mail);
        QQmlEngine engine;
        const auto shown = showSheet(engine);
        QQuickWindow *window = shown.get();
        QVERIFY(window);
        QCOMPARE(option(window, u"sms"_s)->isVisible(), text);
        QCOMPARE(option(window, u"mail"_s)->isVisible(), mail);
        QVERIFY(option(window, u"file"_s)->isVisible());
    }

    // By the keyboard: Tab reaches the sheet's rows, Return presses one.
    void saveOpensTheFileDialog()
    {
        TestEnvironment environment;
        QQmlEngine engine;
        const auto shown = showSheet(engine);
        QQuickWindow *window = shown.get();
        QVERIFY(window);
        QTest::keyClick(window, Qt::Key_Tab);
        QTest::keyClick(window, Qt::Key_Tab);
        QCOMPARE(window->activeFocusItem(), option(window, u"file"_s));
        QTest::keyClick(window, Qt::Key_Return);
        QTRY_VERIFY(window->findChild<QObject *>(u"saveTextDialog"_s));
        auto *dialog = window->findChild<QObject *>(u"saveTextDialog"_s);
        QTRY_VERIFY(dialog->property("visible").toBool());
        QVERIFY(!Alerts::shared().showing());
    }

    void missingDialogModuleIsAnAlert()
    {
        TestEnvironment environment;
        QTemporaryDir folder;
        const QString broken = folder.filePath(u"Dialog.qml"_s);
        QVERIFY(writeFile(broken, "import Qt.labs.notinstalled\nimport QtQuick\nItem {}\n"));
        QQmlEngine engine;
        const auto shown = showSheet(engine);
        QQuickWindow *window = shown.get();
        QVERIFY(window);
        window->findChild<QObject *>(u"sheet"_s)->setProperty("saveDialogSource", QUrl::fromLocalFile(broken));
        QTest::failOnWarning(QRegularExpression(u"^(?!.*notinstalled).*qml.*"_s));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"notinstalled"_s));
        QMetaObject::invokeMethod(option(window, u"file"_s), "clicked");
        QTRY_VERIFY(Alerts::shared().showing());
        QCOMPARE(Alerts::shared().title(), u"Share"_s);
        QVERIFY(Alerts::shared().message().contains(u"file dialog is not installed"_s));
        QVERIFY(Sharing::shared().showing()); // the user can still choose another way
    }

    void unwritableFileIsAnAlert()
    {
        TestEnvironment environment;
        bool completed = true;
        Sharing::shared().present({u"text"_s, [&](bool done) { completed = done; }, {}, {}});
        Sharing::shared().saveToFile(QUrl::fromLocalFile(environment.dataDirectory() + u"/no/such/folder/x.txt"_s));
        QTRY_VERIFY(Alerts::shared().showing());
        QCOMPARE(Alerts::shared().title(), u"Share"_s);
        QVERIFY(Sharing::shared().showing());
        Sharing::shared().cancel();
        QVERIFY(!completed);
    }

    void mailThatCannotStartIsAnAlert()
    {
        TestEnvironment environment;
        std::optional<bool> completed;
        Sharing::shared().present({u"text"_s, [&](bool done) { completed = done; }, {}, {}});
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"mailto"_s)); // no mail client here
        Sharing::shared().email();
        QTRY_VERIFY(Alerts::shared().showing());
        QCOMPARE(Alerts::shared().title(), u"Sending Email"_s);
        QCOMPARE(Alerts::shared().message(), u"Email not Setup or Unavailable"_s);
        QVERIFY(!completed); // nothing done yet: the sheet stays for another choice
        QVERIFY(Sharing::shared().showing());

        OpenedUrls client({u"mailto"_s});
        Sharing::shared().email();
        QCOMPARE(client.urls.size(), 1);
        QVERIFY(client.urls.first().query().contains(u"body=text"_s));
        QCOMPARE(completed, std::optional(true));
    }

    // An alert raised while its window is still being sized opens without a warning, its title
    // whole (the style's title, cut short on a phone, changed height while the dialog was sizing
    // itself to it: a binding loop). Return answers an alert with one button; with a choice it
    // picks nothing by itself.
    void alertInItsOwnWindow_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<bool>("answered");
        QTest::newRow("phone, one button") << 360 << QStringList{u"Ok"_s} << true;
        QTest::newRow("tablet, one button") << 1024 << QStringList{u"Ok"_s} << true;
        QTest::newRow("phone, a choice") << 360 << QStringList{u"Discard"_s, u"Keep Editing"_s} << false;
    }

    void alertInItsOwnWindow()
    {
        QFETCH(int, width);
        QFETCH(QStringList, buttons);
        QFETCH(bool, answered);
        TestEnvironment environment;
        int chosen = -1;
        Alerts::shared().present({u"Initial Setup Recomendations?"_s,
                                  u"It's recommended that you go to the User Defaults Menu and turn on wallpapers."_s,
                                  buttons, [&](int button) { chosen = button; }});
        QQmlEngine engine;
        const auto window = qmlWindow(engine, alertWindowBody.arg(width));
        QVERIFY(window);
        auto *dialog = window->findChild<QObject *>(u"alertDialog"_s);
        QTRY_VERIFY(dialog->property("opened").toBool());
        QQuickItem *title = findItem(dialog->property("header").value<QQuickItem *>(), u"alertTitle"_s);
        QVERIFY(title);
        QCOMPARE(title->property("text").toString(), u"Initial Setup Recomendations?"_s);
        QVERIFY(!title->property("truncated").toBool());

        QTest::keyClick(window.get(), Qt::Key_Return);
        if (answered) {
            QTRY_COMPARE(chosen, 0);
        } else {
            QTest::qWait(50); // a chance to answer wrongly
            QCOMPARE(chosen, -1);
        }
        QCOMPARE(Alerts::shared().showing(), !answered);
    }

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

private:
    std::unique_ptr<QQuickWindow> showSheet(QQmlEngine &engine)
    {
        auto window = qmlWindow(engine, u"ApplicationWindow { width: 360; height: 640; visible: true\n"
                                        "ShareSheet { objectName: \"sheet\" }\nAlertDialog {} }"_s);
        if (!window)
            return nullptr;
        Sharing::shared().present({u"A line to share"_s, {}, {}, {}});
        auto *sheet = window->findChild<QObject *>(u"sheet"_s);
        return QTest::qWaitFor([&] { return sheet->property("opened").toBool(); }) ? std::move(window) : nullptr;
    }

    QQuickItem *option(QQuickWindow *window, const QString &name)
    {
        auto *sheet = window->findChild<QObject *>(u"sheet"_s);
        return findItem(sheet->property("contentItem").value<QQuickItem *>(), u"share-"_s + name);
    }
};

QTEST_MAIN(TestSharing)
#include "tst_sharing.moc"
