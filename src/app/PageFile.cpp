#include "PageFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <iconv.h>

using namespace Qt::StringLiterals;

namespace {
const QStringList numberColumns{u"month"_s, u"day"_s, u"pagenum"_s};

std::optional<QString> iconvWindows1250(const QByteArray &bytes)
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

// Windows-1250 is a single-byte encoding without state, so a text decodes byte by byte: each
// byte's character (or that it has none) is asked of iconv once, instead of iconv walking the
// whole page file. Empty when iconv cannot convert at all.
struct ByteTable {
    std::array<char16_t, 256> character{};
    std::array<bool, 256> defined{};
};

const std::optional<ByteTable> &windows1250Table()
{
    static const std::optional<ByteTable> table = []() -> std::optional<ByteTable> {
        ByteTable result;
        for (int byte = 0; byte < 256; ++byte) {
            const std::optional<QString> text = iconvWindows1250(QByteArray(1, char(byte)));
            if (!text && byte == 0)
                return std::nullopt; // no converter
            if (text && text->size() != 1)
                return std::nullopt; // not one UTF-16 unit a byte: leave it to iconv
            result.defined[byte] = text.has_value();
            result.character[byte] = text ? text->at(0).unicode() : u'\0';
        }
        return result;
    }();
    return table;
}

// An optional sign and digits only, as the pattern "^[+-]?[0-9]+$" reads such text.
bool plainDecimal(QStringView text)
{
    if (!text.isEmpty() && (text.front() == u'+' || text.front() == u'-'))
        text = text.sliced(1);
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}
}

std::optional<QString> PageFile::decodeWindows1250(const QByteArray &bytes)
{
    const std::optional<ByteTable> &table = windows1250Table();
    if (!table || bytes.isEmpty())
        return iconvWindows1250(bytes);
    QString text(bytes.size(), Qt::Uninitialized);
    char16_t *out = reinterpret_cast<char16_t *>(text.data());
    for (const char c : bytes) {
        const auto byte = uchar(c);
        if (!table->defined[byte])
            return std::nullopt;
        *out++ = table->character[byte];
    }
    return text;
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
    const auto isNewline = [](QChar c) {
        switch (c.unicode()) {
        case u'\n': case 0x000B: case 0x000C: case 0x0085: case 0x2028: case 0x2029: return true;
        default: return false;
        }
    };
    QStringList result;
    const QStringView view(cleaned);
    qsizetype start = 0;
    for (qsizetype i = 0; i <= view.size(); ++i) {
        if (i < view.size() && !isNewline(view[i]))
            continue;
        const QStringView line = view.sliced(start, i - start);
        if (!line.isEmpty() && line != marker)
            result.append(line.toString());
        start = i + 1;
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
    if (!plainDecimal(text) && !decimal.match(text).hasMatch())
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
