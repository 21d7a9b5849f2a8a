#include "PageSeeding.h"

#include "AppDelegate.h"
#include "Bundle.h"
#include "FatalError.h"
#include "Log.h"
#include "PageFile.h"
#include "StoreSnapshots.h"
#include "TableClearing.h"

using namespace Qt::StringLiterals;

void PageSeeding::clearPoemPrayers()
{
    StoreSnapshots::take(u"first-launch"_s);
    const auto container = loadedContainer();
    // The main store opens now rather than at the first page: were this container the last
    // connection when it closes, SQLite would checkpoint and delete the write-ahead log (with
    // its disk flushes) only for the loading to create it again.
    AppDelegate::shared().persistentContainer();
    TableClearing::deleteEachSaving<PoemPrayer>(container->viewContext());
}

void PageSeeding::loadPoemPrayers(const QStringList &columns)
{
    const auto container = loadedContainer(); // the store must open, as on every seeding
    const QString path = Bundle::main().pathForResource(Path, u"txt"_s);
    const auto read = PageFile::read(path, u"Book.txt"_s);
    if (const auto *error = std::get_if<PageFile::ReadError>(&read)) {
        Log::line(u"Error reading file: "_s + error->description);
        FileObject.reset();
        return;
    }
    FileObject = std::get<QString>(read);
    for (const QString &line : PageFile::lines(*FileObject))
        loadLine(line, columns);
}

void PageSeeding::loadLine(const QString &line, const QStringList &columns)
{
    const QStringList pieces = PageFile::pieces(line);
    thedt = pieces.value(0);
    theampm = pieces.value(1);
    themonth = pieces.value(2);
    theday = pieces.value(3);

    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    // The duplicate check sees the fields as written, before double quotes are removed.
    FetchRequest request = PoemPrayer::fetchRequest();
    request.predicate = Predicate::conjunction({Predicate::equals(u"month"_s, themonth),
                                                Predicate::equals(u"day"_s, theday),
                                                Predicate::equals(u"ampm"_s, theampm)});
    std::optional<StoreError> error;
    const QList<PoemPrayer *> found = context.fetch<PoemPrayer>(request, &error);
    if (!error) {
        PoemList = found;
        resultCount = int(found.size());
    }
    if (resultCount != 0)
        return;

    PoemPrayer *page = context.insertNewObject<PoemPrayer>();
    const auto parsed = PageFile::assignments(pieces, columns);
    if (const auto *parseError = std::get_if<PageFile::ParseError>(&parsed))
        fatalError(u"Fatal error: malformed page line “%1”: %2"_s.arg(line.left(60), parseError->message));
    for (const PageFile::Assignment &assignment : std::get<QList<PageFile::Assignment>>(parsed))
        page->setValueForKey(assignment.column, assignment.value);
    if (const auto saveError = context.save())
        Log::line(saveError->unresolvedMessage());
}
