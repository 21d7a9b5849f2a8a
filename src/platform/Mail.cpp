#include "Mail.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

Mail &Mail::shared()
{
    static Mail mail;
    return mail;
}

bool Mail::canSendMail() const
{
    if (m_canSendOverride)
        return *m_canSendOverride;
    static const bool available = [] {
        if (QStandardPaths::findExecutable(u"xdg-email"_s).isEmpty())
            return false;
        QProcess query;
        query.start(u"xdg-mime"_s, {u"query"_s, u"default"_s, u"x-scheme-handler/mailto"_s});
        return query.waitForFinished(3000) && query.exitCode() == 0
            && !query.readAllStandardOutput().trimmed().isEmpty();
    }();
    return available;
}

namespace {
// The xdg-email command line for a message.
QStringList arguments(const Mail::Message &message)
{
    QStringList arguments{u"--utf8"_s};
    if (!message.subject.isEmpty())
        arguments << u"--subject"_s << message.subject;
    const QString body = message.bodyIsHTML ? QTextDocumentFragment::fromHtml(message.body).toPlainText() : message.body;
    if (!body.isEmpty())
        arguments << u"--body"_s << body;
    if (!message.attachment.isEmpty())
        arguments << u"--attach"_s << message.attachment;
    return arguments + message.recipients;
}
}

bool Mail::send(const Message &message)
{
    const QStringList command = arguments(message);
    if (m_launcher)
        return m_launcher(u"xdg-email"_s, command);
    return QProcess::startDetached(u"xdg-email"_s, command);
}
