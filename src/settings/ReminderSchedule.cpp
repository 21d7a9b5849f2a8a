#include "ReminderSchedule.h"

#include "Log.h"
#include "UserServices.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace ReminderSchedule {
namespace {
QStringList &storedLaunchArguments()
{
    static QStringList arguments;
    return arguments;
}

QString configFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
}

QString unitPath(Kind kind, const QString &suffix)
{
    return QDir(unitFolder()).filePath(unitName(kind) + suffix);
}

QString autostartPath(Kind kind)
{
    return QDir(autostartFolder()).filePath(unitName(kind) + u".desktop"_s);
}

// The words of the reminder's command line, the program first.
QStringList command(Kind kind, const QStringList &extra = {})
{
    return QStringList{QCoreApplication::applicationFilePath(), u"--remind"_s, name(kind)} + extra + launchArguments();
}

// A word as systemd reads it in ExecStart: quoted when it has to be, specifiers and
// variables kept literal.
QString systemdWord(QString word)
{
    word.replace(u'%', u"%%"_s).replace(u'$', u"$$"_s);
    if (!word.isEmpty() && !word.contains(QRegularExpression(u"[\\s\"'\\\\;]"_s)))
        return word;
    return u'"' + word.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s) + u'"';
}

// A word as a desktop entry's Exec key reads it (quoting, then the key's own escaping).
QString desktopWord(QString word)
{
    word.replace(u'%', u"%%"_s);
    if (!word.isEmpty() && !word.contains(QRegularExpression(u"[\\s\"'\\\\><~|&;$*?#()`]"_s)))
        return word;
    static const QRegularExpression reserved(u"([\"`$\\\\])"_s);
    const QString quoted = u'"' + word.replace(reserved, u"\\\\1"_s) + u'"';
    return QString(quoted).replace(u'\\', u"\\\\"_s);
}

QString joined(const QStringList &words, QString (*quote)(QString))
{
    QStringList quoted;
    for (const QString &word : words)
        quoted << quote(word);
    return quoted.join(u' ');
}

bool write(const QString &path, const QString &contents)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(contents.toUtf8()) >= 0 && file.commit())
        return true;
    Log::line(u"The reminder could not be written to %1: %2"_s.arg(path, file.errorString()));
    return false;
}

void systemctl(const QStringList &arguments)
{
    if (const auto error = UserServices::shared().systemctl(arguments))
        Log::line(*error);
}

QString title(Kind kind)
{
    return kind == Kind::Morning ? u"The Larkwells Book: morning reminder"_s : u"The Larkwells Book: night reminder"_s;
}

void writeTimer(Kind kind, QTime at)
{
    const QString timer = u"[Unit]\nDescription=%1\n\n[Timer]\nOnCalendar=*-*-* %2\nUnit=%3.service\n\n"
                          "[Install]\nWantedBy=timers.target\n"_s.arg(title(kind), at.toString(u"HH:mm:00"_s), unitName(kind));
    const QString service = u"[Unit]\nDescription=%1\n\n[Service]\nType=simple\nExecStart=%2\n"_s.arg(
        title(kind), joined(command(kind), systemdWord));
    if (!write(unitPath(kind, u".service"_s), service) || !write(unitPath(kind, u".timer"_s), timer))
        return;
    systemctl({u"daemon-reload"_s});
    systemctl({u"enable"_s, u"--now"_s, unitName(kind) + u".timer"_s});
}

void writeAutostart(Kind kind, QTime at)
{
    // Started at login, the command waits for the time, every day while the session lasts.
    const QString entry = u"[Desktop Entry]\nType=Application\nName=%1\nExec=%2\nNoDisplay=true\n"
                          "X-GNOME-Autostart-enabled=true\n"_s.arg(
                              title(kind), joined(command(kind, {u"--at"_s, at.toString(u"HH:mm"_s)}), desktopWord));
    write(autostartPath(kind), entry);
}

void removeSchedule(Kind kind)
{
    if (QFile::exists(unitPath(kind, u".timer"_s))) {
        systemctl({u"disable"_s, u"--now"_s, unitName(kind) + u".timer"_s});
        QFile::remove(unitPath(kind, u".timer"_s));
        QFile::remove(unitPath(kind, u".service"_s));
        systemctl({u"daemon-reload"_s});
    }
    QFile::remove(unitPath(kind, u".service"_s));
    QFile::remove(autostartPath(kind));
    // The folders go too when this left them empty (rmdir keeps a folder that holds anything).
    QDir config(configFolder());
    for (const QString &folder : {u"systemd/user"_s, u"systemd"_s, u"autostart"_s})
        config.rmdir(folder);
}
}

QString name(Kind kind)
{
    return kind == Kind::Morning ? u"morning"_s : u"night"_s;
}

std::optional<Kind> kindNamed(const QString &name)
{
    if (name == u"morning"_s)
        return Kind::Morning;
    if (name == u"night"_s)
        return Kind::Night;
    return std::nullopt;
}

QString ampm(Kind kind)
{
    return kind == Kind::Morning ? u"AM"_s : u"PM"_s;
}

void setLaunchArguments(const QStringList &arguments)
{
    storedLaunchArguments() = arguments;
}

QStringList launchArguments()
{
    return storedLaunchArguments();
}

void update(Kind kind, std::optional<QTime> at)
{
    removeSchedule(kind);
    if (!at)
        return;
    if (UserServices::shared().available())
        writeTimer(kind, *at);
    else
        writeAutostart(kind, *at);
}

bool autostartWaitsFor(Kind kind, QTime at)
{
    QFile entry(autostartPath(kind));
    const QRegularExpression waits(u" --at %1(\\s|$)"_s.arg(at.toString(u"HH:mm"_s)), QRegularExpression::MultilineOption);
    return entry.open(QIODevice::ReadOnly) && QString::fromUtf8(entry.readAll()).contains(waits);
}

QString unitFolder()
{
    return QDir(configFolder()).filePath(u"systemd/user"_s);
}

QString autostartFolder()
{
    return QDir(configFolder()).filePath(u"autostart"_s);
}

QString unitName(Kind kind)
{
    return u"larkwells-%1-reminder"_s.arg(name(kind));
}
}
