#pragma once

#include <QString>
#include <functional>

// Plain log lines ("First Launch", "completed", ...): written verbatim to standard output,
// one per line, flushed at once, no prefix. Tests may route them elsewhere.
namespace Log {
void line(const QString &text);
using Sink = std::function<void(const QString &)>;
// Replaces where lines go; an empty sink restores standard output. Returns the previous sink.
Sink setSink(Sink sink);
}
