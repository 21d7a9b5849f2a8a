#include "PageFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <iconv.h>

using namespace Qt::StringLiterals;

namespace {
const QStringList numberColumns{u"month"_s, u"day"_s, u"pagenum"_s};
}

std::optional<QString> PageFile::decodeWindows1250(const QByteArray &bytes)
{
    iconv_t converter = iconv_open("UTF-8", "WINDOWS-1250");
    if (converter == iconv_t(-1))
        return std::nullopt;
    QByteArray input = bytes;
    QByteArray output(bytes.size() * 3 + 4, Qt::Uninitialized);
    char *in = input.data();
    char *out = output.data();
    size_t inLeft = size_t(input.size());
    size_t outLeft = size_t(output.size());
    const size_t result = iconv(converter, &in, &inLeft, &out, &outLeft);
    iconv_close(converter);
    if (result == size_t(-1) || inLeft != 0)
        return std::nullopt;
    output.truncate(output.size() - qsizetype(outLeft));
    return QString::fromUtf8(output);
}

std::variant<QString, PageFile::ReadError> PageFile::read(const QString &path, const QString &displayName)
{
    const QString file = u"The file “%1” couldn’t be opened"_s.arg(displayName);
    if (path.isEmpty() || !QFileInfo::exists(path))
        return ReadError{file + u" because there is no such file."_s};
    QFile input(path);
    if (!input.open(QIODevice::ReadOnly)) {
        if (input.error() == QFileDevice::OpenError && !QFileInfo(path).isReadable())
            return ReadError{file + u" because you don’t have permission to view it."_s};
        return ReadError{file + u": "_s + input.errorString() + u'.'};
    }
    const QByteArray bytes = input.readAll();
    if (input.error() != QFileDevice::NoError)
        return ReadError{file + u": "_s + input.errorString() + u'.'};
    const std::optional<QString> text = decodeWindows1250(bytes);
    if (!text)
        return ReadError{file + u" using text encoding Windows-1250 (Central European)."_s};
    return *text;
}

QStringList PageFile::lines(const QString &text)
{
    QString cleaned = text;
    cleaned.remove(u',');
    cleaned.remove(u'\'');
    cleaned.remove(u'\r');
    // Line feed, vertical tab, form feed, next line, line separator, paragraph separator.
    static const QRegularExpression newline(u"[\\n\\x{000B}\\x{000C}\\x{0085}\\x{2028}\\x{2029}]"_s);
    QStringList result;
    for (const QString &line : cleaned.split(newline)) {
        if (!line.isEmpty() && line != marker)
            result.append(line);
    }
    return result;
}

QStringList PageFile::pieces(const QString &line)
{
    return line.split(u'^');
}

std::optional<qint16> PageFile::strictInt16(const QString &text)
{
    static const QRegularExpression decimal(u"^[+-]?[0-9]+$"_s);
    if (!decimal.match(text).hasMatch())
        return std::nullopt;
    bool ok = false;
    const int value = text.toInt(&ok);
    if (!ok || value < -32768 || value > 32767)
        return std::nullopt;
    return qint16(value);
}

std::variant<QList<PageFile::Assignment>, PageFile::ParseError>
PageFile::assignments(const QStringList &pieces, const QStringList &columns)
{
    if (pieces.size() > columns.size())
        return ParseError{u"Index out of range: a page line has %1 fields, at most %2 are allowed"_s
                              .arg(pieces.size()).arg(columns.size())};
    QList<Assignment> result;
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        QString piece = pieces[i];
        piece.remove(u'"');
        const QString &column = columns[i];
        if (numberColumns.contains(column)) {
            const auto number = strictInt16(piece);
            if (!number)
                return ParseError{u"the %1 \"%2\" is not a 16-bit decimal number"_s.arg(column, piece)};
            result.append({column, QVariant::fromValue(*number)});
        } else if (column == u"poemprayer"_s) {
            result.append({column, piece.replace(u"@#@"_s, u"\n"_s)});
        } else {
            result.append({column, piece});
        }
    }
    return result;
}
