#pragma once

#include "SpecialDayFile.h"

class ManagedObjectContext;

// Fills the special-day table from the bundle's special-day file on the list's first visit:
// every special day deleted, then the file's days inserted in file order, one fetch and one save
// a day, the first of two days with the same name and time of day kept.
class SpecialDaySeeding
{
public:
    // A missing or unreadable file is logged and changes nothing. A line with more than three
    // fields is a fatal stop once the days ahead of it are stored.
    static void seed();

private:
    // Deletes every special day, saving after each deletion; false when they cannot be fetched.
    static bool clearSpecialDays(ManagedObjectContext &context);
    static void insert(const SpecialDayFile::Record &record, ManagedObjectContext &context);
};
