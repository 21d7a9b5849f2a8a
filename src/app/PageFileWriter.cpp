#include "PageFileWriter.h"

QString PageFile::updateFileText(const QList<PoemPrayer *> &pages)
{
    QString text = marker + u'\n';
    text.reserve(pages.size() * 400);
    for (const PoemPrayer *page : pages) {
        text += page->dt().value_or(QString());
        text += u'^';
        text += page->ampm().value_or(QString());
        text += u'^';
        text += QString::number(page->month());
        text += u'^';
        text += QString::number(page->day());
        text += u'^';
        text += QString::number(page->pagenum());
        text += u'^';
        text += page->favorite().value_or(QString());
        text += u'^';
        text += page->poemprayer().value_or(QString());
        text += u'\n';
    }
    return text;
}
