#pragma once

#include <QStringList>
#include <QTemporaryDir>

#include <functional>

// A throw-away data folder for one test: its own preferences and store, log lines collected,
// fatal stops thrown as FatalErrorException. Optionally a bundle folder of the test's own.
class TestEnvironment
{
public:
    TestEnvironment();
    ~TestEnvironment();

    QString dataDirectory() const { return m_data.path(); }
    // Writes a file into a private bundle folder and makes that folder the bundle.
    void addBundleFile(const QString &name, const QByteArray &bytes);
    // The repository's own resources folder.
    static QString sourceResources();

    QStringList logLines;

private:
    QTemporaryDir m_data;
    QTemporaryDir m_bundle;
};

// The message of the fatal stop that `action` ends in; empty when it ends normally.
QString fatalStop(const std::function<void()> &action);

// Makes the Larkwells QML module available to engines in the test.
void importLarkwellsModule();

class QQuickItem;
// The first item with this object name in the visual tree below `root` (depth first).
QQuickItem *findItem(QQuickItem *root, const QString &objectName);
// The same among the items a user can see (hidden subtrees, such as covered screens, skipped).
QQuickItem *findVisibleItem(QQuickItem *root, const QString &objectName);

class QQuickWindow;
class QQmlApplicationEngine;
// The application's window as main.cpp loads it, once it is on screen; null when it fails.
QQuickWindow *loadMainWindow(QQmlApplicationEngine &engine);
// The visible item with this name once it has stopped moving (slid open, laid out), or null
// after 15 s.
QQuickItem *waitForItem(QQuickWindow *window, const QString &objectName);
// A mouse click at the item's centre.
void click(QQuickWindow *window, QQuickItem *item);
// The screen on top, once the stack has stopped moving; null while it moves.
QQuickItem *currentScreen(QQuickWindow *window);
// The object name of the screen on top, once the stack has stopped moving; empty while it moves.
QString topPage(QQuickWindow *window);
// The application's window past its first launch, with `page` opened from the cover's menu
// button `menuButton`; null when any step fails.
QQuickWindow *openFromCover(QQmlApplicationEngine &engine, const QString &menuButton, const QString &page);

// Answers every alert showing, the first button each time.
void dismissAlerts();

class QTextDocument;
// The pieces of the document's text set on a yellow background (the marked matches).
QStringList markedFragments(const QTextDocument &document);
