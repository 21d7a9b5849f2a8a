#pragma once

#include <QStringList>
#include <QVariant>
#include <variant>

// The page file: one page a line, up to seven fields separated by "^" (dt, ampm, month, day,
// pagenum, favorite, poemprayer), Windows-1250 text. These functions are pure: they return
// values or errors and leave stopping to the caller.
namespace PageFile {

inline const QStringList columns{QStringLiteral("dt"), QStringLiteral("ampm"), QStringLiteral("month"),
                                 QStringLiteral("day"), QStringLiteral("pagenum"), QStringLiteral("favorite"),
                                 QStringLiteral("poemprayer")};
inline const QString marker = QStringLiteral("[POEMPRAYER]");

struct ReadError {
    QString description; // how the platform would word it, for the log line
};

// The whole file decoded as Windows-1250; a missing, unreadable or undecodable file is an error.
std::variant<QString, ReadError> read(const QString &path, const QString &displayName);
std::optional<QString> decodeWindows1250(const QByteArray &bytes);

// The page lines of a file's text: commas, apostrophes and carriage returns removed, split at
// every newline kind, empty lines and marker lines dropped.
QStringList lines(const QString &text);
// The fields of a line, unprocessed.
QStringList pieces(const QString &line);

struct Assignment {
    QString column;
    QVariant value; // QString, or qint16 for month, day and pagenum
};
struct ParseError {
    QString message;
};
// The stored values of a line's pieces, column by column: double quotes removed, numbers
// parsed strictly as 16-bit decimals, "@#@" in the text turned into line feeds. More pieces
// than columns, or a bad number, is an error.
std::variant<QList<Assignment>, ParseError> assignments(const QStringList &pieces, const QStringList &columns);

// Strict decimal: an optional sign and digits only, within -32768..32767.
std::optional<qint16> strictInt16(const QString &text);

}
