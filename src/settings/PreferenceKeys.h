#pragma once

#include "UserDefaults.h"

#include <QString>
#include <QVariant>
#include <optional>

// One preference the app keeps: its key, the type it is stored as, and what a screen assumes
// when it was never written (invalid: nothing is assumed).
struct PreferenceKey {
    QString name;
    UserDefaults::Type type;
    QVariant absent;
};

// Every preference key in one place. Readers and writers go through these, never through a
// bare key string.
namespace PreferenceKeys {
extern const PreferenceKey FontName;
extern const PreferenceKey ReaderFontSize;
extern const PreferenceKey ListFontName;
extern const PreferenceKey ListFontSize;
extern const PreferenceKey textColor;
extern const PreferenceKey useWallpaper;
extern const PreferenceKey ListWallpaperVisible;
extern const PreferenceKey hasBeenLaunchedBeforeFlag;
extern const PreferenceKey AboutHasBeenLaunchedBeforeFlag;
extern const PreferenceKey SpecialDayshasBeenLaunchedBeforeFlag;
extern const PreferenceKey reviewWorthyActionCount;
extern const PreferenceKey lastReviewRequestAppVersion;
// The Read Aloud voice's rate, -1 (slowest) to 1 (fastest).
extern const PreferenceKey ReadAloudRate;
// Night pages (and every reader in a dark desktop) in light text on a dark surface.
extern const PreferenceKey NightReading;
// The reminders: whether each is on, and its time as "HH:mm".
extern const PreferenceKey MorningReminder;
extern const PreferenceKey MorningReminderTime;
extern const PreferenceKey NightReminder;
extern const PreferenceKey NightReminderTime;

// The key of a wallpaper image name ("Page1", "AM-36", ...): "true" when it may be drawn.
PreferenceKey wallpaper(const QString &imageName);
// Every fixed key, in the order above.
QList<PreferenceKey> all();
}

// Typed reads and writes through the key table. A present value of the wrong type is a fatal
// stop; an absent one reads as none. Integers count as reals (sizes are first stored whole).
namespace Preferences {
std::optional<qint64> integerIfPresent(const PreferenceKey &key);
std::optional<double> doubleIfPresent(const PreferenceKey &key);
std::optional<QString> stringIfPresent(const PreferenceKey &key);
// A number as stored: a qint64 when written whole, else a double.
std::optional<QVariant> numberIfPresent(const PreferenceKey &key);
bool boolForKey(const PreferenceKey &key);
// The stored value, or the key's absent value.
qint64 integerOrAbsent(const PreferenceKey &key);
double doubleOrAbsent(const PreferenceKey &key);
QString stringOrAbsent(const PreferenceKey &key);

// Stores `value` (of the key's type; an integer is accepted for a real) and synchronises.
void write(const PreferenceKey &key, const QVariant &value);
void remove(const PreferenceKey &key);
}
