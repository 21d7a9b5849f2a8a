#include "AboutFile.h"

#include <QFile>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

std::variant<QString, AboutFile::ReadError> AboutFile::read(const QString &path)
{
    QFile input(path);
    if (!input.open(QIODevice::ReadOnly))
        return ReadError{u"The file “%1” couldn’t be opened: %2."_s.arg(path, input.errorString())};
    const QByteArray bytes = input.readAll();
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return ReadError{u"The file “%1” couldn’t be opened using text encoding Unicode (UTF-8)."_s.arg(path)};
    return text;
}

QStringList AboutFile::lines(const QString &text)
{
    QString cleaned = text;
    cleaned.remove(u'\r');
    QStringList result;
    for (const QString &line : cleaned.split(u'\n')) {
        if (!line.isEmpty() && line != marker)
            result.append(line);
    }
    return result;
}

std::variant<AboutFile::Article, AboutFile::ParseError> AboutFile::article(const QString &line)
{
    const QStringList fields = line.split(u'^');
    if (fields.size() > 2)
        return ParseError{u"Index out of range: an about line has %1 fields, at most 2 are allowed: “%2”"_s
                              .arg(fields.size()).arg(line.left(60))};
    Article result{fields[0], std::nullopt};
    if (fields.size() == 2)
        result.text = QString(fields[1]).replace(u"@#@"_s, u"\n"_s);
    return result;
}

std::variant<QList<AboutFile::Article>, AboutFile::ParseError> AboutFile::articles(const QString &text)
{
    QList<Article> result;
    for (const QString &line : lines(text)) {
        auto parsed = article(line);
        if (auto *error = std::get_if<ParseError>(&parsed))
            return *error;
        result.append(std::get<Article>(parsed));
    }
    return result;
}
