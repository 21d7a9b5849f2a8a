#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

// Mail through the desktop's mail client: the message is handed to xdg-email, which opens a
// filled-in message for the user to finish and send.
class Mail
{
public:
    struct Message {
        QStringList recipients;
        QString subject;
        QString body;
        bool bodyIsHTML = false; // an HTML body goes out as the plain text it reads as
        QString attachment;      // a file path, or empty
    };

    static Mail &shared();

    // True where xdg-email exists and a handler for mailto: links is registered.
    bool canSendMail() const;
    // Starts the mail client; false when it could not be started.
    bool send(const Message &message);

    // Tests decide what the device can do and catch what would be launched.
    using Launcher = std::function<bool(const QString &program, const QStringList &arguments)>;
    void setCanSendMailForTesting(std::optional<bool> canSend) { m_canSendOverride = canSend; }
    void setLauncherForTesting(Launcher launcher) { m_launcher = std::move(launcher); }

private:
    Mail() = default;
    std::optional<bool> m_canSendOverride;
    Launcher m_launcher;
};
