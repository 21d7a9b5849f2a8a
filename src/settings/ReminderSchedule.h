#pragma once

#include <QString>
#include <QStringList>
#include <QTime>
#include <optional>

// The morning and night reminders' schedule, kept outside the app the way the desktop runs
// things: a systemd user timer and its service, or, without a user systemd, an autostart entry
// that waits for the time. Each runs `larkwells --remind morning|night`.
namespace ReminderSchedule {

enum class Kind { Morning, Night };

// "morning" or "night", as the command line names them.
QString name(Kind kind);
std::optional<Kind> kindNamed(const QString &name);
// "AM" for the morning, "PM" for the night.
QString ampm(Kind kind);

// The options a reminder passes on to the app it runs (the data folder, the bundle), set once
// from the command line.
void setLaunchArguments(const QStringList &arguments);
QStringList launchArguments();

// Writes the schedule of `kind` for the time `at`, or removes it when there is none. Files that
// cannot be written and service-manager failures are logged; the app goes on.
void update(Kind kind, std::optional<QTime> at);

// True while the autostart entry of `kind` waits for `at`: a waiting reminder whose entry was
// switched off or moved to another time ends instead of reminding.
bool autostartWaitsFor(Kind kind, QTime at);

// Where the schedule lives, under the user's configuration folder (XDG_CONFIG_HOME).
QString unitFolder();
QString autostartFolder();
// "larkwells-morning-reminder" and "larkwells-night-reminder".
QString unitName(Kind kind);

}
