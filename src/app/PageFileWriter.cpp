#include "PageFileWriter.h"

#include "ManagedObjectContext.h"

#include <QSqlQuery>

namespace {
// About one page of the built-in book; a guess that saves most regrowth of the text.
constexpr qsizetype bytesPerPage = 400;

struct Record {
    QStringView dt, ampm;
    int month, day, pagenum;
    QStringView favorite, poemprayer;
};

void appendNumber(QString &text, int number)
{
    char digits[8];
    int length = 0;
    unsigned magnitude = number < 0 ? 0u - unsigned(number) : unsigned(number);
    do {
        digits[length++] = char('0' + magnitude % 10);
        magnitude /= 10;
    } while (magnitude);
    if (number < 0)
        text += u'-';
    while (length)
        text += QLatin1Char(digits[--length]);
}

void appendRecord(QString &text, const Record &record)
{
    text += record.dt;
    text += u'^';
    text += record.ampm;
    text += u'^';
    appendNumber(text, record.month);
    text += u'^';
    appendNumber(text, record.day);
    text += u'^';
    appendNumber(text, record.pagenum);
    text += u'^';
    text += record.favorite;
    text += u'^';
    text += record.poemprayer;
    text += u'\n';
}

QString started(qsizetype pages)
{
    QString text;
    text.reserve(PageFile::marker.size() + 1 + pages * bytesPerPage);
    text += PageFile::marker;
    text += u'\n';
    return text;
}
}

QString PageFile::updateFileText(const QList<PoemPrayer *> &pages)
{
    QString text = started(pages.size());
    for (const PoemPrayer *page : pages) {
        const QString dt = page->dt().value_or(QString()), ampm = page->ampm().value_or(QString()),
                      favorite = page->favorite().value_or(QString()), poemprayer = page->poemprayer().value_or(QString());
        appendRecord(text, {dt, ampm, page->month(), page->day(), page->pagenum(), favorite, poemprayer});
    }
    return text;
}

QString PageFile::updateFileText(ManagedObjectContext &context)
{
    QString text = started(0); // grows by doubling: the page count is not known before reading
    // Stored numbers are 16-bit, as the page objects read them.
    const auto number = [](const QVariant &value) { return int(qint16(value.toInt())); };
    const bool read = context.readStoredRows(PoemPrayer::fetchRequest(), columns, [&](const QSqlQuery &row) {
        const QString dt = row.value(0).toString(), ampm = row.value(1).toString(),
                      favorite = row.value(5).toString(), poemprayer = row.value(6).toString();
        appendRecord(text, {dt, ampm, number(row.value(2)), number(row.value(3)), number(row.value(4)), favorite, poemprayer});
    });
    if (!read)
        return updateFileText(context.fetch<PoemPrayer>(PoemPrayer::fetchRequest()));
    return text;
}
