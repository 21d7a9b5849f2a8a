#pragma once

#include "AppDelegate.h"
#include "Entities.h"
#include "PageRows.h"
#include "TestSupport.h"

#include <QStringList>

// A small shipped book and about file, and a store filled from them as the first launch and the
// first visit of the about list would fill it.
inline void shipSmallBook(TestEnvironment &environment)
{
    environment.addBundleFile(QStringLiteral("Book.txt"),
                              "[POEMPRAYER]\r\nJanuary 1^AM^1^1^1^F^Frost on the gate@#@and a kettle singing\r\n"
                              "January 1^PM^1^1^2^F^The lamp is low\r\n"
                              "January 2^AM^1^2^3^F^Bread and a blue cup\r\n");
    environment.addBundleFile(QStringLiteral("About.txt"), "[ABOUT]\nWelcome^Read a page a day.@#@Keep it.\n");
}

inline void seedSmallBook()
{
    insertPages({QStringLiteral("January 1|AM|1|1|1|F|Frost on the gate\nand a kettle singing"),
                 QStringLiteral("January 1|PM|1|1|2|F|The lamp is low"),
                 QStringLiteral("January 2|AM|1|2|3|F|Bread and a blue cup")});
    insertAbouts({QStringLiteral("Welcome|Read a page a day.\nKeep it.")});
}

// Notes as "subject|text|ISO date", written straight into the store.
inline void insertNotes(const QStringList &rows)
{
    QStringList full;
    for (const QString &row : rows) {
        const QDateTime date = QDateTime::fromString(row.section(u'|', 2), Qt::ISODate);
        full << row + date.toString(QStringLiteral("|MMMM d, yyyy|")) + QLatin1StringView(date.time().hour() < 12 ? "AM" : "PM")
                    + date.toString(QStringLiteral("|yyyy|M|d"));
    }
    insertRows<Notes>({QStringLiteral("subject"), QStringLiteral("notes"), QStringLiteral("dt"), QStringLiteral("dtstring"),
                       QStringLiteral("ampm"), QStringLiteral("year"), QStringLiteral("month"), QStringLiteral("day")},
                      full);
}

// The store's writing in a comparable form, read through a fresh connection.
inline QStringList storedWriting()
{
    const auto container = loadedContainer();
    ManagedObjectContext &context = container->viewContext();
    QStringList rows;
    for (const Notes *note : context.fetch<Notes>(Notes::fetchRequest()))
        rows.append(QStringLiteral("note %1: %2").arg(note->subject().value_or(QStringLiteral("-")), note->notes().value_or(QStringLiteral("-"))));
    for (const PoemPrayer *page : context.fetch<PoemPrayer>(PoemPrayer::fetchRequest())) {
        rows.append(QStringLiteral("page %1 %2%3: %4")
                        .arg(page->dt().value_or(QString()), page->ampm().value_or(QString()),
                             page->favorite() == QStringLiteral("T") ? QStringLiteral(" ♥") : QString(),
                             page->poemprayer().value_or(QStringLiteral("-"))));
    }
    for (const About *article : context.fetch<About>(About::fetchRequest()))
        rows.append(QStringLiteral("article %1: %2").arg(article->name().value_or(QStringLiteral("-")), article->aboutText().value_or(QStringLiteral("-"))));
    return rows;
}
