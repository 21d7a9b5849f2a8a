#include "SelfTest.h"

#include "Alerts.h"
#include "Navigator.h"

#include <QCoreApplication>
#include <QDir>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {
int s_warnings = 0;
QtMessageHandler s_previous = nullptr;

void countWarnings(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // QML warnings name their file; platform chatter (such as a missing runtime folder) does not.
    const bool fromQml = QString::fromUtf8(context.file ? context.file : "").contains(u".qml"_s)
        || message.contains(u".qml:"_s);
    if ((type == QtWarningMsg || type == QtCriticalMsg) && fromQml)
        ++s_warnings;
    s_previous(type, context, message);
}

void settle(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}
}

QString SelfTest::Run::dataDirectory()
{
    if (!m_directory)
        m_directory = std::make_unique<QTemporaryDir>();
    return m_directory->path();
}

void SelfTest::Run::watchWarnings()
{
    s_previous = qInstallMessageHandler(countWarnings);
}

int SelfTest::Run::exec(QQmlApplicationEngine &engine)
{
    // With LARKWELLS_SCREENSHOTS=DIR every screen is also saved as DIR/<segue>.png
    // (scripts/screenshots.sh picks the published ones from there).
    const QString screenshots = qEnvironmentVariable("LARKWELLS_SCREENSHOTS");
    const auto shoot = [&](const QString &name) {
        auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
        if (screenshots.isEmpty() || !window)
            return;
        settle(400); // closing dialogs fade out
        if (!window->grabWindow().save(QDir(screenshots).filePath(name + u".png"_s)))
            std::fprintf(stderr, "self-test: cannot save the screenshot %s\n", qPrintable(name));
    };
    settle(200);
    while (Alerts::shared().showing())
        Alerts::shared().dismiss(0);
    shoot(u"Cover"_s);
    Navigator &navigator = Navigator::shared();
    for (const QString &segue : navigator.segues()) {
        std::printf("self-test: %s\n", qPrintable(segue));
        navigator.performSegue(segue);
        settle(400);
        shoot(segue);
        navigator.popToRoot();
        settle(400);
    }
    std::printf("self-test: %d warnings\n", s_warnings);
    return s_warnings == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
