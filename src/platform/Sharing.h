#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QUrl>
#include <functional>
#include <optional>

// The share sheet: hands a text to whatever the desktop offers — the clipboard, a text file, an
// e-mail through the desktop's mail client, and a text message where a handler for sms: links
// exists. The window shows the sheet while `showing`; the user's choice comes back here. An
// activity that cannot be done (a file not written, no mail client starting) is reported as an
// alert and closes nothing, so the user can choose again.
class Sharing : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool showing READ showing NOTIFY showingChanged)
    Q_PROPERTY(QString text READ text NOTIFY showingChanged)
    Q_PROPERTY(bool canSendText READ canSendText CONSTANT)
    Q_PROPERTY(bool canSendMail READ canSendMail CONSTANT)

public:
    static Sharing &shared();
    static Sharing *create(QQmlEngine *, QJSEngine *);

    // True where the desktop has a handler for text messages (sms: links).
    bool canSendText() const;
    // Tests decide what the device can do; none asks the desktop again.
    void setCanSendTextForTesting(std::optional<bool> canSend) { m_canSendOverride = canSend; }
    // True where xdg-email exists and the desktop has a handler for mailto: links.
    bool canSendMail() const;
    void setCanSendMailForTesting(std::optional<bool> canSend) { m_canMailOverride = canSend; }

    struct Request {
        QString text;
        std::function<void(bool completed)> completion; // after the user chose or cancelled
        std::function<void()> presented;                // once the sheet is on screen
    };
    void present(Request request);

    bool showing() const { return m_request.has_value(); }
    QString text() const { return m_request ? m_request->text : QString(); }

    // The sheet's choices.
    Q_INVOKABLE void sheetPresented();
    Q_INVOKABLE void copyToClipboard();
    Q_INVOKABLE void saveToFile(const QUrl &file);
    Q_INVOKABLE void email();
    Q_INVOKABLE void textMessage();
    Q_INVOKABLE void cancel();
    // The file dialog could not be loaded (its QML module is missing).
    Q_INVOKABLE void saveDialogUnavailable(const QString &reason);
    // Closes the sheet, reporting whether an activity was completed.
    void dismiss(bool completed);

Q_SIGNALS:
    void showingChanged();

private:
    explicit Sharing(QObject *parent = nullptr) : QObject(parent) {}
    std::optional<Request> m_request;
    std::optional<bool> m_canSendOverride;
    std::optional<bool> m_canMailOverride;
};

// The delegate of the text-message composer: it only closes the composer when the user is done.
class MessageComposer
{
public:
    enum class Result { Cancelled, Sent, Failed };
    void messageComposeViewControllerDidFinish(Sharing &sharing, Result result);
};
