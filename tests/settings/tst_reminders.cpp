#include "Clock.h"
#include "Notifications.h"
#include "PageRows.h"
#include "RemindCommand.h"
#include "ReminderSchedule.h"
#include "ReminderSettings.h"
#include "TestSupport.h"
#include "TodaysPage.h"
#include "UserDefaults.h"
#include "UserServices.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDirIterator>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using Kind = ReminderSettings::Kind;

namespace {
// The session's service manager as a test sees it: there or not, every command recorded.
struct FakeServices : UserServices {
    bool present = true;
    QStringList commands;
    bool available() const override { return present; }
    std::optional<QString> systemctl(const QStringList &arguments) override
    {
        commands << arguments.join(u' ');
        return std::nullopt;
    }
};

// A notification service that keeps what it was asked to show.
struct FakeNotifications : Notifications {
    QList<Notification> shown;
    std::optional<QString> notify(const Notification &notification) override
    {
        shown << notification;
        return std::nullopt;
    }
};

// The user's configuration folder for one test, with the fakes installed.
struct Desktop {
    QTemporaryDir config;
    FakeServices services;
    FakeNotifications notifications;
    Desktop()
    {
        qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
        UserServices::setShared(&services);
        Notifications::setShared(&notifications);
    }
    ~Desktop()
    {
        UserServices::setShared(nullptr);
        Notifications::setShared(nullptr);
        ReminderSchedule::setLaunchArguments({});
    }
    // Every file and folder under the configuration folder.
    QStringList entries() const
    {
        QStringList found;
        QDirIterator it(config.path(), QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (it.hasNext())
            found << it.next().mid(config.path().size() + 1);
        found.sort();
        return found;
    }
    QString read(const QString &file) const
    {
        return QString::fromUtf8(readFile(QDir(config.path()).filePath(file)));
    }
};

// A reminder program run with its own session bus address: its exit status, its errors.
int runLarkwells(const QStringList &arguments, const QString &busAddress, QString &errors)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, busAddress);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(LARKWELLS_BINARY), arguments);
    QSignalSpy finished(&process, &QProcess::finished); // the event loop runs, so a fake service can answer
    if (!finished.wait(30000))
        return -1;
    errors = QString::fromLocal8Bit(process.readAllStandardError());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}
}

// The desktop's notification service, on a private bus: it shows nothing, keeps the summary
// and body, and closes each notification at once.
class NotificationService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    explicit NotificationService(QDBusConnection bus) : m_bus(bus) {}
    QStringList received;

public Q_SLOTS:
    uint Notify(const QString &, uint, const QString &, const QString &summary, const QString &body, const QStringList &actions,
                const QVariantMap &, int)
    {
        received << summary + u'|' + body + u'|' + actions.join(u',');
        QTimer::singleShot(0, this, [this] {
            QDBusMessage closed = QDBusMessage::createSignal(u"/org/freedesktop/Notifications"_s,
                                                             u"org.freedesktop.Notifications"_s, u"NotificationClosed"_s);
            closed << 7u << 2u;
            m_bus.send(closed);
        });
        return 7;
    }

private:
    QDBusConnection m_bus;
};

