#include "ReviewPrompt.h"

#include "ReviewRequest.h"
#include "UserDefaults.h"

using namespace Qt::StringLiterals;

void ReviewPrompt::run(const std::optional<QString> &currentVersion)
{
    UserDefaults &defaults = UserDefaults::standard();
    const qint64 count = defaults.integerForKey(u"reviewWorthyActionCount"_s) + 1;
    defaults.set(u"reviewWorthyActionCount"_s, count);
    if (count < 3)
        return;
    const std::optional<QString> last = defaults.stringForKey(u"lastReviewRequestAppVersion"_s);
    if (currentVersion && last && *currentVersion == *last)
        return;
    // The platform decides whether to show it; without a window scene nothing is asked.
    ReviewRequest::requestInFirstWindowScene();
    QList<std::pair<QString, QVariant>> values{{u"reviewWorthyActionCount"_s, 0}};
    if (currentVersion)
        values.append({u"lastReviewRequestAppVersion"_s, *currentVersion});
    else
        defaults.removeObject(u"lastReviewRequestAppVersion"_s);
    defaults.setValues(values);
}
