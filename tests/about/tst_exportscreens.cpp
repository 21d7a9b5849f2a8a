#include "AboutImportViewController.h"
#include "Alerts.h"
#include "ExportViewController.h"
#include "PageRows.h"
#include "Sharing.h"
#include "SpecialDaysExportViewController.h"
#include "TestSupport.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// A stand-in for xdg-email on PATH: records its arguments, ends with the status asked for.
class FakeMailer
{
public:
    explicit FakeMailer(int status)
    {
        QFile script(m_folder.filePath(u"xdg-email"_s));
        script.open(QIODevice::WriteOnly);
        script.write("#!/bin/sh\nprintf '%s\\n' \"$@\" > \"$(dirname \"$0\")/arguments\"\nexit " + QByteArray::number(status) + "\n");
        script.setPermissions(script.permissions() | QFile::ExeOwner);
        m_path = qgetenv("PATH");
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
        QFile file(m_folder.filePath(u"arguments"_s));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
                                              : QStringList();
    }
    QString temporary(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    QByteArray m_path;
};

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Builds the file on one of the three screens, lets the user edit it, and mails it.
void buildEditAndMail(const QString &screen, const QString &edited)
{
    if (screen == u"about") {
        AboutImportViewController controller;
        controller.CreateExportFile();
        controller.setImportTextView(edited);
        controller.EmailExportFile();
        return;
    }
    std::unique_ptr<ExportViewController> controller;
    if (screen == u"pages")
        controller = std::make_unique<ExportViewController>();
    else
        controller = std::make_unique<SpecialDaysExportViewController>();
    controller->viewDidLoad();
    controller->CreateUpdateFile();
    controller->setExportTextView(edited);
    controller->WriteTextFile();
    QCOMPARE(controller->ExportTextView(), edited); // read back from the written file
}
}

// The page and special-day export screens, and the mail and save paths of all three files.
class TestExportScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Sharing::shared().setCanSendMailForTesting(std::nullopt); dismissAlerts(); }
    void createsTheFileOnceAVisit();
    void savesAndSharesTheFile();
    void mail_data();
    void mail();
};

void TestExportScreens::createsTheFileOnceAVisit()
{
    TestEnvironment environment;
    insertPages({u"d1|AM|12|25|359|F|First line\nsecond line"_s});
    ExportViewController controller;
    controller.viewDidLoad();
    QCOMPARE(controller.HelpTextView(),
             u"Step 1: Create the Export File\nStep 2: Option 1: Click 'Save To Files' button\n             Option 2: "
             "Click the Email File button to email the file to yourself and then from your email save the file to your "
             "iCloud Drive. There are size limits to email attachments for most carriers."_s);
    QVERIFY(controller.ExportButtonEnabled() && !controller.SaveButtonEnabled() && !controller.EmailButtonEnabled());
    QVERIFY(!controller.DataString());

    QSignalSpy presented(&Alerts::shared(), &Alerts::presented);
    controller.CreateUpdateFile();
    QCOMPARE(controller.ExportTextView(), u"[POEMPRAYER]\nd1^AM^12^25^359^F^First line\nsecond line\n"_s);
    QVERIFY(!controller.ExportButtonEnabled() && controller.SaveButtonEnabled() && controller.EmailButtonEnabled());
    QVERIFY(presented.isEmpty()); // the alert comes later
    QTRY_COMPARE_WITH_TIMEOUT(presented.size(), 1, 4000);
    QCOMPARE(presented[0], (QVariantList{u"Data Export"_s, u"Process Complete - File Ready to Save To Files or Email"_s}));
    QCOMPARE(Alerts::shared().buttons(), QStringList{u"OK"_s});
}

void TestExportScreens::savesAndSharesTheFile()
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
    QCOMPARE(contents(written), QByteArray("[POEMPRAYER]\nd1^PM^1^1^2^T^Night\n")); // the file as built
    QVERIFY(Sharing::shared().showing() && Sharing::shared().sharesFile());
    QCOMPARE(Sharing::shared().suggestedCopy().fileName(), u"PoemPrayer.txt"_s);

    Sharing::shared().saveCopy(QUrl::fromLocalFile(mailer.temporary(u"no/such/folder.txt"_s)));
    QTRY_COMPARE(Alerts::shared().title(), u"Share"_s); // never a silent failure
    QVERIFY(Sharing::shared().showing());
    dismissAlerts();
    const QString copy = mailer.temporary(u"copy.txt"_s);
    Sharing::shared().saveCopy(QUrl::fromLocalFile(copy));
    QCOMPARE(contents(copy), contents(written));
    QVERIFY(!Sharing::shared().showing());
}

void TestExportScreens::mail_data()
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

void TestExportScreens::mail()
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
        QCOMPARE(contents(attachment), QByteArray("edited twice")); // the text view's content, edits included
        QCOMPARE(mailAlerts().size(), 1);
    }
    FakeMailer failing(3);
    buildEditAndMail(screen, u"edited"_s);
    QTRY_COMPARE(mailAlerts().size(), 2);
    QCOMPARE(mailAlerts().last(), u"The mail program could not be started: xdg-email ended with status 3"_s);
}

QTEST_MAIN(TestExportScreens)
#include "tst_exportscreens.moc"
