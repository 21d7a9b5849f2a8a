#pragma once

#include "AppDelegate.h"
#include "Entities.h"

// Pages written straight into the test's store: "dt|ampm|month|day|pagenum|favorite|text",
// with "-" for a value left unset.
inline void insertPages(const QStringList &rows)
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    const QStringList columns{QStringLiteral("dt"), QStringLiteral("ampm"), QStringLiteral("month"), QStringLiteral("day"),
                              QStringLiteral("pagenum"), QStringLiteral("favorite"), QStringLiteral("poemprayer")};
    for (const QString &row : rows) {
        PoemPrayer *page = context.insertNewObject<PoemPrayer>();
        const QStringList fields = row.split(u'|');
        for (qsizetype i = 0; i < fields.size(); ++i) {
            if (fields[i] != u"-")
                page->setValueForKey(columns[i], fields[i]);
        }
    }
    context.save();
}

// What a fresh open of the store holds, as after a restart: each T as its `columns` joined by
// "|", with "-" for a value never set.
template <typename T>
QStringList storedRows(const QStringList &columns)
{
    const auto container = loadedContainer();
    QStringList rows;
    for (const T *object : container->viewContext().template fetch<T>(T::fetchRequest())) {
        QStringList fields;
        for (const QString &column : columns) {
            const QVariant value = object->valueForKey(column);
            fields.append(value.isValid() ? value.toString() : QStringLiteral("-"));
        }
        rows.append(fields.join(u'|'));
    }
    return rows;
}

// Special days written straight into the test's store: "ampm|dayname|poemprayer", with "-" for
// a value left unset.
inline void insertSpecialDays(const QStringList &rows)
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    const QStringList columns{QStringLiteral("ampm"), QStringLiteral("dayname"), QStringLiteral("poemprayer")};
    for (const QString &row : rows) {
        SpecialDay *day = context.insertNewObject<SpecialDay>();
        const QStringList fields = row.split(u'|');
        for (qsizetype i = 0; i < fields.size(); ++i) {
            if (fields[i] != u"-")
                day->setValueForKey(columns[i], fields[i]);
        }
    }
    context.save();
}
