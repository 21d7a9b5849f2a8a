#include "WritingBackup.h"

#include "AboutFile.h"
#include "Bundle.h"
#include "Entities.h"
#include "ManagedObjectContext.h"
#include "PageFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace WritingBackup {

namespace {

// Writing ---------------------------------------------------------------------------------------

void insertIfPresent(QJsonObject &object, const QString &key, const std::optional<QString> &value)
{
    if (value)
        object.insert(key, *value);
}

QJsonObject pageObject(const Page &page, bool withText)
{
    QJsonObject object{{u"month"_s, page.key.month}, {u"day"_s, page.key.day},
                       {u"ampm"_s, page.key.ampm}, {u"dt"_s, page.dt}};
    if (withText)
        object.insert(u"poemprayer"_s, page.poemprayer);
    return object;
}

QJsonObject noteObject(const Note &note)
{
    QJsonObject object{{u"year"_s, note.year}, {u"month"_s, note.month}, {u"day"_s, note.day}};
    insertIfPresent(object, u"subject"_s, note.subject);
    insertIfPresent(object, u"notes"_s, note.notes);
    if (note.dt)
        object.insert(u"dt"_s, note.dt->toUTC().toString(Qt::ISODate));
    insertIfPresent(object, u"dtstring"_s, note.dtstring);
    insertIfPresent(object, u"ampm"_s, note.ampm);
    return object;
}

QJsonObject articleObject(const Article &article)
{
    QJsonObject object;
    insertIfPresent(object, u"name"_s, article.name);
    insertIfPresent(object, u"aboutText"_s, article.aboutText);
    return object;
}

Page pageOf(const PoemPrayer &stored)
{
    return {{stored.month(), stored.day(), stored.ampm().value_or(QString())}, stored.dt().value_or(QString()),
            stored.poemprayer().value_or(QString())};
}

// Reading ---------------------------------------------------------------------------------------

// Each entry is read field by field; the first wrong field names the entry and stops the reading.
class EntryReader
{
public:
    EntryReader(const QJsonValue &value, QString where, std::optional<QString> &error)
        : m_object(value.toObject()), m_where(std::move(where)), m_error(error)
    {
        if (!value.isObject())
            fail(u"is not an object"_s);
    }

    std::optional<QString> optionalString(const QString &key)
    {
        const QJsonValue value = m_object.value(key);
        if (value.isUndefined() || value.isNull())
            return std::nullopt;
        if (!value.isString())
            fail(u"has a %1 that is not text"_s.arg(key));
        return value.toString();
    }
    QString string(const QString &key)
    {
        if (!m_object.contains(key))
            fail(u"has no %1"_s.arg(key));
        return optionalString(key).value_or(QString());
    }
    qint16 number(const QString &key, int lowest, int highest)
    {
        const QJsonValue value = m_object.value(key);
        const double number = value.toDouble(-1e9);
        if (value.isUndefined() && lowest <= 0)
            return 0; // an unset number reads as 0
        if (!value.isDouble() || number != int(number) || number < lowest || number > highest)
            fail(u"has a %1 that is not a number from %2 to %3"_s.arg(key).arg(lowest).arg(highest));
        return qint16(number);
    }
    std::optional<QDateTime> date(const QString &key)
    {
        const std::optional<QString> text = optionalString(key);
        if (!text)
            return std::nullopt;
        QDateTime date = QDateTime::fromString(*text, Qt::ISODate);
        if (!date.isValid())
            fail(u"has a %1 that is not a date"_s.arg(key));
        return date;
    }
    PageKey pageKey()
    {
        PageKey key{number(u"month"_s, 1, 12), number(u"day"_s, 1, 31), string(u"ampm"_s)};
        if (key.ampm != u"AM"_s && key.ampm != u"PM"_s)
            fail(u"has an ampm that is neither AM nor PM"_s);
        return key;
    }

private:
    void fail(const QString &what)
    {
        if (!m_error)
            m_error = m_where + u' ' + what;
    }
    QJsonObject m_object;
    QString m_where;
    std::optional<QString> &m_error;
};

Note readNote(EntryReader &entry)
{
    Note note;
    note.subject = entry.optionalString(u"subject"_s);
    note.notes = entry.optionalString(u"notes"_s);
    note.dt = entry.date(u"dt"_s);
    note.dtstring = entry.optionalString(u"dtstring"_s);
    note.ampm = entry.optionalString(u"ampm"_s);
    note.year = entry.number(u"year"_s, -32768, 32767);
    note.month = entry.number(u"month"_s, -32768, 32767);
    note.day = entry.number(u"day"_s, -32768, 32767);
    return note;
}

Page readFavorite(EntryReader &entry)
{
    Page page;
    page.key = entry.pageKey();
    page.dt = entry.optionalString(u"dt"_s).value_or(QString());
    return page;
}

Page readPage(EntryReader &entry)
{
    Page page = readFavorite(entry);
    page.poemprayer = entry.string(u"poemprayer"_s);
    return page;
}

Article readArticle(EntryReader &entry)
{
    return {entry.optionalString(u"name"_s), entry.optionalString(u"aboutText"_s)};
}

template<typename T, typename Read>
QList<T> readList(const QJsonObject &root, const QString &key, const QString &entryName, Read read,
                  std::optional<QString> &error)
{
    QList<T> result;
    const QJsonValue value = root.value(key);
    if (!value.isArray()) {
        if (!error)
            error = u"the %1 are missing"_s.arg(key);
        return result;
    }
    const QJsonArray array = value.toArray();
    for (qsizetype i = 0; i < array.size() && !error; ++i) {
        EntryReader entry(array.at(i), u"%1 %2"_s.arg(entryName).arg(i + 1), error);
        result.append(read(entry));
    }
    return result;
}

}

