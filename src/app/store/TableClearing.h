#pragma once

#include "ManagedObjectContext.h"

// How every table is emptied before it is filled again (the first launch, the first visits,
// the about import; each takes a copy of the store first): each object deleted with a save of
// its own, a failed save logged and the next deletion going on. False when the objects could
// not be fetched, in which case nothing was deleted.
namespace TableClearing {
bool logSaveError(const std::optional<StoreError> &error);

template<typename T>
bool deleteEachSaving(ManagedObjectContext &context)
{
    std::optional<StoreError> error;
    const QList<T *> objects = context.template fetch<T>(T::fetchRequest(), &error);
    if (error)
        return false;
    for (T *object : objects) {
        context.deleteObject(object);
        logSaveError(context.save());
    }
    return true;
}
}
