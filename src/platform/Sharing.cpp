#include "Sharing.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QProcess>
#include <QSaveFile>
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

bool Sharing::canSendText() const
{
    if (m_canSendOverride)
        return *m_canSendOverride;
    static const bool handlerExists = [] {
        QProcess query;
        query.start(u"xdg-mime"_s, {u"query"_s, u"default"_s, u"x-scheme-handler/sms"_s});
        return query.waitForFinished(3000) && query.exitCode() == 0
            && !query.readAllStandardOutput().trimmed().isEmpty();
    }();
    return handlerExists;
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
        Q_EMIT failed(u"The text could not be saved: "_s + output.errorString());
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
    dismiss(QDesktopServices::openUrl(mail));
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

void MessageComposer::messageComposeViewControllerDidFinish(Sharing &sharing, Result result)
{
    sharing.dismiss(result == Result::Sent);
}
