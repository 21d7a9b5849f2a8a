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
    const QStringList lines = PageFile::lines(*FileObject);
    if (lines.isEmpty())
        return;
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    countStoredPages(context);
    for (const QString &line : lines)
        loadLine(line, columns);
    // One transaction for the whole book: a save a page would flush the log 732 times.
    save(context);
}

bool PageSeeding::adoptSeededBook(const QString &seededStore)
{
    return Bundle::main().isBuiltIn() && PersistentContainer(AppDelegate::modelName).adoptStore(seededStore);
}

std::optional<PageSeeding::Key> PageSeeding::keyOf(const QVariant &month, const QVariant &day, const QVariant &ampm)
{
    // An absent value, or text that is no number, equals nothing.
    if (!month.isValid() || !day.isValid() || !ampm.isValid())
        return std::nullopt;
    const EntityDescription &entity = EntityDescription::named(PoemPrayer::entityName);
    const QVariant m = comparableValue(entity, u"month"_s, month), d = comparableValue(entity, u"day"_s, day);
    if (!m.isValid() || !d.isValid())
        return std::nullopt;
    return Key{m.toLongLong(), d.toLongLong(), ampm.toString()};
}

// The duplicate check counts the pages the context already holds once, then those it adds.
void PageSeeding::countStoredPages(ManagedObjectContext &context)
{
    m_pagesByKey.clear();
    std::optional<StoreError> error;
    const QList<PoemPrayer *> pages = context.fetch<PoemPrayer>(PoemPrayer::fetchRequest(), &error);
    for (const PoemPrayer *page : pages) {
        if (const auto key = keyOf(page->valueForKey(u"month"_s), page->valueForKey(u"day"_s), page->valueForKey(u"ampm"_s)))
            ++m_pagesByKey[*key];
    }
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
    const auto key = keyOf(themonth, theday, theampm);
    resultCount = key ? m_pagesByKey.value(*key) : 0;
    if (resultCount != 0)
        return;

    const auto parsed = PageFile::assignments(pieces, columns);
    if (const auto *parseError = std::get_if<PageFile::ParseError>(&parsed)) {
        save(context); // the pages before this line stay
        fatalError(u"Fatal error: malformed page line “%1”: %2"_s.arg(line.left(60), parseError->message));
    }
    PoemPrayer *page = context.insertNewObject<PoemPrayer>();
    for (const PageFile::Assignment &assignment : std::get<QList<PageFile::Assignment>>(parsed))
        page->setValueForKey(assignment.column, assignment.value);
    if (const auto stored = keyOf(page->valueForKey(u"month"_s), page->valueForKey(u"day"_s), page->valueForKey(u"ampm"_s)))
        ++m_pagesByKey[*stored];
}

void PageSeeding::save(ManagedObjectContext &context)
{
    if (const auto saveError = context.save())
        Log::line(saveError->unresolvedMessage());
}
