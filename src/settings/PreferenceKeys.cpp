#include "PreferenceKeys.h"

#include "FatalError.h"

using namespace Qt::StringLiterals;
using Type = UserDefaults::Type;

namespace PreferenceKeys {
const PreferenceKey FontName{u"FontName"_s, Type::String, u"Arial"_s};
const PreferenceKey ReaderFontSize{u"ReaderFontSize"_s, Type::Double, 15.0};
const PreferenceKey ListFontName{u"ListFontName"_s, Type::String, u"Arial"_s};
const PreferenceKey ListFontSize{u"ListFontSize"_s, Type::Double, 15.0};
const PreferenceKey textColor{u"textColor"_s, Type::Integer, 0};
const PreferenceKey useWallpaper{u"useWallpaper"_s, Type::Integer, 0};
const PreferenceKey ListWallpaperVisible{u"ListWallpaperVisible"_s, Type::Integer, 0};
const PreferenceKey hasBeenLaunchedBeforeFlag{u"hasBeenLaunchedBeforeFlag"_s, Type::Bool, false};
const PreferenceKey AboutHasBeenLaunchedBeforeFlag{u"AboutHasBeenLaunchedBeforeFlag"_s, Type::Bool, false};
const PreferenceKey SpecialDayshasBeenLaunchedBeforeFlag{u"SpecialDayshasBeenLaunchedBeforeFlag"_s, Type::Bool, false};
const PreferenceKey reviewWorthyActionCount{u"reviewWorthyActionCount"_s, Type::Integer, 0};
const PreferenceKey lastReviewRequestAppVersion{u"lastReviewRequestAppVersion"_s, Type::String, {}};
const PreferenceKey ReadAloudRate{u"ReadAloudRate"_s, Type::Double, 0.0};
const PreferenceKey NightReading{u"NightReading"_s, Type::Bool, false};
const PreferenceKey MorningReminder{u"MorningReminder"_s, Type::Bool, false};
const PreferenceKey MorningReminderTime{u"MorningReminderTime"_s, Type::String, u"07:00"_s};
const PreferenceKey NightReminder{u"NightReminder"_s, Type::Bool, false};
const PreferenceKey NightReminderTime{u"NightReminderTime"_s, Type::String, u"21:00"_s};

PreferenceKey wallpaper(const QString &imageName)
{
    return {imageName, Type::String, u"true"_s};
}

QList<PreferenceKey> all()
{
    return {FontName, ReaderFontSize, ListFontName, ListFontSize, textColor, useWallpaper,
            ListWallpaperVisible, hasBeenLaunchedBeforeFlag, AboutHasBeenLaunchedBeforeFlag,
            SpecialDayshasBeenLaunchedBeforeFlag, reviewWorthyActionCount, lastReviewRequestAppVersion,
            ReadAloudRate, NightReading, MorningReminder, MorningReminderTime, NightReminder,
            NightReminderTime};
}
}

namespace {
QString wrongType(const PreferenceKey &key, const char *expected)
{
    return u"Fatal error: the setting \"%1\" holds a value that is not %2"_s.arg(key.name, QLatin1StringView(expected));
}

// The stored type of `key` when present, after checking it is one of `accepted`.
std::optional<Type> checkedType(const PreferenceKey &key, std::initializer_list<Type> accepted, const char *expected)
{
    const auto type = UserDefaults::standard().typeOf(key.name);
    if (type && std::find(accepted.begin(), accepted.end(), *type) == accepted.end())
        fatalError(wrongType(key, expected));
    return type;
}
}

std::optional<qint64> Preferences::integerIfPresent(const PreferenceKey &key)
{
    if (!checkedType(key, {Type::Integer}, "an integer"))
        return std::nullopt;
    return UserDefaults::standard().integerForKey(key.name);
}

std::optional<double> Preferences::doubleIfPresent(const PreferenceKey &key)
{
    if (!checkedType(key, {Type::Double, Type::Integer}, "a number"))
        return std::nullopt;
    return UserDefaults::standard().doubleForKey(key.name);
}

std::optional<QVariant> Preferences::numberIfPresent(const PreferenceKey &key)
{
    if (!checkedType(key, {Type::Double, Type::Integer}, "a number"))
        return std::nullopt;
    return UserDefaults::standard().object(key.name);
}

std::optional<QString> Preferences::stringIfPresent(const PreferenceKey &key)
{
    if (!checkedType(key, {Type::String}, "a string"))
        return std::nullopt;
    return UserDefaults::standard().stringForKey(key.name);
}

bool Preferences::boolForKey(const PreferenceKey &key)
{
    if (!checkedType(key, {Type::Bool}, "true or false"))
        return key.absent.toBool();
    return UserDefaults::standard().boolForKey(key.name);
}

qint64 Preferences::integerOrAbsent(const PreferenceKey &key)
{
    return integerIfPresent(key).value_or(key.absent.toLongLong());
}

double Preferences::doubleOrAbsent(const PreferenceKey &key)
{
    return doubleIfPresent(key).value_or(key.absent.toDouble());
}

QString Preferences::stringOrAbsent(const PreferenceKey &key)
{
    return stringIfPresent(key).value_or(key.absent.toString());
}

void Preferences::write(const PreferenceKey &key, const QVariant &value)
{
    const auto typeId = value.typeId();
    const bool integral = typeId == QMetaType::Int || typeId == QMetaType::LongLong || typeId == QMetaType::UInt
        || typeId == QMetaType::ULongLong || typeId == QMetaType::Short;
    bool fits = false;
    switch (key.type) {
    case Type::Bool: fits = typeId == QMetaType::Bool; break;
    case Type::Integer: fits = integral; break;
    case Type::Double: fits = integral || typeId == QMetaType::Double; break;
    case Type::String: fits = typeId == QMetaType::QString; break;
    }
    if (!fits)
        fatalError(u"Fatal error: a value of type %1 written to the setting \"%2\""_s.arg(QLatin1StringView(value.typeName()), key.name));
    UserDefaults::standard().set(key.name, value);
    UserDefaults::standard().synchronize();
}

void Preferences::remove(const PreferenceKey &key)
{
    UserDefaults::standard().removeObject(key.name);
}
