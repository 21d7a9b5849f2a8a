#pragma once

#include "Alerts.h"

#include <QString>
#include <functional>

// What the page readers have in common about a page's text: its greeting and the text-message
// share.
namespace ReaderText {

// "Good Morning" for a morning page, "Good Night" for a night page, empty for any other.
QString greeting(const QString &ampm);

// The text-message share: a device that cannot send text messages gets `refusal` (queued on the
// event loop when `queued`) and nothing is shared; a page that is neither a morning nor a night
// page shares nothing; otherwise the share sheet offers `message(greeting)`.
void shareAsTextMessage(const QString &ampm, const Alerts::Alert &refusal, bool queued,
                        const std::function<QString(const QString &greeting)> &message);

}
