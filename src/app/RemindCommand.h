#pragma once

#include "ReminderSchedule.h"

#include <QDateTime>
#include <QObject>
#include <functional>

// `larkwells --remind morning|night`: shows "Good Morning" or "Good Night" with the first line
// of today's page as a desktop notification; a click on it opens the app on that page. With
// `--at HH:MM` (the autostart entry) it waits for that time every day instead.
class RemindCommand : public QObject
{
    Q_OBJECT

public:
    enum ExitCode { Sent = 0, BadArgument = 2, NoNotificationService = 3 };
    // Starts the app with these arguments (after a click on the notification).
    using Launcher = std::function<void(const QStringList &arguments)>;

    explicit RemindCommand(ReminderSchedule::Kind kind, Launcher launcher = {}, QObject *parent = nullptr);

    // Runs the command from its command-line values; returns the process's exit status.
    static int run(const QString &kindName, const QString &atText);

    // Shows today's reminder: Sent, or NoNotificationService with the reason on standard error.
    int send();
    // The arguments that open the app on this reminder's page.
    QStringList openArguments() const;
    // The next time `at` comes after `now`.
    static QDateTime nextTime(const QDateTime &now, QTime at);

Q_SIGNALS:
    // The notification went away or was clicked: nothing more will come of it.
    void finished();

private:
    void waitUntil(QTime at);

    ReminderSchedule::Kind m_kind;
    Launcher m_launcher;
};
