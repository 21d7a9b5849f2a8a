// List benchmark, in the application's own window (offscreen) over the 732 pages of the book:
//
//   flick  the "All" page list scrolled top to bottom a quarter screen a frame: the median time
//          between frames, against the same ListView over the same model with plain Text rows
//   tap    a row tapped to the reader's first frame on screen, against pushing a page with the
//          same text over the same picture onto a bare StackView
//
// Passes alternate the screen and its floor; medians are printed. Nothing is asserted.
#include "AppDelegate.h"
#include "BenchData.h"
#include "BenchTable.h"
#include "Log.h"
#include "MainTableViewController.h"
#include "Navigator.h"
#include "PageFile.h"
#include "PageSeeding.h"
#include "PersistentContainer.h"
#include "PreferenceKeys.h"
#include "UserDefaults.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

Q_IMPORT_QML_PLUGIN(LarkwellsPlugin)

using namespace Qt::StringLiterals;

namespace {
constexpr int passes = 5;
constexpr int tapPasses = 15;

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

// Runs `change` and waits for the frame after it; the milliseconds from the change to that frame.
double toNextFrame(QQuickWindow *window, const std::function<void()> &change)
{
    bool swapped = false;
    const auto connection = QObject::connect(window, &QQuickWindow::frameSwapped, window, [&] { swapped = true; });
    QElapsedTimer timer;
    timer.start();
    change();
    window->requestUpdate();
    while (!swapped)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QObject::disconnect(connection);
    return double(timer.nsecsElapsed()) / 1e6;
}

void settle(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds)
        QCoreApplication::processEvents();
}

// Frame times of one scroll of the list from top to bottom.
std::vector<double> flick(QQuickWindow *window, QQuickItem *list)
{
    std::vector<double> frames;
    list->setProperty("contentY", 0);
    settle(50);
    const double step = list->height() / 4;
    for (;;) {
        const double end = list->property("contentHeight").toDouble() - list->height();
        const double y = list->property("contentY").toDouble();
        if (y >= end)
            break;
        frames.push_back(toNextFrame(window, [&] { list->setProperty("contentY", std::min(end, y + step)); }));
    }
    return frames;
}

QQuickWindow *load(QQmlApplicationEngine &engine, const QByteArray &qml)
{
    engine.loadData(qml);
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window)
        qFatal("a benchmark window did not load");
    settle(300);
    return window;
}

// The item of that name under `root`, through the visual tree (QML items need no QObject parent).
QQuickItem *findItem(QQuickItem *root, const QString &name)
{
    if (root->objectName() == name)
        return root;
    for (QQuickItem *child : root->childItems()) {
        if (QQuickItem *found = findItem(child, name))
            return found;
    }
    return nullptr;
}

QQuickItem *topScreen(QQuickWindow *window)
{
    auto *stack = findItem(window->contentItem(), u"stack"_s);
    return stack ? stack->property("currentItem").value<QQuickItem *>() : nullptr;
}
}

