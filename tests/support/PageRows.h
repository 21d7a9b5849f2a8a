#pragma once

#include "AppDelegate.h"
#include "Entities.h"

// Rows written straight into the test's store: each row its `columns` joined by "|", with "-"
// for a value left unset.
template <typename T>
QList<T *> insertRows(const QStringList &columns, const QStringList &rows)
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    QList<T *> inserted;
    for (const QString &row : rows) {
        T *object = context.insertNewObject<T>();
        const QStringList fields = row.split(u'|');
        for (qsizetype i = 0; i < fields.size(); ++i) {
            if (fields[i] != u"-")
                object->setValueForKey(columns[i], fields[i]);
        }
        inserted.append(object);
    }
    context.save();
    return inserted;
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

// Pages: "dt|ampm|month|day|pagenum|favorite|text".
inline QList<PoemPrayer *> insertPages(const QStringList &rows)
{
    return insertRows<PoemPrayer>({QStringLiteral("dt"), QStringLiteral("ampm"), QStringLiteral("month"), QStringLiteral("day"),
                            QStringLiteral("pagenum"), QStringLiteral("favorite"), QStringLiteral("poemprayer")},
                           rows);
}

// Special days: "ampm|dayname|poemprayer".
inline QList<SpecialDay *> insertSpecialDays(const QStringList &rows)
{
    return insertRows<SpecialDay>({QStringLiteral("ampm"), QStringLiteral("dayname"), QStringLiteral("poemprayer")}, rows);
}

// About articles: "name|text".
inline void insertAbouts(const QStringList &rows)
{
    insertRows<About>({QStringLiteral("name"), QStringLiteral("aboutText")}, rows);
}

inline QStringList storedAbouts()
{
    return storedRows<About>({QStringLiteral("name"), QStringLiteral("aboutText")});
}
