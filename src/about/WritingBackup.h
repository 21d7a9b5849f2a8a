#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>
#include <optional>
#include <variant>

class ManagedObjectContext;

// The reader's own writing as one UTF-8 JSON file: the notes, the favourite marks, the page texts
// that differ from the shipped book, and the about articles. What the book ships is left out, so
// the file stays small and a restore never brings back an old copy of a shipped page.
namespace WritingBackup {

inline const QString fileName = QStringLiteral("LarkwellsWriting.json");
inline const QString formatName = QStringLiteral("LarkwellsWriting");
inline constexpr int formatVersion = 1;

// A page is known by its calendar day and time of day: the book holds one page for each.
struct PageKey {
    qint16 month = 0;
    qint16 day = 0;
    QString ampm;
    friend bool operator==(const PageKey &, const PageKey &) = default;
};
inline size_t qHash(const PageKey &key, size_t seed = 0)
{
    return qHashMulti(seed, key.month, key.day, key.ampm);
}

struct Note {
    std::optional<QString> subject;
    std::optional<QString> notes;
    std::optional<QDateTime> dt;
    std::optional<QString> dtstring;
    std::optional<QString> ampm;
    qint16 year = 0;
    qint16 month = 0;
    qint16 day = 0;
    // The same note: same subject, date and text.
    bool sameNoteAs(const Note &other) const;
};

struct Page {
    PageKey key;
    QString dt; // shown in the file only, for a reader of it
    QString poemprayer;
};

struct Article {
    std::optional<QString> name;
    std::optional<QString> aboutText;
};

struct Contents {
    QList<Note> notes;
    QList<Page> favorites; // poemprayer left empty: only the mark is kept
    QList<Page> pages;
    QList<Article> articles;
};

// Why a file cannot be restored; the message is for the reader.
struct ParseError {
    QString message;
};

// The shipped book's page texts as the first launch stores them.
QHash<PageKey, QString> shippedPageTexts();
// The shipped about articles' texts by name, as the first visit stores them.
QHash<QString, QString> shippedArticleTexts();

// The writing in the store now; pages compared with `shipped`.
Contents collect(ManagedObjectContext &context, const QHash<PageKey, QString> &shipped);
QByteArray toJson(const Contents &contents);
// The contents of a file, checked throughout: any wrong field rejects the whole file.
std::variant<Contents, ParseError> fromJson(const QByteArray &bytes);

}
