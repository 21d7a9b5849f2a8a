// The composition root: command line, data folder, bundle, services, and the window.
#include "AppDelegate.h"
#include "Bundle.h"
#include "PersistentContainer.h"
#include "ProductLinks.h"
#include "SelfTest.h"
#include "UserDefaults.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlExtensionPlugin>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <csignal>
#include <cstdio>
#include <sys/socket.h>
#include <unistd.h>

Q_IMPORT_QML_PLUGIN(LarkwellsPlugin)

using namespace Qt::StringLiterals;

namespace {
int signalSockets[2] = {-1, -1};

void forwardSignal(int)
{
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(signalSockets[0], &byte, 1);
}

// SIGINT and SIGTERM end the application the normal way, so what is unsaved gets saved.
void quitOnTerminationSignals(QGuiApplication &app)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, signalSockets) != 0)
        return;
    auto *notifier = new QSocketNotifier(signalSockets[1], QSocketNotifier::Read, &app);
    QObject::connect(notifier, &QSocketNotifier::activated, &app, [] {
        char byte;
        [[maybe_unused]] const auto read = ::read(signalSockets[1], &byte, 1);
        QGuiApplication::quit();
    });
    struct sigaction action = {};
    action.sa_handler = forwardSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
}

// The version, with the links the app was built with.
void printVersion()
{
    std::printf("%s %s\nstore page: %s\nweb site: %s\nfeedback: %s\n", qPrintable(QGuiApplication::applicationName()),
                qPrintable(QGuiApplication::applicationVersion()), qPrintable(ProductLinks::productURL().toString()),
                qPrintable(ProductLinks::website().toString()), qPrintable(ProductLinks::feedbackAddress()));
}
}

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(u"larkwells"_s);
    QGuiApplication::setApplicationDisplayName(u"The Larkwells Book"_s);
    QGuiApplication::setApplicationVersion(Bundle::main().version());
    QGuiApplication::setDesktopFileName(u"larkwells"_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"The Larkwells Book: a morning and a night page for every day of the year."_s);
    parser.addHelpOption();
    const QCommandLineOption dataDir(u"data-dir"_s, u"Where the database and the preferences live."_s, u"DIR"_s);
    const QCommandLineOption resources(u"resources"_s, u"Use DIR as the application bundle."_s, u"DIR"_s);
    const QCommandLineOption selfTest(u"self-test"_s, u"Load every page and fail on any QML warning."_s);
    const QCommandLineOption version({u"v"_s, u"version"_s}, u"Displays version information and the app's links."_s);
    parser.addOptions({dataDir, resources, selfTest, version});
    parser.process(app);
    if (parser.isSet(version)) {
        printVersion();
        return EXIT_SUCCESS;
    }

    const bool testing = parser.isSet(selfTest);
    SelfTest::Run selfTestRun;
    QString directory = parser.value(dataDir);
    if (directory.isEmpty())
        directory = testing ? selfTestRun.dataDirectory() : QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    UserDefaults::setStandardDirectory(directory);
    PersistentContainer::setDefaultDirectory(directory);
    if (parser.isSet(resources))
        Bundle::setResourceDirectory(parser.value(resources));
    if (testing)
        selfTestRun.watchWarnings();

    QQuickStyle::setStyle(u"Material"_s);
    AppDelegate::shared().didFinishLaunching();
    QObject::connect(&app, &QGuiApplication::aboutToQuit, [] { AppDelegate::shared().applicationWillTerminate(); });
    quitOnTerminationSignals(app);

    QQmlApplicationEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s); // not a default import path before Qt 6.5
    QObject::connect(&engine, &QQmlApplicationEngine::objectCreationFailed, &app,
                     [] { QCoreApplication::exit(EXIT_FAILURE); }, Qt::QueuedConnection);
    engine.load(QUrl(u"qrc:/qt/qml/Larkwells/app/Main.qml"_s));
    if (engine.rootObjects().isEmpty())
        return EXIT_FAILURE;
    // For the launch benchmarks (bench/): quit normally once the first frame is on screen.
    if (auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
        window && qEnvironmentVariableIsSet("LARKWELLS_QUIT_AFTER_FIRST_FRAME"))
        QObject::connect(window, &QQuickWindow::frameSwapped, &app, &QGuiApplication::quit, Qt::QueuedConnection);
    const int status = testing ? selfTestRun.exec(engine) : QGuiApplication::exec();
    AppDelegate::shared().reset(); // close the store while the database driver still exists
    return status;
}
