#include "Log.h"

#include <cstdio>

namespace {
Log::Sink &sink()
{
    static Log::Sink current;
    return current;
}
}

void Log::line(const QString &text)
{
    if (sink()) {
        sink()(text);
        return;
    }
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

Log::Sink Log::setSink(Sink next)
{
    return std::exchange(sink(), std::move(next));
}
