#include "UserServices.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {
UserServices *installed = nullptr;
}

UserServices &UserServices::shared()
{
    if (installed)
        return *installed;
    static UserServices session;
    return session;
}

void UserServices::setShared(UserServices *services)
{
    installed = services;
}

bool UserServices::available() const
{
    // A running user instance listens on this socket in the session's runtime folder.
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtime.isEmpty() && QFileInfo::exists(QDir(runtime).filePath(u"systemd/private"_s));
}

std::optional<QString> UserServices::systemctl(const QStringList &arguments)
{
    QProcess process;
    process.start(u"systemctl"_s, QStringList{u"--user"_s} + arguments);
    if (!process.waitForFinished(10000))
        return u"systemctl %1: %2"_s.arg(arguments.join(u' '), process.errorString());
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return u"systemctl %1: %2"_s.arg(arguments.join(u' '), QString::fromLocal8Bit(process.readAllStandardError()).trimmed());
    return std::nullopt;
}
