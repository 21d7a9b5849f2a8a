#pragma once

#include "Entities.h"

#include <QStringList>

// Fills the page table from the bundle's page file on the first launch: clearing every page,
// then loading the file line by line, one fetch and one save a page.
class PageSeeding
{
public:
    // Deletes every page, saving after each deletion.
    void clearPoemPrayers();
    // Loads the page file into the main context; the first line of a month, day and time of
    // day wins. A malformed line is a fatal stop; a missing or unreadable file is logged.
    void loadPoemPrayers(const QStringList &columns);

    std::optional<QString> FileObject;
    int resultCount = 0;

private:
    void loadLine(const QString &line, const QStringList &columns);

    const QString Path; // the page file's resource name: the bundle's unnamed text resource
    QList<PoemPrayer *> PoemList;
    QString thedt, theampm, themonth, theday;
};
