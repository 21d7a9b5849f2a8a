#include "FatalError.h"

#include "UserDefaults.h"

#include <cstdio>
#include <cstdlib>

namespace {
bool s_throwing = false;
}

void FatalError::setThrowing(bool throwing)
{
    s_throwing = throwing;
}

void fatalError(const QString &message)
{
    if (s_throwing)
        throw FatalErrorException(message);
    std::fflush(stdout);
    const QByteArray bytes = message.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stderr);
    std::fputc('\n', stderr);
    std::fflush(stderr);
    // Everything worth keeping is durable: each save is a committed transaction and each
    // preference write an atomic file replacement, the one written in the background once it lands.
    UserDefaults::finishWriting();
    std::_Exit(EXIT_FAILURE);
}
