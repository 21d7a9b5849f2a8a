// Draws the application's screens to PNG files, for looking at them at phone and tablet sizes.
//   larkwells_screenshot --data-dir DIR --size 360x640 STEP...
// Steps run in order: segue:ID (open a screen), click:NAME (click the visible item with that
// object name), key:NAME (a key, e.g. Escape, Tab, Space), type:TEXT, dismiss:BUTTON (answer
// the open alerts), pick:FILE (choose the file in the open file dialog), wait:MS, shot:FILE.png.
#include "Alerts.h"
#include "AppDelegate.h"
#include "Navigator.h"
#include "PersistentContainer.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTest>
#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {
bool runStep(QQuickWindow *window, const QString &step)
{
    const QString kind = step.section(u':', 0, 0);
    const QString argument = step.section(u':', 1);
    if (kind == u"segue"_s) {
        Navigator::shared().performSegue(argument);
    } else if (kind == u"click"_s) {
        QQuickItem *item = findVisibleItem(window->contentItem(), argument);
        if (!item) {
            std::fprintf(stderr, "no visible item named %s\n", qPrintable(argument));
            return false;
        }
        QTest::mouseClick(window, Qt::LeftButton, {}, item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint());
    } else if (kind == u"key"_s) {
        QTest::keySequence(window, QKeySequence::fromString(argument));
    } else if (kind == u"type"_s) {
        for (const QChar c : argument)
            QTest::keyClick(window, c.toLatin1());
    } else if (kind == u"dismiss"_s) {
        while (Alerts::shared().showing())
            Alerts::shared().dismiss(argument.toInt());
    } else if (kind == u"pick"_s) {
        const QList<QObject *> objects = window->findChildren<QObject *>();
        const auto dialog = std::find_if(objects.cbegin(), objects.cend(), [](const QObject *object) {
            return object->inherits("QQuickFileDialogImpl") && object->property("visible").toBool();
        });
        if (dialog == objects.cend() || !(*dialog)->setProperty("selectedFile", QUrl::fromLocalFile(argument))
            || !QMetaObject::invokeMethod(*dialog, "accept")) {
            std::fprintf(stderr, "no file dialog to choose %s in\n", qPrintable(argument));
            return false;
        }
    } else if (kind == u"wait"_s) {
        QTest::qWait(argument.toInt());
    } else if (kind == u"shot"_s) {
        if (!window->grabWindow().save(argument)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(argument));
            return false;
        }
        std::printf("wrote %s\n", qPrintable(argument));
    } else {
        std::fprintf(stderr, "unknown step %s\n", qPrintable(step));
        return false;
    }
    QTest::qWait(600);
    return true;
}
}

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption dataDir(u"data-dir"_s, u"The data folder."_s, u"DIR"_s);
    const QCommandLineOption size(u"size"_s, u"Window size, WIDTHxHEIGHT."_s, u"SIZE"_s, u"412x915"_s);
    parser.addOptions({dataDir, size});
    parser.addPositionalArgument(u"steps"_s, u"segue:ID click:NAME key:KEY type:TEXT wait:MS shot:FILE"_s);
    parser.process(app);

    UserDefaults::setStandardDirectory(parser.value(dataDir));
    PersistentContainer::setDefaultDirectory(parser.value(dataDir));
    QQuickStyle::setStyle(u"Material"_s);
    AppDelegate::shared().didFinishLaunching();
    QQmlApplicationEngine engine;
    QQuickWindow *window = loadMainWindow(engine);
    if (!window)
        return EXIT_FAILURE;
    const QStringList wh = parser.value(size).split(u'x');
    window->resize(wh.value(0).toInt(), wh.value(1).toInt());
    QTest::qWait(800);
    const QStringList steps = parser.positionalArguments();
    const bool done = std::all_of(steps.begin(), steps.end(), [window](const QString &step) { return runStep(window, step); });
    AppDelegate::shared().reset(); // the store closes before the database driver goes
    return done ? EXIT_SUCCESS : EXIT_FAILURE;
}
