#include "Alerts.h"

#include <QTimer>

Alerts &Alerts::shared()
{
    static Alerts *alerts = new Alerts;
    return *alerts;
}

Alerts *Alerts::create(QQmlEngine *, QJSEngine *)
{
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    return &shared();
}

void Alerts::present(Alert alert)
{
    const bool first = m_queue.isEmpty();
    m_queue.append(alert);
    Q_EMIT presented(alert.title, alert.message);
    if (first)
        Q_EMIT currentChanged();
}

void Alerts::presentAsync(Alert alert)
{
    QTimer::singleShot(0, this, [this, alert] { present(alert); });
}

void Alerts::dismiss(int buttonIndex)
{
    if (m_queue.isEmpty())
        return;
    const Alert alert = m_queue.takeFirst();
    Q_EMIT currentChanged();
    if (alert.handler)
        alert.handler(buttonIndex);
}
