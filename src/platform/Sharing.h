#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QUrl>
#include <functional>
#include <optional>

// The share sheet: hands a text to whatever the desktop offers — the clipboard, a text file, an
// e-mail through the desktop's mail client, and a text message where a handler for sms: links
// exists. The window shows the sheet while `showing`; the user's choice comes back here.
class Sharing : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool showing READ showing NOTIFY showingChanged)
    Q_PROPERTY(QString text READ text NOTIFY showingChanged)
    Q_PROPERTY(bool canSendText READ canSendText CONSTANT)
    Q_PROPERTY(bool canSendMail READ canSendMail CONSTANT)
    Q_PROPERTY(bool sharesFile READ sharesFile NOTIFY showingChanged)
    Q_PROPERTY(QString fileName READ fileName NOTIFY showingChanged)
    Q_PROPERTY(QUrl suggestedCopy READ suggestedCopy NOTIFY showingChanged)
    Q_PROPERTY(QUrl documentsFolder READ documentsFolder CONSTANT)
    Q_PROPERTY(bool offersPicture READ offersPicture NOTIFY showingChanged)

public:
    static Sharing &shared();
    static Sharing *create(QQmlEngine *, QJSEngine *);

    // True where the desktop has a handler for text messages (sms: links).
    bool canSendText() const;
    // Tests decide what the device can do; none asks the desktop again.
    void setCanSendTextForTesting(std::optional<bool> canSend) { m_canSendOverride = canSend; }

    struct Request {
        QString text;
        std::function<void(bool completed)> completion; // after the user chose or cancelled
        std::function<void()> presented;                // once the sheet is on screen
        QString filePath; // when set, the sheet offers this file instead of the text
    };
    void present(Request request);
    // The sheet for a text that may also go as a picture: `picture` draws it and gives the
    // picture file's path (empty when it could not be made), which is then offered as a file.
    void presentWithPicture(Request request, std::function<QString()> picture);
    // The sheet for a file: save a copy of it, or open it with the desktop's handler.
    void presentFile(const QString &path) { present({QString(), {}, {}, path}); }
    bool sharesFile() const { return m_request && !m_request->filePath.isEmpty(); }
    bool offersPicture() const { return m_request && m_picture; }
    QString fileName() const;
    // Where "Save a Copy…" proposes to put the file: the Documents folder, under its own name.
    QUrl suggestedCopy() const;
    QUrl documentsFolder() const;

    // True where xdg-email exists and the desktop has a handler for mailto: links.
    bool canSendMail() const;
    void setCanSendMailForTesting(std::optional<bool> canSend) { m_canSendMailOverride = canSend; }
    struct Mail {
        QString subject;
        QString body;
        QString attachmentPath;
        QString typeString; // the attachment's type as the caller names it
        QString fileName;   // the attachment's name; the file at attachmentPath carries it
    };
    // Opens the desktop's mail composer with the attachment; a composer that does not start,
    // or reports a failure, is told in an alert.
    void composeMail(const Mail &mail);

    bool showing() const { return m_request.has_value(); }
    QString text() const { return m_request ? m_request->text : QString(); }

    // The sheet's choices.
    Q_INVOKABLE void sheetPresented();
    Q_INVOKABLE void copyToClipboard();
    Q_INVOKABLE void saveToFile(const QUrl &file);
    Q_INVOKABLE void email();
    Q_INVOKABLE void textMessage();
    Q_INVOKABLE void saveCopy(const QUrl &target);
    Q_INVOKABLE void openWith();
    Q_INVOKABLE void shareAsPicture();
    Q_INVOKABLE void cancel();
    // The file dialog could not be loaded (its QML module is missing).
    Q_INVOKABLE void saveDialogUnavailable(const QString &reason);
    // Closes the sheet, reporting whether an activity was completed.
    void dismiss(bool completed);

Q_SIGNALS:
    void showingChanged();
    // An activity could not be done (for example a file that could not be written); the user
    // is told in an alert.
    void failed(const QString &message);

private:
    explicit Sharing(QObject *parent = nullptr);
    std::optional<Request> m_request;
    std::function<QString()> m_picture; // with the request it belongs to
    std::optional<bool> m_canSendOverride;
    std::optional<bool> m_canSendMailOverride;
};

// The delegate of the text-message composer: it only closes the composer when the user is done.
class MessageComposer
{
public:
    enum class Result { Cancelled, Sent, Failed };
    void messageComposeViewControllerDidFinish(Sharing &sharing, Result result);
};
