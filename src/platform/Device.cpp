#include "Device.h"

#include <QGuiApplication>
#include <QScreen>

Device &Device::shared()
{
    static Device *device = new Device;
    return *device;
}

Device *Device::create(QQmlEngine *, QJSEngine *)
{
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    return &shared();
}

Device::Idiom Device::idiom() const
{
    QSizeF size = m_windowSize;
    if (size.isEmpty()) {
        const QScreen *screen = QGuiApplication::primaryScreen();
        if (!screen)
            return Unspecified;
        size = screen->availableSize();
    }
    return qMin(size.width(), size.height()) < 600 ? Phone : Tablet;
}

void Device::setWindowSize(const QSizeF &size)
{
    if (size == m_windowSize)
        return;
    m_windowSize = size;
    Q_EMIT idiomChanged();
}
