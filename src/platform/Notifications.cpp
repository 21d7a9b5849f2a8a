#include "Notifications.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusReply>
#include <QVariantMap>

using namespace Qt::StringLiterals;

namespace {
const QString service = u"org.freedesktop.Notifications"_s;
const QString path = u"/org/freedesktop/Notifications"_s;

// org.freedesktop.Notifications on the session bus.
class DesktopNotifications : public Notifications
{
    Q_OBJECT

public:
    DesktopNotifications()
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        bus.connect(service, path, service, u"ActionInvoked"_s, this, SLOT(actionInvoked(uint, QString)));
        bus.connect(service, path, service, u"NotificationClosed"_s, this, SLOT(notificationClosed(uint, uint)));
    }

    std::optional<QString> notify(const Notification &notification) override
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        if (!bus.isConnected())
            return u"there is no desktop session bus (%1)"_s.arg(bus.lastError().message());
        QDBusMessage call = QDBusMessage::createMethodCall(service, path, service, u"Notify"_s);
        // The body may be read as markup; the page's own text is shown as it is.
        call << u"The Larkwells Book"_s << 0u << u"org.larkwells.Book"_s << notification.summary
             << notification.body.toHtmlEscaped() << QStringList{u"default"_s, u"Open"_s}
             << QVariantMap{{u"desktop-entry"_s, u"org.larkwells.Book"_s}} << -1;
        const QDBusReply<uint> reply = bus.call(call);
        if (!reply.isValid())
            return u"the desktop's notification service did not answer (%1)"_s.arg(reply.error().message());
        m_id = reply.value();
        return std::nullopt;
    }

private Q_SLOTS:
    void actionInvoked(uint id, const QString &action)
    {
        if (id == m_id && action == u"default"_s)
            Q_EMIT defaultActionInvoked();
    }
    void notificationClosed(uint id, uint)
    {
        if (id == m_id)
            Q_EMIT closed();
    }

private:
    std::optional<uint> m_id;
};

Notifications *installed = nullptr;
}

Notifications &Notifications::shared()
{
    if (installed)
        return *installed;
    static auto *desktop = new DesktopNotifications; // lives as long as the session bus
    return *desktop;
}

void Notifications::setShared(Notifications *notifications)
{
    installed = notifications;
}

#include "Notifications.moc"
