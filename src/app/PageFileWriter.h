#pragma once

#include "Entities.h"

#include "PageFile.h"

class ManagedObjectContext;

// The page update file the export writes: the marker line, then one record a page, its seven
// values joined by "^", absent strings as nothing. The page text keeps its own line feeds, so
// a record may span several lines.
namespace PageFile {

QString updateFileText(const QList<PoemPrayer *> &pages);
// The same text for every page of the context, in store order. Without unsaved page changes it
// is written in one pass from the stored columns, with no page objects made.
QString updateFileText(ManagedObjectContext &context);

}
