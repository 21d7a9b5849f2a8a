#pragma once

#include <QStringList>
#include <variant>

// The special-day file: UTF-8, one day a line, "ampm^dayname^poemprayer", "@#@" for a line
// break in the poem, marker lines "[SPECIALDAYS]" and empty lines skipped wherever they stand.
// The shipped file and the export share it. These functions return values or errors and leave
// stopping to the caller.
namespace SpecialDayFile {

inline const QStringList columns{QStringLiteral("ampm"), QStringLiteral("dayname"), QStringLiteral("poemprayer")};
inline const QString marker = QStringLiteral("[SPECIALDAYS]");
inline const QString fileName = QStringLiteral("SpecialDays.txt");

struct Record {
    QStringList fields; // one to three fields, as the line gives them, the poem with line feeds
};
struct ReadError {
    QString description; // for the log line
};
struct ParseError {
    QString message;
    QList<Record> recordsBefore; // the good records ahead of the faulty line, in file order
};
struct WriteError {
    QString message;
};

// The whole file decoded as UTF-8; a missing, unreadable or undecodable file is an error.
std::variant<QString, ReadError> read(const QString &path);

// The records of a file's text, in file order; a line with more than three fields is an error.
std::variant<QList<Record>, ParseError> records(const QString &text);

// The file for these records: the marker line, then one line a record, each ending in a line
// feed. Line breaks in the poem become "@#@"; carriage returns are dropped. More than three
// fields, a field holding "^", or a name or time of day holding a line break has no spelling in
// the format and is an error.
std::variant<QByteArray, WriteError> write(const QList<Record> &records);

}
