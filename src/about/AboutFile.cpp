#include "AboutFile.h"

using namespace Qt::StringLiterals;

std::variant<QList<AboutFile::Article>, AboutFile::ParseError> AboutFile::articles(const QString &text)
{
    QString cleaned = text;
    cleaned.remove(u'\r');
    QList<Article> result;
    for (const QString &line : cleaned.split(u'\n')) {
        if (line.isEmpty() || line == marker)
            continue;
        const QStringList fields = line.split(u'^');
        if (fields.size() > 2)
            return ParseError{u"Index out of range: an about line has %1 fields, at most 2 are allowed: “%2”"_s
                                  .arg(fields.size()).arg(line.left(60))};
        Article article{fields[0], std::nullopt};
        if (fields.size() == 2)
            article.text = QString(fields[1]).replace(u"@#@"_s, u"\n"_s);
        result.append(article);
    }
    return result;
}
