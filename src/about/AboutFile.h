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

// The articles of a file's text, in file order; a line with a second "^" is an error.
std::variant<QList<Article>, ParseError> articles(const QString &text);

}
