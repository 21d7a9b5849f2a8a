// The floor of the launch benchmark: the smallest Qt Quick Controls window, started and ended
// the same way as the application.
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    QQuickStyle::setStyle(u"Material"_s);
    QQmlApplicationEngine engine;
    engine.load(QUrl(u"qrc:/minimal/MinimalWindow.qml"_s));
    if (engine.rootObjects().isEmpty())
        return EXIT_FAILURE;
    // As in the application: quit normally once the first frame is on screen.
    if (auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
        window && qEnvironmentVariableIsSet("LARKWELLS_QUIT_AFTER_FIRST_FRAME"))
        QObject::connect(window, &QQuickWindow::frameSwapped, &app, &QGuiApplication::quit, Qt::QueuedConnection);
    return QGuiApplication::exec();
}
