#pragma once

#include "Entities.h"
#include "SpecialDayFile.h"

// The special-day file as the export writes it: the marker line, then "ampm^dayname^poem" a
// day, absent values as nothing, the poem's line breaks as "@#@". Seeding from this text gives
// the same days back.
namespace SpecialDayFile {

QString write(const QList<SpecialDay *> &days);

}
