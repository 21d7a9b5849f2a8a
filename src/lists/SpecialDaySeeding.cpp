#include "SpecialDaySeeding.h"

#include "AppDelegate.h"
#include "Bundle.h"
#include "Entities.h"
#include "FatalError.h"
#include "Log.h"
#include "StoreSnapshots.h"
#include "TableClearing.h"

using namespace Qt::StringLiterals;

void SpecialDaySeeding::seed()
{
    // Read before anything is deleted: without a file the table keeps what it has.
    const auto text = SpecialDayFile::read(Bundle::main().pathForResource(u"SpecialDays"_s, u"txt"_s));
    if (const auto *error = std::get_if<SpecialDayFile::ReadError>(&text)) {
        Log::line(u"Error reading file: "_s + error->description);
        return;
    }
    const auto parsed = SpecialDayFile::records(std::get<QString>(text));
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    if (!clearSpecialDays(context))
        return;
    if (const auto *error = std::get_if<SpecialDayFile::ParseError>(&parsed)) {
        for (const SpecialDayFile::Record &record : error->recordsBefore)
            insert(record, context);
        fatalError(u"Fatal error: "_s + error->message);
    }
    for (const SpecialDayFile::Record &record : std::get<QList<SpecialDayFile::Record>>(parsed))
        insert(record, context);
}

bool SpecialDaySeeding::clearSpecialDays(ManagedObjectContext &context)
{
    StoreSnapshots::take(u"special-days-first-visit"_s);
    return TableClearing::deleteEachSaving<SpecialDay>(context);
}

void SpecialDaySeeding::insert(const SpecialDayFile::Record &record, ManagedObjectContext &context)
{
    const QString ampm = record.fields.value(0);
    const QString dayname = record.fields.value(1);
    FetchRequest request = SpecialDay::fetchRequest();
    // A field the record lacks is absent, which matches nothing: such a record is never a duplicate.
    request.predicate = Predicate::conjunction({
        Predicate::equals(u"dayname"_s, record.fields.size() > 1 ? QVariant(dayname) : QVariant()),
        Predicate::equals(u"ampm"_s, ampm)});
    if (!context.fetch<SpecialDay>(request).isEmpty())
        return;
    SpecialDay *day = context.insertNewObject<SpecialDay>();
    for (qsizetype i = 0; i < record.fields.size(); ++i)
        day->setValueForKey(SpecialDayFile::columns[i], record.fields[i]);
    if (const auto error = context.save())
        Log::line(error->unresolvedMessage());
}
