#include "Sharing.h"

#include "Alerts.h"
#include "Mail.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace {
bool desktopHandles(const QString &scheme)
{
    QProcess query;
    query.start(u"xdg-mime"_s, {u"query"_s, u"default"_s, u"x-scheme-handler/"_s + scheme});
    return query.waitForFinished(3000) && query.exitCode() == 0 && !query.readAllStandardOutput().trimmed().isEmpty();
}

void reportMailFailure(const QString &detail)
{
    Alerts::shared().presentAsync({u"Sending Email"_s, Sharing::tr("The mail program could not be started: %1").arg(detail), {u"OK"_s}, {}});
}

// Runs a desktop helper; a helper that cannot start or ends in failure is reported.
void runHelper(const QString &program, const QStringList &arguments, const std::function<void(const QString &)> &failed)
{
    auto *process = new QProcess;
    QObject::connect(process, &QProcess::errorOccurred, process, [process, program, failed](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            failed(Sharing::tr("%1 is not installed").arg(program));
            process->deleteLater();
        }
    });
    QObject::connect(process, &QProcess::finished, process, [process, program, failed](int exitCode, QProcess::ExitStatus status) {
        if (status != QProcess::NormalExit || exitCode != 0)
            failed(Sharing::tr("%1 ended with status %2").arg(program).arg(exitCode));
        process->deleteLater();
    });
    process->start(program, arguments);
}
}

Sharing::Sharing(QObject *parent)
    : QObject(parent)
{
    connect(this, &Sharing::failed, this, [](const QString &message) {
        Alerts::shared().presentAsync({u"Share"_s, message, {u"OK"_s}, {}});
    });
}

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
    static const bool handlerExists = desktopHandles(u"sms"_s);
    return handlerExists;
}

void Sharing::present(Request request)
{
    if (m_request)
        dismiss(false);
    m_request = std::move(request);
    Q_EMIT showingChanged();
}

void Sharing::presentWithPicture(Request request, std::function<QString()> picture)
{
    if (m_request)
        dismiss(false);
    m_picture = std::move(picture);
    present(std::move(request));
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
    m_picture = {};
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
        Q_EMIT failed(tr("The text could not be saved: %1").arg(output.errorString()));
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
    // A mail client that does not start is told, and the sheet stays for another choice.
    if (!QDesktopServices::openUrl(mail)) {
        Alerts::shared().presentAsync({u"Sending Email"_s, u"Email not Setup or Unavailable"_s, {u"OK"_s}, {}});
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
    Q_EMIT failed(tr("Files cannot be saved here: the file dialog is not installed (%1).").arg(reason));
}

void MessageComposer::messageComposeViewControllerDidFinish(Sharing &sharing, Result result)
{
    sharing.dismiss(result == Result::Sent);
}

QString Sharing::fileName() const
{
    return sharesFile() ? QFileInfo(m_request->filePath).fileName() : QString();
}

QUrl Sharing::documentsFolder() const
{
    // Without a Documents folder (many a desktop) the home folder: a chooser opened on a folder
    // that is not there lists another one, and a copy saved into it fails.
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QUrl::fromLocalFile(QFileInfo(documents).isDir() ? documents : QDir::homePath());
}

QUrl Sharing::suggestedCopy() const
{
    if (!sharesFile())
        return {};
    return QUrl::fromLocalFile(QDir(documentsFolder().toLocalFile()).filePath(fileName()));
}

void Sharing::saveCopy(const QUrl &target)
{
    if (!sharesFile())
        return;
    const QString path = target.toLocalFile();
    // A file already there is replaced only by a whole copy: a failed copy leaves it as it was.
    QFile source(m_request->filePath);
    QSaveFile copy(path);
    if (!source.open(QIODevice::ReadOnly) || !copy.open(QIODevice::WriteOnly) || copy.write(source.readAll()) != source.size()
        || !copy.commit()) {
        Q_EMIT failed(tr("The file could not be saved to %1").arg(path));
        return;
    }
    dismiss(true);
}

void Sharing::openWith()
{
    if (!sharesFile())
        return;
    runHelper(u"xdg-open"_s, {m_request->filePath}, [this](const QString &detail) {
        Q_EMIT failed(tr("The file could not be opened: %1").arg(detail));
    });
    dismiss(true);
}

void Sharing::shareAsPicture()
{
    if (!offersPicture())
        return;
    const QString path = m_picture();
    if (path.isEmpty()) {
        Q_EMIT failed(u"The picture could not be made."_s);
        return;
    }
    // The open sheet turns into the sheet for the picture file; closing and opening it again
    // at once would race its closing animation.
    const Request text = *std::exchange(m_request, Request{QString(), {}, {}, path});
    m_picture = {};
    Q_EMIT showingChanged();
    if (text.completion)
        text.completion(true);
}

bool Sharing::canSendMail() const
{
    if (m_canSendMailOverride)
        return *m_canSendMailOverride;
    return ::Mail::shared().canSendMail();
}

void Sharing::composeMail(const Mail &mail)
{
    QStringList arguments{u"--subject"_s, mail.subject, u"--body"_s, mail.body};
    if (!mail.attachmentPath.isEmpty())
        arguments << u"--attach"_s << mail.attachmentPath;
    runHelper(u"xdg-email"_s, arguments, reportMailFailure);
}
