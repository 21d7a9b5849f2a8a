#pragma once

#include "Entities.h"

#include <QHash>
#include <QStringList>

// Fills the page table from the bundle's page file on the first launch: clearing every page,
// then loading the file line by line, one duplicate check a line and one save for them all.
class PageSeeding
{
public:
    // Deletes every page, saving after each deletion.
    void clearPoemPrayers();
    // Loads the page file into the main context; the first line of a month, day and time of
    // day wins. A malformed line is a fatal stop (the lines before it are saved); a missing or
    // unreadable file is logged.
    void loadPoemPrayers(const QStringList &columns);
    // On a fresh install with the built-in bundle: puts in place the store that the build filled
    // from that same page file, so the pages are there without reading and inserting each one.
    // False when that does not apply (a store exists, another bundle, no such store); clearing
    // and loading are then needed.
    bool adoptSeededBook(const QString &seededStore = seededBook);

    // Where the application carries the book seeded at build time.
    static inline const QString seededBook = QStringLiteral(":/seeded/TheLarkwellsBook.sqlite");

    std::optional<QString> FileObject;
    int resultCount = 0;

private:
    // A page's month, day and time of day as the store compares them.
    struct Key {
        qlonglong month, day;
        QString ampm;
        bool operator==(const Key &) const = default;
        friend size_t qHash(const Key &key, size_t seed = 0) { return qHashMulti(seed, key.month, key.day, key.ampm); }
    };
    static std::optional<Key> keyOf(const QVariant &month, const QVariant &day, const QVariant &ampm);

    void countStoredPages(ManagedObjectContext &context);
    void loadLine(const QString &line, const QStringList &columns);
    void save(ManagedObjectContext &context);

    const QString Path; // the page file's resource name: the bundle's unnamed text resource
    QHash<Key, int> m_pagesByKey; // the pages in the context, stored or not, by what the check compares
    QString thedt, theampm, themonth, theday;
};
