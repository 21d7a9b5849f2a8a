#include "Entities.h"

#include "FatalError.h"

using namespace Qt::StringLiterals;

std::unique_ptr<ManagedObject> makeManagedObject(const QString &entityName, ManagedObjectContext *context)
{
    if (entityName == PoemPrayer::entityName)
        return std::make_unique<PoemPrayer>(context);
    if (entityName == Notes::entityName)
        return std::make_unique<Notes>(context);
    if (entityName == SpecialDay::entityName)
        return std::make_unique<SpecialDay>(context);
    if (entityName == About::entityName)
        return std::make_unique<About>(context);
    fatalError(u"Fatal error: the model has no entity named \"%1\""_s.arg(entityName));
}