class TestReminders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }

    void scheduleFollowsTheSwitches_data()
    {
        QTest::addColumn<bool>("systemd");
        QTest::addColumn<QStringList>("folders");
        QTest::addColumn<QStringList>("morningFiles");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("timeAt0630");
        const QString unit = u"systemd/user/larkwells-morning-reminder"_s;
        const QString program = QCoreApplication::applicationFilePath();
        QTest::newRow("user systemd: a timer and its service")
            << true << QStringList{u"systemd"_s, u"systemd/user"_s} << QStringList{unit + u".service"_s, unit + u".timer"_s}
            << u"ExecStart=%1 --remind morning --data-dir \"/tmp/My Book/100%%\"\n"_s.arg(program)
            << u"OnCalendar=*-*-* 06:30:00\n"_s;
        QTest::newRow("no user systemd: an autostart entry that waits")
            << false << QStringList{u"autostart"_s} << QStringList{u"autostart/larkwells-morning-reminder.desktop"_s}
            << u"Exec=%1 --remind morning --at 07:00 --data-dir \"/tmp/My Book/100%%\"\n"_s.arg(program)
            << u"--at 06:30 "_s;
    }

    void scheduleFollowsTheSwitches()
    {
        QFETCH(bool, systemd);
        QFETCH(QStringList, folders);
        QFETCH(QStringList, morningFiles);
        QFETCH(QString, command);
        QFETCH(QString, timeAt0630);
        TestEnvironment environment;
        Desktop desktop;
        desktop.services.present = systemd;
        ReminderSchedule::setLaunchArguments({u"--data-dir"_s, u"/tmp/My Book/100%"_s});
        ReminderSettings reminders;

        reminders.ReminderSwitchChanged(Kind::Morning, true);
        QCOMPARE(desktop.entries(), folders + morningFiles);
        QVERIFY2(desktop.read(morningFiles.first()).contains(command), qPrintable(desktop.read(morningFiles.first())));
        if (systemd) {
            QVERIFY(desktop.read(morningFiles.last()).contains(u"OnCalendar=*-*-* 07:00:00\n"_s));
            QCOMPARE(desktop.services.commands,
                     (QStringList{u"daemon-reload"_s, u"enable --now larkwells-morning-reminder.timer"_s}));
        }

        reminders.ReminderTimeChanged(Kind::Morning, u"6:30"_s);
        QCOMPARE(reminders.MorningReminderTime(), u"06:30"_s);
        QVERIFY(desktop.read(morningFiles.last()).contains(timeAt0630));
        QCOMPARE(ReminderSchedule::autostartWaitsFor(ReminderSchedule::Kind::Morning, QTime(6, 30)), !systemd);
        QVERIFY(!ReminderSchedule::autostartWaitsFor(ReminderSchedule::Kind::Morning, QTime(7, 0)));
        reminders.ReminderSwitchChanged(Kind::Night, true);
        const QStringList night = desktop.entries().filter(u"night"_s);
        QCOMPARE(night.size(), morningFiles.size());
        QVERIFY(desktop.read(night.first()).contains(u"--remind night"_s));

        desktop.services.commands.clear();
        reminders.ReminderSwitchChanged(Kind::Morning, false);
        reminders.ReminderSwitchChanged(Kind::Night, false);
        QCOMPARE(desktop.entries(), QStringList());
        QVERIFY(!ReminderSchedule::autostartWaitsFor(ReminderSchedule::Kind::Morning, QTime(6, 30)));
        if (systemd)
            QCOMPARE(desktop.services.commands.filter(u"disable --now"_s),
                     (QStringList{u"disable --now larkwells-morning-reminder.timer"_s, u"disable --now larkwells-night-reminder.timer"_s}));

        // The switches and the time survive a restart.
        UserDefaults::setStandardDirectory(environment.dataDirectory());
        QCOMPARE(UserDefaults::standard().stringForKey(u"MorningReminderTime"_s), u"06:30"_s);
        QCOMPARE(UserDefaults::standard().boolForKey(u"NightReminder"_s), false);
    }

    void notificationShowsTodaysFirstLine_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("summary");
        QTest::addColumn<QString>("body");
        QTest::newRow("morning") << u"morning"_s << u"Good Morning"_s << u"Dew on the gate"_s;
        QTest::newRow("night, past the heading a save left") << u"night"_s << u"Good Night"_s << u"Lamps along the lane"_s;
    }

    void notificationShowsTodaysFirstLine()
    {
        QFETCH(QString, kind);
        QFETCH(QString, summary);
        QFETCH(QString, body);
        TestEnvironment environment;
        Desktop desktop;
        Clock::set([] { return QDateTime(QDate(2026, 5, 2), QTime(7, 0)); });
        insertPages({u"May 1|AM|5|1|1|F|Yesterday's morning"_s, u"May 2|AM|5|2|3|F|\n  Dew on the gate\nand on the grass"_s,
                     u"May 2|PM|5|2|4|T|\nFrom The Larkwells\n Good Night\n\nMay 2\n\nLamps along the lane\nburn low"_s});
        RemindCommand command(*ReminderSchedule::kindNamed(kind), [](const QStringList &) {});
        QCOMPARE(command.send(), int(RemindCommand::Sent));
        QCOMPARE(desktop.notifications.shown.size(), 1);
        QCOMPARE(desktop.notifications.shown.first().summary, summary);
        QCOMPARE(desktop.notifications.shown.first().body, body);
    }

    void aClickOpensTheAppOnThePage()
    {
        TestEnvironment environment;
        Desktop desktop;
        ReminderSchedule::setLaunchArguments({u"--data-dir"_s, environment.dataDirectory()});
        QStringList launched;
        RemindCommand command(ReminderSchedule::Kind::Night, [&launched](const QStringList &arguments) { launched = arguments; });
        QSignalSpy finished(&command, &RemindCommand::finished);
        QCOMPARE(command.send(), int(RemindCommand::Sent));
        QVERIFY(launched.isEmpty());
        Q_EMIT desktop.notifications.defaultActionInvoked();
        QCOMPARE(launched, (QStringList{u"--open"_s, u"today-night"_s, u"--data-dir"_s, environment.dataDirectory()}));
        QCOMPARE(finished.size(), 1);
    }

    void commandExitStatus_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("serviceRuns");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");
        QTest::newRow("sent") << QStringList{u"--remind"_s, u"morning"_s} << true << 0 << QString();
        QTest::newRow("no notification service") << QStringList{u"--remind"_s, u"night"_s} << false << 3
                                                 << u"the reminder could not be shown"_s;
        QTest::newRow("unknown kind") << QStringList{u"--remind"_s, u"evening"_s} << true << 2 << u"\"evening\""_s;
        QTest::newRow("unreadable time") << QStringList{u"--remind"_s, u"night"_s, u"--at"_s, u"25:00"_s} << true << 2
                                         << u"\"25:00\""_s;
        QTest::newRow("a time without a reminder") << QStringList{u"--at"_s, u"07:00"_s} << true << 2 << u"--at"_s;
        QTest::newRow("unknown page to open") << QStringList{u"--open"_s, u"yesterday"_s} << true << 2 << u"--open"_s;
    }

    void commandExitStatus()
    {
        QFETCH(QStringList, arguments);
        QFETCH(bool, serviceRuns);
        QFETCH(int, status);
        QFETCH(QString, message);
        TestEnvironment environment;
        insertPages({u"May 2|AM|5|2|3|F|First light"_s});

        QProcess daemon;
        QString address = u"unix:path=/nonexistent/bus"_s;
        std::optional<NotificationService> service;
        if (serviceRuns) {
            daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s});
            QVERIFY(daemon.waitForReadyRead(10000));
            address = QString::fromUtf8(daemon.readLine()).trimmed();
            QDBusConnection bus = QDBusConnection::connectToBus(address, u"fake-desktop"_s);
            QVERIFY(bus.isConnected());
            service.emplace(bus);
            QVERIFY(bus.registerService(u"org.freedesktop.Notifications"_s));
            QVERIFY(bus.registerObject(u"/org/freedesktop/Notifications"_s, &*service, QDBusConnection::ExportAllSlots));
        }
        QString errors;
        QCOMPARE(runLarkwells(arguments + QStringList{u"--data-dir"_s, environment.dataDirectory()}, address, errors), status);
        QVERIFY2(errors.contains(message), qPrintable(errors));
        if (service && status == 0)
            QCOMPARE(service->received.size(), 1);
        if (serviceRuns) // before the service goes; the daemon ends with its QProcess
            QDBusConnection::disconnectFromBus(u"fake-desktop"_s);
    }

    void rowsInTheWindow()
    {
        TestEnvironment environment;
        Desktop desktop;
        Clock::set([] { return QDateTime(QDate(2026, 5, 2), QTime(21, 0)); });
        insertPages({u"May 2|PM|5|2|4|F|Lamps along the lane"_s});
        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"UserDefaultsButton"_s, u"DefaultsView"_s);
        QVERIFY(window);
        QCOMPARE(waitForItem(window, u"MorningReminderTimeField"_s)->property("text").toString(), u"07:00"_s);
        QQuickItem *nightTime = waitForItem(window, u"NightReminderTimeField"_s);
        QCOMPARE(nightTime->property("text").toString(), u"21:00"_s);

        // By keyboard alone: the switch takes Space, the time field takes a new time.
        waitForItem(window, u"NightReminderSwitch"_s)->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(window, Qt::Key_Space);
        QTRY_VERIFY(UserDefaults::standard().boolForKey(u"NightReminder"_s));
        QCOMPARE(desktop.entries(), (QStringList{u"systemd"_s, u"systemd/user"_s, u"systemd/user/larkwells-night-reminder.service"_s,
                                                 u"systemd/user/larkwells-night-reminder.timer"_s}));
        const auto typeTime = [&](const QString &time) {
            nightTime->forceActiveFocus(Qt::TabFocusReason);
            QTest::keySequence(window, QKeySequence::SelectAll);
            typeText(window, time);
            QTest::keyClick(window, Qt::Key_Tab);
        };
        typeTime(u"22:15"_s);
        QTRY_COMPARE(UserDefaults::standard().stringForKey(u"NightReminderTime"_s), u"22:15"_s);
        QVERIFY(desktop.read(u"systemd/user/larkwells-night-reminder.timer"_s).contains(u"22:15:00"_s));

        // An unreadable time goes back to the stored one.
        typeTime(u"99"_s);
        QTRY_COMPARE(nightTime->property("text").toString(), u"22:15"_s);

        click(window, waitForItem(window, u"NightReminderSwitch"_s));
        QTRY_COMPARE(desktop.entries(), QStringList());

        // The notification's click, as the app started with --open today-night handles it.
        QVERIFY(TodaysPage::open(u"PM"_s));
        QTRY_COMPARE(topPage(window), u"View"_s);
        QVERIFY(waitForItem(window, u"PoemPrayerTextView"_s)->property("text").toString().endsWith(u"Lamps along the lane"_s));
    }
};

QTEST_MAIN(TestReminders)
#include "tst_reminders.moc"
