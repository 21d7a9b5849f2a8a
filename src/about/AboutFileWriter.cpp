#include "AboutFileWriter.h"

using namespace Qt::StringLiterals;

std::variant<QString, AboutFile::WriteError> AboutFile::write(const QList<About *> &articles,
                                                              const std::function<void(const About &)> &visited)
{
    QString text = marker + u'\n';
    for (const About *article : articles) {
        if (visited)
            visited(*article);
        const std::optional<QString> name = article->name();
        if (!name)
            continue;
        const std::optional<QString> aboutText = article->aboutText();
        if (!aboutText)
            return WriteError{u"Fatal error: the article “%1” has no text to export"_s.arg(*name)};
        text += *name + u'^' + QString(*aboutText).replace(u'\n', u"@#@"_s) + u'\n';
    }
    return text;
}
