#pragma once

#include <QStringList>
#include <optional>

// The session's service manager (systemd's user instance), which runs timers outside the app:
// whether there is one, and its command line. Tests install their own.
class UserServices
{
public:
    virtual ~UserServices() = default;

    static UserServices &shared();
    // Replaces the service manager (tests); null goes back to the session's.
    static void setShared(UserServices *services);

    // True when the session runs a systemd user instance.
    virtual bool available() const;
    // Runs `systemctl --user` with `arguments`; an explanation when it fails.
    virtual std::optional<QString> systemctl(const QStringList &arguments);
};
