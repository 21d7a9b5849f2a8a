// The composition root: command line, data folder, bundle, services, and the window.
#include "AppDelegate.h"
#include "Bundle.h"
#include "CoverCache.h"
#include "FileChooserLook.h"
#include "FirstFrameReport.h"
#include "PersistentContainer.h"
#include "RemindCommand.h"
#include "ProductLinks.h"
#include "SelfTest.h"
#include "Termination.h"
#include "TodaysPage.h"
#include "UserDefaults.h"
#include "WindowIcon.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QQmlApplicationEngine>
#include <QQmlExtensionPlugin>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QTranslator>
#include <algorithm>
#include <cstdio>
#include <memory>

Q_IMPORT_QML_PLUGIN(LarkwellsPlugin)

using namespace Qt::StringLiterals;

namespace {
// The links the app was built with, beside the version (on standard error, so that standard
// output stays the bare version line that packaging checks read).
void printLinks()
{
    std::fprintf(stderr, "store page: %s\nweb site: %s\nfeedback: %s\n", qPrintable(ProductLinks::productURL().toString()),
                 qPrintable(ProductLinks::website().toString()), qPrintable(ProductLinks::feedbackAddress()));
}

// The page `--open` names: "AM" for today-morning, "PM" for today-night, empty for another.
QString pageToOpen(const QString &value)
{
    if (value == u"today-morning"_s)
        return u"AM"_s;
    if (value == u"today-night"_s)
        return u"PM"_s;
    return {};
}

// The command line: its options, and the first thing wrong with what it was given.
struct CommandLine {
    QCommandLineParser parser;
    QCommandLineOption help = parser.addHelpOption();
    QCommandLineOption version = parser.addVersionOption();
    QCommandLineOption dataDir{u"data-dir"_s, QCoreApplication::translate("main", "Where the database and the preferences live."), u"DIR"_s};
    QCommandLineOption resources{u"resources"_s, QCoreApplication::translate("main", "Use DIR as the application bundle."), u"DIR"_s};
    QCommandLineOption selfTest{u"self-test"_s, QCoreApplication::translate("main", "Load every page and fail on any QML warning.")};
    QCommandLineOption remind{u"remind"_s, QCoreApplication::translate("main", "Show the first line of today's morning or night page as a desktop notification; a click on it opens the page."), u"morning|night"_s};
    QCommandLineOption at{u"at"_s, QCoreApplication::translate("main", "With --remind: wait for this time of day (HH:MM), every day, instead of reminding now."), u"HH:MM"_s};
    QCommandLineOption open{u"open"_s, QCoreApplication::translate("main", "Open the reader on today's morning or night page."), u"today-morning|today-night"_s};
    bool parsed = false;

    explicit CommandLine(const QStringList &arguments)
    {
        parser.setApplicationDescription(QCoreApplication::translate("main", "The Larkwells Book: a morning and a night page for every day of the year."));
        parser.addOptions({dataDir, resources, selfTest, remind, at, open});
        parsed = parser.parse(arguments);
    }

    QString error() const
    {
        if (!parsed)
            return parser.errorText() + u'\n' + QCoreApplication::translate("main", "Try 'larkwells --help' for the options.");
        if (!parser.positionalArguments().isEmpty())
            return QCoreApplication::translate("main", "Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst());
        if (parser.isSet(open) && pageToOpen(parser.value(open)).isEmpty())
            return QCoreApplication::translate("main", "--open takes today-morning or today-night.");
        if (parser.isSet(at) && !parser.isSet(remind))
            return QCoreApplication::translate("main", "--at goes with --remind.");
        return {};
    }

    // Help, the version, a reminder (run from a timer, where there may be no display) and a
    // mistaken command line are answered without a window.
    bool needsWindow() const
    {
        return error().isEmpty() && !parser.isSet(help) && !parser.isSet(u"help-all"_s) && !parser.isSet(version)
            && !parser.isSet(remind);
    }
};

// What a reminder passes on to the app it runs: the data folder and bundle this one was given.
QStringList launchArguments(const QCommandLineParser &parser, const QList<QCommandLineOption> &options)
{
    QStringList arguments;
    for (const QCommandLineOption &option : options)
        if (parser.isSet(option))
            arguments << u"--"_s + option.names().constFirst() << QDir(parser.value(option)).absolutePath();
    return arguments;
}

// Our own texts in the reader's language where a translation exists, and Qt's own (dialog
// buttons) where the system has them.
void installTranslations(QGuiApplication &app)
{
    auto *own = new QTranslator(&app);
    if (own->load(QLocale(), u"larkwells"_s, u"_"_s, u":/i18n"_s))
        QCoreApplication::installTranslator(own);
    auto *qt = new QTranslator(&app);
    if (qt->load(QLocale(), u"qt"_s, u"_"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
}

bool phoneSized(const QScreen *screen)
{
    const QRect available = screen->availableGeometry();
    return std::min(available.width(), available.height()) < 600;
}

QString windowFile(const QString &dataDirectory)
{
    return QDir(dataDirectory).filePath(u"Window.ini"_s);
}

// Where the reader left the window on a desktop, when that is still on a screen.
QRect savedGeometry(const QString &dataDirectory)
{
    const QRect saved = QSettings(windowFile(dataDirectory), QSettings::IniFormat).value(u"geometry"_s).toRect();
    return saved.isValid() && QGuiApplication::screenAt(saved.center()) ? saved : QRect();
}

// The size the window opens at: the whole screen on a phone-sized one; on a desktop the size the
// reader left it at, else phone size (Main.qml's own), within the screen, whose bottom bar would
// otherwise run off a small one.
QSize openingSize(const QScreen *screen, const QRect &saved)
{
    if (phoneSized(screen))
        return screen->geometry().size();
    return (saved.isValid() ? saved.size() : QSize(412, 915)).boundedTo(screen->availableGeometry().size());
}

// The window opens full screen on a phone-sized screen; on a desktop it comes back where the
// reader left it (`saved`).
void placeWindow(QQuickWindow *window, const QString &dataDirectory, const QRect &saved)
{
    if (phoneSized(window->screen())) {
        window->setGeometry(window->screen()->geometry()); // for a compositor that ignores the state
        window->showFullScreen();
        return;
    }
    const QString file = windowFile(dataDirectory);
    if (saved.isValid())
        window->setPosition(saved.topLeft());
    // Quitting hides the window before aboutToQuit, so the last windowed geometry is kept as it changes.
    auto last = std::make_shared<QRect>(window->geometry());
    const auto keep = [window, last] {
        if (window->visibility() == QWindow::Windowed)
            *last = window->geometry();
    };
    for (const auto changed : {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged})
        QObject::connect(window, changed, window, keep);
    // An unchanged place is not written again: a write costs two disk flushes at every quit.
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, window, [file, last, saved] {
        if (*last != saved)
            QSettings(file, QSettings::IniFormat).setValue(u"geometry"_s, *last);
    });
}
}

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    if (!CommandLine(arguments).needsWindow())
        qputenv("QT_QPA_PLATFORM", "minimal");
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(u"larkwells"_s);
    QCoreApplication::setApplicationVersion(Bundle::main().version());
    installTranslations(app);

