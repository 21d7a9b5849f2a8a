#pragma once

#include "Entities.h"

#include "PageFile.h"

// The page update file the export writes: the marker line, then one record a page, its seven
// values joined by "^", absent strings as nothing. The page text keeps its own line feeds, so
// a record may span several lines.
namespace PageFile {

QString updateFileText(const QList<PoemPrayer *> &pages);

}
