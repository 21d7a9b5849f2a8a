#include "ReviewPrompt.h"

#include "PreferenceKeys.h"
#include "ReviewRequest.h"

void ReviewPrompt::run(const std::optional<QString> &currentVersion)
{
    const QString &countKey = PreferenceKeys::reviewWorthyActionCount.name;
    const QString &versionKey = PreferenceKeys::lastReviewRequestAppVersion.name;
    UserDefaults &defaults = UserDefaults::standard();
    // Missing or odd values read as 0 or absent: the prompt never stops the app.
    const qint64 count = defaults.integerForKey(countKey) + 1;
    // Counted on the reader's way to its first frame: the disk is not waited for.
    defaults.setValuesInBackground({{countKey, count}});
    if (count < 3)
        return;
    const std::optional<QString> last = defaults.stringForKey(versionKey);
    if (currentVersion && last && *currentVersion == *last)
        return;
    // The platform decides whether to show it; without a window scene nothing is asked.
    ReviewRequest::requestInFirstWindowScene();
    QList<std::pair<QString, QVariant>> values{{countKey, 0}};
    if (currentVersion)
        values.append({versionKey, *currentVersion});
    else
        defaults.removeObject(versionKey);
    defaults.setValues(values);
}
