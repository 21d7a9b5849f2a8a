#include "AboutSeeding.h"

#include "AboutFile.h"
#include "AppDelegate.h"
#include "Bundle.h"
#include "Entities.h"
#include "FatalError.h"
#include "Log.h"
#include "StoreSnapshots.h"
#include "TableClearing.h"

using namespace Qt::StringLiterals;

void AboutSeeding::clearAbouts()
{
    StoreSnapshots::take(u"about-first-visit"_s);
    TableClearing::deleteEachSaving<About>(AppDelegate::shared().viewContext());
}

void AboutSeeding::loadAbouts()
{
    const QString path = Bundle::main().pathForResource(u"About"_s, u"txt"_s);
    if (path.isEmpty())
        fatalError(u"Fatal error: the about file About.txt is missing from the application"_s);
    const auto read = AboutFile::read(path);
    if (const auto *error = std::get_if<AboutFile::ReadError>(&read)) {
        Log::line(error->description);
        fatalError(u"Fatal error: the about file could not be read: "_s + error->description);
    }
    FileObject = std::get<QString>(read);
    for (const QString &line : AboutFile::lines(*FileObject))
        loadLine(line);
}

void AboutSeeding::loadLine(const QString &line)
{
    theName = line.section(u'^', 0, 0);
    theAboutText.reset();

    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    // The name is the key: a name already stored keeps its first article, and a later line with
    // that name is passed over before its fields are counted. An empty name is looked up as the
    // empty name.
    FetchRequest request = About::fetchRequest();
    request.predicate = Predicate::equals(u"name"_s, *theName);
    std::optional<StoreError> error;
    const QList<About *> found = context.fetch<About>(request, &error);
    if (!error)
        ResultCount = int(found.size());
    if (ResultCount != 0)
        return;

    const auto parsed = AboutFile::article(line);
    if (const auto *parseError = std::get_if<AboutFile::ParseError>(&parsed))
        fatalError(u"Fatal error: malformed about line: "_s + parseError->message);
    theAboutText = std::get<AboutFile::Article>(parsed).text;

    // An empty field is not stored: the attribute stays absent.
    About *about = context.insertNewObject<About>();
    if (!theName->isEmpty())
        about->setName(theName);
    if (theAboutText && !theAboutText->isEmpty())
        about->setAboutText(theAboutText);
    static_cast<void>(context.save()); // a failed save is passed over; the next line goes on
}
