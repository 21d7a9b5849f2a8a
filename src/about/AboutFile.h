#pragma once

#include <QStringList>
#include <optional>
#include <variant>

// The about file: UTF-8, one article a line, "name^text", "@#@" for a line break in the text,
// marker lines "[ABOUT]" and empty lines skipped. The shipped file, the import and the export
// share it.
namespace AboutFile {

inline const QString marker = QStringLiteral("[ABOUT]");

struct Article {
    QString name;                // may be empty: a line that starts with "^"
    std::optional<QString> text; // none for a line without "^"
};
struct ParseError {
    QString message;
};
struct ReadError {
    QString description; // for the log line
};

// The whole file as UTF-8; a missing or unreadable file, or bytes that are not UTF-8, is an error.
std::variant<QString, ReadError> read(const QString &path);

// The article lines of a file's text: carriage returns removed, split at line feeds, empty and
// marker lines dropped wherever they stand.
QStringList lines(const QString &text);
// One article line; a line with a second "^" is an error.
std::variant<Article, ParseError> article(const QString &line);
// The articles of a file's text, in file order; the first malformed line is the error.
std::variant<QList<Article>, ParseError> articles(const QString &text);

}
