#include "Alerts.h"
#include "Sharing.h"
#include "TestSupport.h"

#include <QDesktopServices>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

// Takes mailto: links in place of a desktop mail client.
class MailClient : public QObject
{
    Q_OBJECT
public:
    QList<QUrl> opened;
public Q_SLOTS:
    void open(const QUrl &url) { opened << url; }
};

// The share sheet in a window of its own, as the application shows it.
class TestSharing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { importLarkwellsModule(); }
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

        MailClient client;
        QDesktopServices::setUrlHandler(u"mailto"_s, &client, "open");
        Sharing::shared().email();
        QDesktopServices::unsetUrlHandler(u"mailto"_s);
        QCOMPARE(client.opened.size(), 1);
        QCOMPARE(client.opened.first().query().contains(u"body=text"_s), true);
        QCOMPARE(completed, std::optional(true));
    }

    // An alert raised while its window is still being sized opens without a warning, its title
    // whole (the style's title, cut short on a phone, changed height while the dialog was sizing
    // itself to it: a binding loop).
    void alertOpensWhileItsWindowIsSized_data()
    {
        QTest::addColumn<int>("width");
        QTest::newRow("phone") << 360;
        QTest::newRow("tablet") << 1024;
    }

    void alertOpensWhileItsWindowIsSized()
    {
        QFETCH(int, width);
        TestEnvironment environment;
        Alerts::shared().present({u"Initial Setup Recomendations?"_s,
                                  u"It's recommended that you go to the User Defaults Menu and turn on wallpapers."_s,
                                  {u"Ok"_s}, {}});
        QQmlEngine engine;
        const auto window = alertWindow(engine, width);
        QVERIFY(window);
        auto *dialog = window->findChild<QObject *>(u"alertDialog"_s);
        QTRY_VERIFY(dialog->property("opened").toBool());
        QQuickItem *title = findItem(dialog->property("header").value<QQuickItem *>(), u"alertTitle"_s);
        QVERIFY(title);
        QCOMPARE(title->property("text").toString(), u"Initial Setup Recomendations?"_s);
        QVERIFY(!title->property("truncated").toBool());
    }

    // Return answers an alert with one button; with a choice it picks nothing by itself.
    void returnAnswersAnAlertWithOneButton_data()
    {
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<bool>("answered");
        QTest::newRow("one") << QStringList{u"Ok"_s} << true;
        QTest::newRow("a choice") << QStringList{u"Discard"_s, u"Keep Editing"_s} << false;
    }

    void returnAnswersAnAlertWithOneButton()
    {
        QFETCH(QStringList, buttons);
        QFETCH(bool, answered);
        TestEnvironment environment;
        int chosen = -1;
        Alerts::shared().present({u"Title"_s, u"Message"_s, buttons, [&](int button) { chosen = button; }});
        QQmlEngine engine;
        const auto window = alertWindow(engine, 360);
        QVERIFY(window);
        QTRY_VERIFY(window->findChild<QObject *>(u"alertDialog"_s)->property("opened").toBool());
        QTest::keyClick(window.get(), Qt::Key_Return);
        QTest::qWait(50);
        QCOMPARE(chosen, answered ? 0 : -1);
        QCOMPARE(Alerts::shared().showing(), !answered);
    }

private:
    std::unique_ptr<QQuickWindow> alertWindow(QQmlEngine &engine, int width)
    {
        engine.addImportPath(u"qrc:/qt/qml"_s);
        QQmlComponent component(&engine);
        component.setData(QStringLiteral("import QtQuick\nimport QtQuick.Controls\nimport Larkwells\n"
                                         "ApplicationWindow { width: %1; height: 640; visible: true\n"
                                         "AlertDialog { Component.onCompleted: open() } }").arg(width).toUtf8(),
                          QUrl(u"qrc:/test/AlertWindow.qml"_s));
        std::unique_ptr<QQuickWindow> window(qobject_cast<QQuickWindow *>(component.create()));
        if (!window)
            qWarning() << component.errorString();
        return window && QTest::qWaitForWindowExposed(window.get()) ? std::move(window) : nullptr;
    }

    std::unique_ptr<QQuickWindow> showSheet(QQmlEngine &engine)
    {
        engine.addImportPath(u"qrc:/qt/qml"_s);
        QQmlComponent component(&engine);
        component.setData("import QtQuick.Controls\nimport Larkwells\n"
                          "ApplicationWindow { width: 360; height: 640; visible: true\n"
                          "ShareSheet { objectName: \"sheet\" }\nAlertDialog {} }",
                          QUrl(u"qrc:/test/SheetWindow.qml"_s));
        std::unique_ptr<QQuickWindow> window(qobject_cast<QQuickWindow *>(component.create()));
        if (!window)
            qWarning() << component.errorString();
        if (!window || !QTest::qWaitForWindowExposed(window.get()))
            return nullptr;
        Sharing::shared().present({u"A line to share"_s, {}, {}, {}});
        auto *sheet = window->findChild<QObject *>(u"sheet"_s);
        if (!QTest::qWaitFor([&] { return sheet->property("opened").toBool(); }))
            return nullptr;
        return window;
    }

    QQuickItem *option(QQuickWindow *window, const QString &name)
    {
        auto *sheet = window->findChild<QObject *>(u"sheet"_s);
        return findItem(sheet->property("contentItem").value<QQuickItem *>(), u"share-"_s + name);
    }
};

QTEST_MAIN(TestSharing)
#include "tst_sharing.moc"
