#pragma once

#include <QStringList>
#include <variant>

// The special-day file: UTF-8, one day a line, "ampm^dayname^poemprayer", "@#@" for a line
// break, marker lines "[SPECIALDAYS]" and empty lines skipped.
namespace SpecialDayFile {

inline const QStringList columns{QStringLiteral("ampm"), QStringLiteral("dayname"), QStringLiteral("poemprayer")};

struct Record {
    QStringList fields; // one to three fields, as the line gives them, the text with line feeds
};
struct ParseError {
    QString message;
};

// The records of a file's text, in file order; a line with more than three fields is an error.
std::variant<QList<Record>, ParseError> records(const QString &text);

}
