#pragma once

#include "PreferenceKeys.h"
#include "ReminderSchedule.h"

#include <QObject>
#include <QQmlEngine>

// The reminder rows of the "User Defaults" screen: a morning and a night switch, each with its
// time. A change is stored at once and the schedule outside the app rewritten to match.
class ReminderSettings : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool MorningReminder READ MorningReminder NOTIFY changed)
    Q_PROPERTY(QString MorningReminderTime READ MorningReminderTime NOTIFY changed)
    Q_PROPERTY(bool NightReminder READ NightReminder NOTIFY changed)
    Q_PROPERTY(QString NightReminderTime READ NightReminderTime NOTIFY changed)

public:
    enum class Kind { Morning = int(ReminderSchedule::Kind::Morning), Night = int(ReminderSchedule::Kind::Night) };
    Q_ENUM(Kind)

    using QObject::QObject;

    bool MorningReminder() const { return Preferences::boolForKey(PreferenceKeys::MorningReminder); }
    QString MorningReminderTime() const { return Preferences::stringOrAbsent(PreferenceKeys::MorningReminderTime); }
    bool NightReminder() const { return Preferences::boolForKey(PreferenceKeys::NightReminder); }
    QString NightReminderTime() const { return Preferences::stringOrAbsent(PreferenceKeys::NightReminderTime); }

    // A time as typed ("7:05", "07:05"); none for anything else.
    static std::optional<QTime> timeFromText(const QString &text);

    // The switch of `kind` turned on or off.
    Q_INVOKABLE void ReminderSwitchChanged(ReminderSettings::Kind kind, bool on);
    // The time field of `kind` was edited; a time that cannot be read leaves the stored one.
    Q_INVOKABLE void ReminderTimeChanged(ReminderSettings::Kind kind, const QString &text);

Q_SIGNALS:
    void changed();

private:
    static const PreferenceKey &switchKey(Kind kind);
    static const PreferenceKey &timeKey(Kind kind);
    static void reschedule(Kind kind);
};
