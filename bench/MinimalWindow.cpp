// The floor of the launch benchmark: the smallest Qt Quick Controls window, started and ended
// the same way as the application.
#include "FirstFrameReport.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QScreen>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    QQuickStyle::setStyle(u"Material"_s);
    QQmlApplicationEngine engine;
    engine.load(QUrl(u"qrc:/minimal/MinimalWindow.qml"_s));
    if (engine.rootObjects().isEmpty())
        return EXIT_FAILURE;
    // As in the application: the phone-sized window kept within the screen, and its first frame
    // reported before a normal quit.
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    if (!window)
        return EXIT_FAILURE;
    window->resize(window->size().boundedTo(window->screen()->availableGeometry().size()));
    if (qEnvironmentVariableIsSet("LARKWELLS_QUIT_AFTER_FIRST_FRAME"))
        reportFirstFrameAndQuit(window);
    return QGuiApplication::exec();
}