    // Parsed again now that its texts can be translated.
    CommandLine commandLine(QCoreApplication::arguments());
    QCommandLineParser &parser = commandLine.parser;
    if (const QString error = commandLine.error(); !error.isEmpty()) {
        std::fprintf(stderr, "larkwells: %s\n", qPrintable(error));
        return 2;
    }
    if (parser.isSet(commandLine.version)) {
        printLinks();
        parser.showVersion();
    }
    if (parser.isSet(u"help-all"_s))
        parser.process(QCoreApplication::arguments()); // prints Qt's own options too, and ends
    if (parser.isSet(commandLine.help))
        parser.showHelp();
    const QString openPage = pageToOpen(parser.value(commandLine.open));

    QGuiApplication::setApplicationDisplayName(u"The Larkwells Book"_s);
    // Matches the window to its desktop entry (packaging/), which names the icon.
    QGuiApplication::setDesktopFileName(u"org.larkwells.Book"_s);
    QGuiApplication::setWindowIcon(windowIcon(u":/bundle/Icon.svg"_s));

    const bool testing = parser.isSet(commandLine.selfTest);
    SelfTest::Run selfTestRun;
    QString directory = parser.value(commandLine.dataDir);
    if (directory.isEmpty())
        directory = testing ? selfTestRun.dataDirectory() : QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    UserDefaults::setStandardDirectory(directory);
    PersistentContainer::setDefaultDirectory(directory);
    if (parser.isSet(commandLine.resources))
        Bundle::setResourceDirectory(parser.value(commandLine.resources));
    if (testing)
        selfTestRun.watchWarnings();
    ReminderSchedule::setLaunchArguments(launchArguments(parser, {commandLine.dataDir, commandLine.resources}));
    if (parser.isSet(commandLine.remind)) {
        const int status = RemindCommand::run(parser.value(commandLine.remind), parser.value(commandLine.at));
        AppDelegate::shared().reset();
        return status;
    }

    QQuickStyle::setStyle(u"Material"_s);
    AppDelegate::shared().didFinishLaunching();
    Termination::install(app);

    // The window is made at the size it opens at, and the cover drawn for it while the screens
    // are built, when it is not kept yet.
    QQmlApplicationEngine engine;
    const QRect saved = testing ? QRect() : savedGeometry(directory);
    if (const QScreen *screen = QGuiApplication::primaryScreen(); screen && !testing) {
        const QSize size = openingSize(screen, saved);
        engine.setInitialProperties({{u"width"_s, size.width()}, {u"height"_s, size.height()}});
        CoverCache::drawAhead(CoverCache::pixelSize(size, screen->devicePixelRatio()), screen->devicePixelRatio());
    }
    engine.addImportPath(u"qrc:/qt/qml"_s); // not a default import path before Qt 6.5
    FileChooserLook::install(engine);
    QObject::connect(&engine, &QQmlApplicationEngine::objectCreationFailed, &app,
                     [] { QCoreApplication::exit(EXIT_FAILURE); }, Qt::QueuedConnection);
    engine.load(QUrl(u"qrc:/qt/qml/Larkwells/app/Main.qml"_s));
    if (engine.rootObjects().isEmpty())
        return EXIT_FAILURE;
    if (auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst())) {
        if (!testing)
            placeWindow(window, directory, saved);
        if (qEnvironmentVariableIsSet("LARKWELLS_QUIT_AFTER_FIRST_FRAME"))
            reportFirstFrameAndQuit(window);
        QObject::connect(window, &QQuickWindow::frameSwapped, window, &CoverCache::keepDrawn, Qt::SingleShotConnection);
    }
    if (!openPage.isEmpty() && !TodaysPage::open(openPage))
        std::fprintf(stderr, "larkwells: %s\n", qPrintable(QCoreApplication::translate("main", "The book has no page for today.")));
    const int status = testing ? selfTestRun.exec(engine) : QGuiApplication::exec();
    UserDefaults::standard().synchronize();
    CoverCache::finishDrawing();
    AppDelegate::shared().reset(); // close the store while the database driver still exists
    return status;
}
