#include "SeedingFlags.h"

#include "AppDelegate.h"
#include "Entities.h"
#include "Log.h"
#include "ManagedObjectContext.h"
#include "PreferenceKeys.h"
#include "UserDefaults.h"

using namespace Qt::StringLiterals;

void SeedingFlags::restoreAfterLostPreferences()
{
    if (!UserDefaults::standard().startedAfresh())
        return;
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    const std::pair<const PreferenceKey *, QString> flags[] = {
        {&PreferenceKeys::hasBeenLaunchedBeforeFlag, PoemPrayer::entityName},
        {&PreferenceKeys::SpecialDayshasBeenLaunchedBeforeFlag, SpecialDay::entityName},
        {&PreferenceKeys::AboutHasBeenLaunchedBeforeFlag, About::entityName},
    };
    for (const auto &[flag, entity] : flags) {
        if (Preferences::boolForKey(*flag) || context.execute(FetchRequest(entity)).isEmpty())
            continue;
        Preferences::write(*flag, true);
        Log::line(u"Preferences: "_s + entity + u" already seeded, kept as it is"_s);
    }
}
