#include "SpecialDayFile.h"

using namespace Qt::StringLiterals;

std::variant<QList<SpecialDayFile::Record>, SpecialDayFile::ParseError> SpecialDayFile::records(const QString &text)
{
    QString cleaned = text;
    cleaned.remove(u'\r');
    QList<Record> result;
    for (const QString &line : cleaned.split(u'\n')) {
        if (line.isEmpty() || line == u"[SPECIALDAYS]"_s)
            continue;
        QStringList fields = line.split(u'^');
        if (fields.size() > columns.size())
            return ParseError{u"Index out of range: a special day line has %1 fields, at most 3 are allowed: “%2”"_s
                                  .arg(fields.size()).arg(line.left(60))};
        if (fields.size() == 3)
            fields[2].replace(u"@#@"_s, u"\n"_s);
        result.append({fields});
    }
    return result;
}
