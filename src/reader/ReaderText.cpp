#include "ReaderText.h"

#include "Sharing.h"

using namespace Qt::StringLiterals;

namespace ReaderText {

QString greeting(const QString &ampm)
{
    if (ampm == u"AM"_s)
        return u"Good Morning"_s;
    if (ampm == u"PM"_s)
        return u"Good Night"_s;
    return {};
}

void shareAsTextMessage(const QString &ampm, const Alerts::Alert &refusal, bool queued,
                        const std::function<QString(const QString &greeting)> &message)
{
    if (!Sharing::shared().canSendText()) {
        if (queued)
            Alerts::shared().presentAsync(refusal);
        else
            Alerts::shared().present(refusal);
        return;
    }
    const QString pageGreeting = greeting(ampm);
    if (pageGreeting.isEmpty())
        return;
    Sharing::shared().present({message(pageGreeting), {}, {}});
}

}