int main(int argc, char **argv)
{
    useOffscreenUnlessTold();
    QGuiApplication app(argc, argv);
    const BenchData data;
    {
        PageSeeding seeding;
        seeding.loadPoemPrayers(PageFile::columns);
    }
    Preferences::write(PreferenceKeys::hasBeenLaunchedBeforeFlag, true);

    // The application's window, showing the "All" list.
    QQmlApplicationEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    engine.load(QUrl(u"qrc:/qt/qml/Larkwells/app/Main.qml"_s));
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window)
        qFatal("the application's window did not load");
    settle(300);
    Navigator::shared().performSegue(u"PoemPrayerSegue"_s);
    settle(600);
    QQuickItem *screen = topScreen(window);
    // The screen's controller by its id in the page's own context.
    auto *controller = screen ? qobject_cast<MainTableViewController *>(qmlContext(screen)->objectForName(u"controller"_s))
                              : nullptr;
    if (!controller)
        qFatal("the page list did not open (top screen: %s)", screen ? qPrintable(screen->objectName()) : "none");
    controller->segmentedControlAction(1);
    settle(300);
    auto *list = findItem(screen, u"table"_s);

    // The floor: the same model in a bare ListView of plain Text rows of the same height.
    QQmlApplicationEngine plainEngine;
    plainEngine.rootContext()->setContextProperty(u"pages"_s, controller->property("PoemList").value<QObject *>());
    const double rowHeight = list->property("contentHeight").toDouble() / std::max(1, list->property("count").toInt());
    QQuickWindow *plainWindow = load(plainEngine, QStringLiteral(
        "import QtQuick\nimport QtQuick.Controls\nApplicationWindow { width: %1; height: %2; visible: true\n"
        "ListView { objectName: \"table\"; anchors.fill: parent; model: pages\n"
        "clip: true; reuseItems: true; cacheBuffer: %4\n"
        "delegate: Text { required property string dateText; required property string pageText\n"
        "height: %3; text: dateText + \" \" + pageText } } }")
        .arg(window->width()).arg(window->height()).arg(rowHeight).arg(list->property("cacheBuffer").toInt()).toUtf8());
    auto *plainList = findItem(plainWindow->contentItem(), u"table"_s);

    std::vector<double> frames, plainFrames;
    for (int pass = 0; pass < passes; ++pass) {
        for (double ms : flick(window, list))
            frames.push_back(ms);
        for (double ms : flick(plainWindow, plainList))
            plainFrames.push_back(ms);
    }
    plainWindow->close();
    list->setProperty("contentY", 0);
    settle(200);

    // Taps on the first row; the reader is closed again between them.
    std::vector<double> taps;
    QString text;
    QUrl picture;
    for (int pass = 0; pass < tapPasses; ++pass) {
        QQuickItem *row = findItem(list, u"row-0"_s);
        taps.push_back(toNextFrame(window, [&] { QMetaObject::invokeMethod(row, "clicked"); }));
        QQuickItem *reader = topScreen(window);
        if (!reader || reader->objectName() != u"View"_s)
            qFatal("the reader did not open");
        if (auto *surface = findItem(reader, u"scroller"_s)) {
            text = surface->property("text").toString();
            if (auto *appearance = surface->property("appearance").value<QObject *>())
                picture = appearance->property("wallpaper").toUrl();
        }
        settle(500);
        Navigator::shared().popToRoot();
        settle(300);
        Navigator::shared().performSegue(u"PoemPrayerSegue"_s);
        settle(600);
        screen = topScreen(window);
        list = findItem(screen, u"table"_s);
    }

    QQmlApplicationEngine bareEngine;
    bareEngine.rootContext()->setContextProperty(u"pageText"_s, text);
    bareEngine.rootContext()->setContextProperty(u"picture"_s, picture);
    QQuickWindow *bareWindow = load(bareEngine, QStringLiteral(
        "import QtQuick\nimport QtQuick.Controls\nApplicationWindow { width: %1; height: %2; visible: true\n"
        "StackView { id: stack; anchors.fill: parent; initialItem: Page {} }\n"
        "function open() { stack.push(reader) }\nfunction close() { stack.pop() }\n"
        "property Component reader: Page { Image { anchors.fill: parent; source: picture; fillMode: Image.PreserveAspectCrop }\n"
        "ScrollView { anchors.fill: parent; TextArea { text: pageText; readOnly: true; wrapMode: Text.Wrap } } } }")
        .arg(window->width()).arg(window->height()).toUtf8());
    std::vector<double> bareTaps;
    for (int pass = 0; pass < tapPasses; ++pass) {
        bareTaps.push_back(toNextFrame(bareWindow, [&] { QMetaObject::invokeMethod(bareWindow, "open"); }));
        settle(500);
        QMetaObject::invokeMethod(bareWindow, "close");
        settle(300);
    }

    std::printf("flick: %zu frames, median %.2f ms (plain rows %.2f ms); tap to reader %.2f ms (bare StackView %.2f ms)\n",
                frames.size(), median(frames), median(plainFrames), median(taps), median(bareTaps));
    printTableRow({"flicking the \"All\" list, a frame", "same ListView, plain Text rows", median(frames), median(plainFrames), "ms", 1.2});
    printTableRow({"tap on a row to the reader's first frame", "push in a bare StackView", median(taps), median(bareTaps), "ms", 1.5, 16});
    AppDelegate::shared().reset();
    return 0;
}
