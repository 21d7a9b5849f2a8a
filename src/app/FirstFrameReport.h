#pragma once

// For the launch benchmarks (bench/): at the window's first frame on screen, the processor time
// spent so far by every thread, as "first frame: 61.25 ms cpu" on standard output, then a normal
// quit. The benchmark takes its wall time when the line arrives, so a quit's own work is not
// counted as launching.
#include <QCoreApplication>
#include <QQuickWindow>
#include <cstdio>
#include <ctime>

inline void reportFirstFrameAndQuit(QQuickWindow *window)
{
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [] {
        std::printf("first frame: %.2f ms cpu\n", 1000.0 * double(std::clock()) / CLOCKS_PER_SEC);
        std::fflush(stdout);
        QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
    }, Qt::SingleShotConnection);
}
