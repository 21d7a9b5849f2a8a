#include "SpecialDayFileWriter.h"

using namespace Qt::StringLiterals;

QString SpecialDayFile::write(const QList<SpecialDay *> &days)
{
    QString text = u"[SPECIALDAYS]\n"_s;
    for (const SpecialDay *day : days) {
        text += day->ampm().value_or(QString()) + u'^' + day->dayname().value_or(QString()) + u'^'
              + day->poemprayer().value_or(QString()).replace(u'\n', u"@#@"_s) + u'\n';
    }
    return text;
}
