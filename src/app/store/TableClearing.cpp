#include "TableClearing.h"

#include "Log.h"

bool TableClearing::logSaveError(const std::optional<StoreError> &error)
{
    if (error)
        Log::line(error->unresolvedMessage());
    return !error;
}
