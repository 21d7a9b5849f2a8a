#include "ReminderSettings.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

std::optional<QTime> ReminderSettings::timeFromText(const QString &text)
{
    static const QRegularExpression pattern(u"^\\s*(\\d{1,2}):(\\d{2})\\s*$"_s);
    const auto match = pattern.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QTime time(match.captured(1).toInt(), match.captured(2).toInt());
    return time.isValid() ? std::optional(time) : std::nullopt;
}

void ReminderSettings::ReminderSwitchChanged(Kind kind, bool on)
{
    Preferences::write(switchKey(kind), on);
    reschedule(kind);
    Q_EMIT changed();
}

void ReminderSettings::ReminderTimeChanged(Kind kind, const QString &text)
{
    if (const auto time = timeFromText(text)) {
        Preferences::write(timeKey(kind), time->toString(u"HH:mm"_s));
        if (Preferences::boolForKey(switchKey(kind)))
            reschedule(kind);
    }
    Q_EMIT changed(); // the field shows the stored time again, tidied or kept
}

const PreferenceKey &ReminderSettings::switchKey(Kind kind)
{
    return kind == Kind::Morning ? PreferenceKeys::MorningReminder : PreferenceKeys::NightReminder;
}

const PreferenceKey &ReminderSettings::timeKey(Kind kind)
{
    return kind == Kind::Morning ? PreferenceKeys::MorningReminderTime : PreferenceKeys::NightReminderTime;
}

void ReminderSettings::reschedule(Kind kind)
{
    std::optional<QTime> at;
    if (Preferences::boolForKey(switchKey(kind)))
        at = timeFromText(Preferences::stringOrAbsent(timeKey(kind)));
    ReminderSchedule::update(ReminderSchedule::Kind(kind), at);
}
