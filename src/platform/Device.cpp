#include "Device.h"

#include "Log.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#ifdef __GLIBC__
#include <malloc.h>
#endif

using namespace Qt::StringLiterals;

Device &Device::shared()
{
    static Device *device = new Device;
    return *device;
}

Device *Device::create(QQmlEngine *, QJSEngine *engine)
{
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    shared().m_engine = engine;
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

int Device::deviceid() const
{
    switch (idiom()) {
    case Phone: return 1;
    case Tablet: Log::line(u"iPad"_s); return 2;
    default: Log::line(u"Not Possible"_s); return 0;
    }
}

void Device::releaseUnusedMemory()
{
    // After the screens' own deferred deletions.
    QTimer::singleShot(0, this, [this] {
        if (m_engine)
            m_engine->collectGarbage();
#ifdef __GLIBC__
        malloc_trim(0);
#endif
    });
}
