#pragma once

#include "PageRows.h"

#include <QStringList>

// About articles as "name|text", "-" for a value never set.
inline void insertAbouts(const QStringList &rows)
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    for (const QString &row : rows) {
        About *article = context.insertNewObject<About>();
        const QStringList fields = row.split(u'|');
        if (fields[0] != u"-")
            article->setName(fields[0]);
        if (fields[1] != u"-")
            article->setAboutText(fields[1]);
    }
    context.save();
}

// The stored articles in insertion order, read through a fresh connection.
inline QStringList storedAbouts()
{
    return storedRows<About>({QStringLiteral("name"), QStringLiteral("aboutText")});
}
