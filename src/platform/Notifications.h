#pragma once

#include <QObject>
#include <QString>
#include <optional>

// Desktop notifications: a summary and a body shown by the desktop's notification service, and
// word back when the reader clicks one (its default action) or it goes away. The freedesktop
// service over the session bus unless a test installs its own.
class Notifications : public QObject
{
    Q_OBJECT

public:
    struct Notification {
        QString summary;
        QString body;
    };

    static Notifications &shared();
    // Replaces the service (tests); null goes back to the desktop's.
    static void setShared(Notifications *notifications);

    // Shows the notification; an explanation when there is no service to show it.
    virtual std::optional<QString> notify(const Notification &notification) = 0;

Q_SIGNALS:
    // The reader clicked the last notification shown.
    void defaultActionInvoked();
    // The last notification shown went away (dismissed, expired, or its action done).
    void closed();

protected:
    using QObject::QObject;
};
