#pragma once

// The flags that say the pages, the special days and the about articles were seeded live in the
// preferences file. When a flag was lost (the file could not be read and every setting starts
// afresh, or the flag's entry was malformed), it is set again for each table that still holds
// rows, so the table is not emptied and seeded anew: the reader keeps their favourites, edited
// pages and articles. The store is opened only then.
namespace SeedingFlags {
void restoreAfterLostPreferences();
}
