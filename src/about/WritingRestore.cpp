#include "WritingRestore.h"

#include "Entities.h"
#include "ManagedObjectContext.h"
#include "PreferenceKeys.h"

using namespace Qt::StringLiterals;
using namespace WritingBackup;

namespace {

QString counted(qsizetype count, const QString &one, const QString &many)
{
    return u"%1 %2"_s.arg(count).arg(count == 1 ? one : many);
}

// "1 note, 2 pages": the kinds with a count, in a fixed order.
QString countsOf(const QList<std::pair<qsizetype, std::pair<QString, QString>>> &kinds)
{
    QStringList parts;
    for (const auto &[count, names] : kinds) {
        if (count > 0)
            parts.append(counted(count, names.first, names.second));
    }
    return parts.join(u", "_s);
}

QHash<PageKey, PoemPrayer *> pagesByKey(ManagedObjectContext &context)
{
    QHash<PageKey, PoemPrayer *> pages;
    for (PoemPrayer *page : context.fetch<PoemPrayer>(PoemPrayer::fetchRequest())) {
        const PageKey key{page->month(), page->day(), page->ampm().value_or(QString())};
        if (!pages.contains(key))
            pages.insert(key, page);
    }
    return pages;
}

QHash<QString, About *> articlesByName(ManagedObjectContext &context)
{
    QHash<QString, About *> articles;
    for (About *article : context.fetch<About>(About::fetchRequest())) {
        if (article->name() && !articles.contains(*article->name()))
            articles.insert(*article->name(), article);
    }
    return articles;
}

void addNote(ManagedObjectContext &context, const Note &note)
{
    Notes *stored = context.insertNewObject<Notes>();
    stored->setSubject(note.subject);
    stored->setNotes(note.notes);
    stored->setDt(note.dt);
    stored->setDtstring(note.dtstring);
    stored->setAmpm(note.ampm);
    stored->setYear(note.year);
    stored->setMonth(note.month);
    stored->setDay(note.day);
}

}

WritingRestore WritingRestore::plan(const Contents &backup, ManagedObjectContext &context, const Shipped &shipped)
{
    WritingRestore restore;
    QList<Note> present;
    for (const Notes *stored : context.fetch<Notes>(Notes::fetchRequest()))
        present.append({stored->subject(), stored->notes(), stored->dt()});
    for (const Note &note : backup.notes) {
        const auto same = [&note](const Note &other) { return note.sameNoteAs(other); };
        if (std::any_of(present.cbegin(), present.cend(), same)) {
            ++restore.notesAlreadyHere;
        } else if (std::none_of(restore.notesToAdd.cbegin(), restore.notesToAdd.cend(), same)) {
            restore.notesToAdd.append(note);
        }
    }

    const QHash<PageKey, PoemPrayer *> pages = pagesByKey(context);
    for (const Page &favorite : backup.favorites) {
        PoemPrayer *page = pages.value(favorite.key);
        if (page && page->favorite() != u"T"_s && !restore.favoritesToSet.contains(page))
            restore.favoritesToSet.append(page);
    }
    for (const Page &backedUp : backup.pages) {
        PoemPrayer *page = pages.value(backedUp.key);
        const QString here = page ? page->poemprayer().value_or(QString()) : QString();
        if (!page || here == backedUp.poemprayer)
            continue;
        const auto shippedText = shipped.pages.constFind(backedUp.key);
        if (shippedText != shipped.pages.cend() && *shippedText == here)
            restore.pagesToReplace.append({page, backedUp.poemprayer});
        else
            ++restore.pagesChangedHere;
    }

    // Articles are matched by name; one without a name has nothing to be matched by.
    const QHash<QString, About *> articles = articlesByName(context);
    for (const Article &article : backup.articles) {
        if (!article.name)
            continue;
        About *stored = articles.value(*article.name);
        if (!stored) {
            restore.articlesToAdd.append(article);
            continue;
        }
        const std::optional<QString> here = stored->aboutText();
        if (here == article.aboutText)
            continue;
        if (!here || here == shipped.articles.value(*article.name))
            restore.articlesToReplace.append({stored, article.aboutText.value_or(QString())});
        else
            ++restore.articlesChangedHere;
    }
    return restore;
}

bool WritingRestore::changesNothing() const
{
    return notesToAdd.isEmpty() && favoritesToSet.isEmpty() && pagesToReplace.isEmpty() && articlesToAdd.isEmpty()
        && articlesToReplace.isEmpty();
}

QString WritingRestore::summary() const
{
    QStringList paragraphs;
    if (changesNothing()) {
        paragraphs.append(u"Everything in this backup is already here."_s);
    } else {
        paragraphs.append(countsOf({{notesToAdd.size(), {u"note"_s, u"notes"_s}},
                                    {favoritesToSet.size(), {u"favourite"_s, u"favourites"_s}},
                                    {pagesToReplace.size(), {u"page"_s, u"pages"_s}},
                                    {articlesToAdd.size() + articlesToReplace.size(), {u"article"_s, u"articles"_s}}})
                          + u" will be restored"_s);
    }
    if (notesAlreadyHere > 0)
        paragraphs.append(u"Already here: %1."_s.arg(counted(notesAlreadyHere, u"note"_s, u"notes"_s)));
    const QString kept = countsOf({{pagesChangedHere, {u"page"_s, u"pages"_s}},
                                   {articlesChangedHere, {u"article"_s, u"articles"_s}}});
    if (!kept.isEmpty())
        paragraphs.append(u"Changed here, so kept as they are: %1."_s.arg(kept));
    return paragraphs.join(u"\n\n"_s);
}

std::optional<QString> WritingRestore::apply(ManagedObjectContext &context) const
{
    for (const Note &note : notesToAdd)
        addNote(context, note);
    for (PoemPrayer *page : favoritesToSet)
        page->setFavorite(u"T"_s);
    for (const auto &[page, text] : pagesToReplace)
        page->setPoemprayer(text);
    for (const Article &article : articlesToAdd) {
        About *stored = context.insertNewObject<About>();
        stored->setName(article.name);
        stored->setAboutText(article.aboutText);
    }
    for (const auto &[article, text] : articlesToReplace)
        article->setAboutText(text);
    // Restored articles stand in for the shipped ones: a first visit of the list must not
    // empty the table they are in.
    if (!articlesToAdd.isEmpty() || !articlesToReplace.isEmpty())
        Preferences::write(PreferenceKeys::AboutHasBeenLaunchedBeforeFlag, true);
    if (const auto error = context.save())
        return error->unresolvedMessage();
    return std::nullopt;
}
