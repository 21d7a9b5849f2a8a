#include "AboutNewViewController.h"

#include "AppDelegate.h"
#include "Entities.h"
#include "Log.h"
#include "Navigator.h"

using namespace Qt::StringLiterals;

void AboutNewViewController::SaveAboutItem(const QString &name, const QString &text)
{
    if (!name.isEmpty()) {
        ManagedObjectContext &context = AppDelegate::shared().viewContext();
        About *article = context.insertNewObject<About>();
        article->setName(name);
        article->setAboutText(text);
        if (const auto error = context.save())
            Log::line(error->unresolvedMessage());
    }
    BackToSpecialDays();
}

void AboutNewViewController::BackToSpecialDays()
{
    Log::line(u"Back button Clicked"_s);
    Navigator::shared().unwind(u"unwindToAboutSegue"_s);
}
