#include "Sharing.h"

#include "Alerts.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

Sharing &Sharing::shared()
{
    static Sharing *sharing = new Sharing;
    return *sharing;
}

Sharing *Sharing::create(QQmlEngine *, QJSEngine *)
{
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    return &shared();
}

namespace {
bool schemeHandlerExists(const QString &scheme)
{
    QProcess query;
    query.start(u"xdg-mime"_s, {u"query"_s, u"default"_s, u"x-scheme-handler/"_s + scheme});
    return query.waitForFinished(3000) && query.exitCode() == 0
        && !query.readAllStandardOutput().trimmed().isEmpty();
}

void reportFailure(const QString &title, const QString &message)
{
    Alerts::shared().present({title, message, {u"OK"_s}, {}});
}
}

bool Sharing::canSendText() const
{
    if (m_canSendOverride)
        return *m_canSendOverride;
    static const bool handlerExists = schemeHandlerExists(u"sms"_s);
    return handlerExists;
}

bool Sharing::canSendMail() const
{
    if (m_canMailOverride)
        return *m_canMailOverride;
    static const bool mailWorks = !QStandardPaths::findExecutable(u"xdg-email"_s).isEmpty()
                                  && schemeHandlerExists(u"mailto"_s);
    return mailWorks;
}

void Sharing::present(Request request)
{
    if (m_request)
        dismiss(false);
    m_request = std::move(request);
    Q_EMIT showingChanged();
}

void Sharing::sheetPresented()
{
    if (m_request && m_request->presented)
        m_request->presented();
}

void Sharing::dismiss(bool completed)
{
    if (!m_request)
        return;
    const Request request = *std::exchange(m_request, std::nullopt);
    Q_EMIT showingChanged();
    if (request.completion)
        request.completion(completed);
}

void Sharing::copyToClipboard()
{
    QGuiApplication::clipboard()->setText(text());
    dismiss(true);
}

void Sharing::saveToFile(const QUrl &file)
{
    QSaveFile output(file.toLocalFile());
    if (!output.open(QIODevice::WriteOnly) || output.write(text().toUtf8()) < 0 || !output.commit()) {
        reportFailure(u"Save as Text File"_s, u"The text could not be saved: "_s + output.errorString());
        return;
    }
    dismiss(true);
}

void Sharing::email()
{
    QUrl mail(u"mailto:"_s);
    QUrlQuery query;
    query.addQueryItem(u"subject"_s, u"The Larkwells Book"_s);
    query.addQueryItem(u"body"_s, QString::fromUtf8(QUrl::toPercentEncoding(text())));
    mail.setQuery(query);
    if (!QDesktopServices::openUrl(mail)) {
        reportFailure(u"Sending Email"_s, u"Email not Setup or Unavailable"_s);
        return;
    }
    dismiss(true);
}

void Sharing::textMessage()
{
    QUrl message(u"sms:"_s);
    QUrlQuery query;
    query.addQueryItem(u"body"_s, QString::fromUtf8(QUrl::toPercentEncoding(text())));
    message.setQuery(query);
    const bool opened = QDesktopServices::openUrl(message);
    MessageComposer().messageComposeViewControllerDidFinish(
        *this, opened ? MessageComposer::Result::Sent : MessageComposer::Result::Failed);
}

void Sharing::cancel()
{
    dismiss(false);
}

void Sharing::saveDialogUnavailable(const QString &reason)
{
    reportFailure(u"Save as Text File"_s,
                  u"Files cannot be saved here: the file dialog is not installed (%1)."_s.arg(reason));
}

void MessageComposer::messageComposeViewControllerDidFinish(Sharing &sharing, Result result)
{
    sharing.dismiss(result == Result::Sent);
}
