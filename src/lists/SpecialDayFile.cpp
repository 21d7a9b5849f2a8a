#include "SpecialDayFile.h"

#include <QFile>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace {
const QString lineBreak = u"@#@"_s;
constexpr qsizetype poemField = 2;
}

std::variant<QString, SpecialDayFile::ReadError> SpecialDayFile::read(const QString &path)
{
    const QString file = u"The file “%1” couldn’t be opened"_s.arg(fileName);
    QFile input(path);
    if (path.isEmpty() || !input.exists())
        return ReadError{file + u" because there is no such file."_s};
    if (!input.open(QIODevice::ReadOnly))
        return ReadError{file + u": "_s + input.errorString() + u'.'};
    const QByteArray bytes = input.readAll();
    if (input.error() != QFileDevice::NoError)
        return ReadError{file + u": "_s + input.errorString() + u'.'};
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8.decode(bytes);
    if (utf8.hasError())
        return ReadError{file + u" using text encoding Unicode (UTF-8)."_s};
    return text;
}

std::variant<QList<SpecialDayFile::Record>, SpecialDayFile::ParseError> SpecialDayFile::records(const QString &text)
{
    QString cleaned = text;
    cleaned.remove(u'\r');
    QList<Record> result;
    const QStringList lines = cleaned.split(u'\n');
    for (qsizetype number = 1; number <= lines.size(); ++number) {
        const QString &line = lines[number - 1];
        if (line.isEmpty() || line == marker)
            continue;
        QStringList fields = line.split(u'^');
        if (fields.size() > columns.size())
            return ParseError{u"%1 line %2 has %3 fields where a special day has at most 3: “%4”"_s
                                  .arg(fileName).arg(number).arg(fields.size()).arg(line.left(60)),
                              result};
        if (fields.size() > poemField)
            fields[poemField].replace(lineBreak, u"\n"_s);
        result.append({fields});
    }
    return result;
}

std::variant<QByteArray, SpecialDayFile::WriteError> SpecialDayFile::write(const QList<Record> &records)
{
    QString text = marker + u'\n';
    for (const Record &record : records) {
        QStringList fields = record.fields;
        if (fields.size() > columns.size())
            return WriteError{u"The special day “%1” cannot be written: it has %2 fields, at most 3 are allowed."_s
                                  .arg(fields.value(1)).arg(fields.size())};
        for (qsizetype i = 0; i < fields.size(); ++i) {
            QString &field = fields[i];
            field.remove(u'\r');
            if (i == poemField)
                field.replace(u'\n', lineBreak);
            if (field.contains(u'^') || field.contains(u'\n'))
                return WriteError{u"The special day “%1” cannot be written: its %2 holds “^” or a line break."_s
                                      .arg(record.fields.value(1), columns[i])};
        }
        text += fields.join(u'^') + u'\n';
    }
    return text.toUtf8();
}
