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
    const std::pair<const PreferenceKey *, QString> flags[] = {
        {&PreferenceKeys::hasBeenLaunchedBeforeFlag, PoemPrayer::entityName},
        {&PreferenceKeys::SpecialDayshasBeenLaunchedBeforeFlag, SpecialDay::entityName},
        {&PreferenceKeys::AboutHasBeenLaunchedBeforeFlag, About::entityName},
    };
    for (const auto &[flag, entity] : flags) {
        if (!UserDefaults::standard().lost(flag->name) || Preferences::boolForKey(*flag)
            || AppDelegate::shared().viewContext().execute(FetchRequest(entity)).isEmpty())
            continue;
        Preferences::write(*flag, true);
        Log::line(u"Preferences: "_s + entity + u" already seeded, kept as it is"_s);
    }
}
