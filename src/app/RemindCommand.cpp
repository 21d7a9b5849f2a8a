#include "RemindCommand.h"

#include "Clock.h"
#include "Entities.h"
#include "Notifications.h"
#include "ReaderText.h"
#include "ReminderSettings.h"
#include "TodaysPage.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTimer>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {
// How long a sent reminder waits for a click before it ends.
constexpr auto clickWait = std::chrono::hours(1);

void complain(const QString &message)
{
    std::fprintf(stderr, "larkwells: %s\n", qPrintable(message));
}
}

RemindCommand::RemindCommand(ReminderSchedule::Kind kind, Launcher launcher, QObject *parent)
    : QObject(parent)
    , m_kind(kind)
    , m_launcher(launcher ? std::move(launcher) : [](const QStringList &arguments) {
        QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments);
    })
{
    Notifications &notifications = Notifications::shared();
    connect(&notifications, &Notifications::defaultActionInvoked, this, [this] {
        m_launcher(openArguments());
        Q_EMIT finished();
    });
    connect(&notifications, &Notifications::closed, this, &RemindCommand::finished);
}

int RemindCommand::run(const QString &kindName, const QString &atText)
{
    const auto kind = ReminderSchedule::kindNamed(kindName);
    if (!kind) {
        complain(u"--remind takes \"morning\" or \"night\", not \"%1\"."_s.arg(kindName));
        return BadArgument;
    }
    const auto at = atText.isEmpty() ? std::nullopt : ReminderSettings::timeFromText(atText);
    if (!atText.isEmpty() && !at) {
        complain(u"--at takes a time such as 07:00, not \"%1\"."_s.arg(atText));
        return BadArgument;
    }
    RemindCommand command(*kind);
    if (at) {
        command.waitUntil(*at);
        return QCoreApplication::exec();
    }
    if (const int status = command.send(); status != Sent)
        return status;
    connect(&command, &RemindCommand::finished, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    QTimer::singleShot(clickWait, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    return Sent;
}

int RemindCommand::send()
{
    const QString ampm = ReminderSchedule::ampm(m_kind);
    const PoemPrayer *page = TodaysPage::fetch(ampm);
    const QString body = page ? TodaysPage::firstLine(*page) : QString();
    if (const auto error = Notifications::shared().notify({ReaderText::greeting(ampm), body})) {
        complain(u"the reminder could not be shown: %1."_s.arg(*error));
        return NoNotificationService;
    }
    return Sent;
}

QStringList RemindCommand::openArguments() const
{
    return QStringList{u"--open"_s, u"today-"_s + ReminderSchedule::name(m_kind)} + ReminderSchedule::launchArguments();
}

QDateTime RemindCommand::nextTime(const QDateTime &now, QTime at)
{
    QDateTime next = now;
    next.setTime(at);
    return next > now ? next : next.addDays(1);
}

void RemindCommand::waitUntil(QTime at)
{
    const qint64 wait = Clock::now().msecsTo(nextTime(Clock::now(), at));
    QTimer::singleShot(std::chrono::milliseconds(wait), this, [this, at] {
        if (!ReminderSchedule::autostartWaitsFor(m_kind, at)) {
            QCoreApplication::quit();
            return;
        }
        send(); // a missing service is told on standard error; tomorrow may be better
        waitUntil(at);
    });
}