bool Note::sameNoteAs(const Note &other) const
{
    const auto seconds = [](const std::optional<QDateTime> &date) {
        return date ? std::optional(date->toSecsSinceEpoch()) : std::nullopt;
    };
    return subject == other.subject && notes == other.notes && seconds(dt) == seconds(other.dt);
}

QHash<PageKey, QString> shippedPageTexts()
{
    QHash<PageKey, QString> texts;
    const auto read = PageFile::read(Bundle::main().pathForResource(QString(), u"txt"_s), u"Book.txt"_s);
    if (!std::holds_alternative<QString>(read))
        return texts;
    for (const QString &line : PageFile::lines(std::get<QString>(read))) {
        const auto parsed = PageFile::assignments(PageFile::pieces(line), PageFile::columns);
        if (!std::holds_alternative<QList<PageFile::Assignment>>(parsed))
            continue;
        QVariantMap values;
        for (const PageFile::Assignment &assignment : std::get<QList<PageFile::Assignment>>(parsed))
            values.insert(assignment.column, assignment.value);
        const PageKey key{qint16(values.value(u"month"_s).toInt()), qint16(values.value(u"day"_s).toInt()),
                          values.value(u"ampm"_s).toString()};
        // As on the first launch, the first line of a day and time of day wins.
        if (!texts.contains(key))
            texts.insert(key, values.value(u"poemprayer"_s).toString());
    }
    return texts;
}

QHash<QString, QString> shippedArticleTexts()
{
    QHash<QString, QString> texts;
    const auto read = AboutFile::read(Bundle::main().pathForResource(u"About"_s, u"txt"_s));
    if (!std::holds_alternative<QString>(read))
        return texts;
    const auto articles = AboutFile::articles(std::get<QString>(read));
    if (!std::holds_alternative<QList<AboutFile::Article>>(articles))
        return texts;
    for (const AboutFile::Article &article : std::get<QList<AboutFile::Article>>(articles)) {
        if (!texts.contains(article.name))
            texts.insert(article.name, article.text.value_or(QString()));
    }
    return texts;
}

Contents collect(ManagedObjectContext &context, const QHash<PageKey, QString> &shipped)
{
    Contents contents;
    for (const Notes *stored : context.fetch<Notes>(Notes::fetchRequest())) {
        contents.notes.append({stored->subject(), stored->notes(), stored->dt(), stored->dtstring(), stored->ampm(),
                               stored->year(), stored->month(), stored->day()});
    }
    FetchRequest pages = PoemPrayer::fetchRequest();
    pages.sortDescriptors = {{u"month"_s}, {u"day"_s}, {u"ampm"_s}};
    for (const PoemPrayer *stored : context.fetch<PoemPrayer>(pages)) {
        const Page page = pageOf(*stored);
        if (stored->favorite() == u"T"_s)
            contents.favorites.append(page);
        const auto shippedText = shipped.constFind(page.key);
        if (stored->poemprayer() && (shippedText == shipped.cend() || *shippedText != page.poemprayer))
            contents.pages.append(page);
    }
    FetchRequest articles = About::fetchRequest();
    articles.sortDescriptors = {{u"name"_s}};
    for (const About *stored : context.fetch<About>(articles))
        contents.articles.append({stored->name(), stored->aboutText()});
    return contents;
}

QByteArray toJson(const Contents &contents)
{
    QJsonArray notes, favorites, pages, articles;
    for (const Note &note : contents.notes)
        notes.append(noteObject(note));
    for (const Page &page : contents.favorites)
        favorites.append(pageObject(page, false));
    for (const Page &page : contents.pages)
        pages.append(pageObject(page, true));
    for (const Article &article : contents.articles)
        articles.append(articleObject(article));
    const QJsonObject root{{u"format"_s, formatName}, {u"version"_s, formatVersion}, {u"notes"_s, notes},
                           {u"favorites"_s, favorites}, {u"pages"_s, pages}, {u"articles"_s, articles}};
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

std::variant<Contents, ParseError> fromJson(const QByteArray &bytes)
{
    QJsonParseError jsonError;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &jsonError);
    const QJsonObject root = document.object();
    // A backup cut short still names its format near the top: it is damaged, not foreign.
    if (jsonError.error != QJsonParseError::NoError && bytes.contains(formatName.toUtf8()))
        return ParseError{u"This backup is damaged: %1 at byte %2. Nothing was restored."_s.arg(
            jsonError.errorString()).arg(jsonError.offset)};
    if (!document.isObject() || root.value(u"format"_s) != formatName)
        return ParseError{u"This file is not a backup of your writing. Nothing was restored."_s};
    const QJsonValue version = root.value(u"version"_s);
    if (version.toInt() > formatVersion)
        return ParseError{u"This backup was made by a newer version of The Larkwells Book. Nothing was restored."_s};

    std::optional<QString> error;
    if (version.toInt() != formatVersion || version.toDouble() != formatVersion)
        error = u"its version is not a number this app knows"_s;
    Contents contents;
    contents.notes = readList<Note>(root, u"notes"_s, u"note"_s, readNote, error);
    contents.favorites = readList<Page>(root, u"favorites"_s, u"favourite"_s, readFavorite, error);
    contents.pages = readList<Page>(root, u"pages"_s, u"page"_s, readPage, error);
    contents.articles = readList<Article>(root, u"articles"_s, u"article"_s, readArticle, error);
    if (error)
        return ParseError{u"This backup is damaged: %1. Nothing was restored."_s.arg(*error)};
    return contents;
}

}
