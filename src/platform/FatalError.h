#pragma once

#include <QString>
#include <stdexcept>

// The one way the application stops on a fault it cannot recover from: the message goes to
// standard error and the process ends with a non-zero status. Tests switch it to throwing
// FatalErrorException so they can assert the message.
[[noreturn]] void fatalError(const QString &message);

class FatalErrorException : public std::runtime_error
{
public:
    explicit FatalErrorException(const QString &message)
        : std::runtime_error(message.toStdString()), m_message(message) {}
    QString message() const { return m_message; }

private:
    QString m_message;
};

namespace FatalError {
void setThrowing(bool throwing);
}
