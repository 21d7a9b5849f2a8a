#pragma once

#include "WritingBackup.h"

class About;
class ManagedObjectContext;
class PoemPrayer;

// What a restore changes in the store, worked out before anything is written so the reader can
// see it first. The store's own writing wins where both changed something: a note already here
// is not added twice, a page or article changed here keeps its text.
struct WritingRestore {
    QList<WritingBackup::Note> notesToAdd;
    QList<PoemPrayer *> favoritesToSet;
    QList<std::pair<PoemPrayer *, QString>> pagesToReplace;
    QList<WritingBackup::Article> articlesToAdd;
    QList<std::pair<About *, QString>> articlesToReplace;
    int notesAlreadyHere = 0;
    int pagesChangedHere = 0;  // changed here since the book shipped: kept
    int articlesChangedHere = 0;

    struct Shipped {
        QHash<WritingBackup::PageKey, QString> pages;
        QHash<QString, QString> articles;
    };
    static WritingRestore plan(const WritingBackup::Contents &backup, ManagedObjectContext &context,
                               const Shipped &shipped);

    bool changesNothing() const;
    // "12 notes, 40 favourites, 3 pages will be restored", and what is kept as it is.
    QString summary() const;
    // Makes the changes and saves them together; the save's error, if any.
    std::optional<QString> apply(ManagedObjectContext &context) const;
};
