#pragma once

#include <QColor>
#include <QObject>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>
#include <QTemporaryDir>

#include <functional>
#include <memory>

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

// The file's bytes, or "<unreadable>" when it cannot be read (so a vanished file never equals an
// empty one).
QByteArray readFile(const QString &path);
#ifdef LARKWELLS_TEST_DIR
// A file of the test folder's golden/ set, which the written files must match byte for byte.
inline QString goldenPath(const QString &name) { return QStringLiteral(LARKWELLS_TEST_DIR "/golden/") + name; }
inline QByteArray golden(const QString &name) { return readFile(goldenPath(name)); }
#endif
// Writes (replaces) the whole file; false when any byte fails.
bool writeFile(const QString &path, const QByteArray &bytes);
// Runs the statements on the SQLite file through a connection of its own, as another program
// would: the first column of the last statement's rows, or "failed: ..." naming the failing one.
QStringList sqlRun(const QString &path, const QStringList &statements);
// Stores each preference as given.
void setPreferences(const QVariantMap &preferences);

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
// The same in the window.
QQuickItem *findVisibleItem(QQuickWindow *window, const QString &objectName);
// The visible item with this name once it has stopped moving (slid open, laid out), or null
// after 15 s.
QQuickItem *waitForItem(QQuickWindow *window, const QString &objectName);
// A mouse click at the item's centre.
void click(QQuickWindow *window, QQuickItem *item);
// Clicks the named item once it has settled, then waits for the screen `page` on top; false when
// either never comes.
bool clickTo(QQuickWindow *window, const QString &objectName, const QString &page);
// The screen on top, once the stack has stopped moving; null while it moves.
QQuickItem *currentScreen(QQuickWindow *window);
// The object name of the screen on top, once the stack has stopped moving; empty while it moves.
QString topPage(QQuickWindow *window);
// The application's window past its first launch, once the cover shows; null when it fails.
QQuickWindow *loadLaunchedWindow(QQmlApplicationEngine &engine);
// The application's window past its first launch, with `page` opened from the cover's menu
// button `menuButton`; null when any step fails.
QQuickWindow *openFromCover(QQmlApplicationEngine &engine, const QString &menuButton, const QString &page);

class QQmlEngine;
// A window made from `body`, its root object written after the QtQuick, QtQuick.Controls and
// Larkwells imports, once it is on screen; null, with the QML errors reported, when it fails.
std::unique_ptr<QQuickWindow> qmlWindow(QQmlEngine &engine, const QString &body);

// Takes the URLs of `schemes` that the app asks the desktop to open, in place of the desktop's
// own handlers, for as long as it lives.
class OpenedUrls : public QObject
{
    Q_OBJECT
public:
    explicit OpenedUrls(const QStringList &schemes);
    ~OpenedUrls() override;
    QList<QUrl> urls;
public Q_SLOTS:
    void open(const QUrl &url) { urls.append(url); }
private:
    QStringList m_schemes;
};

// The file dialog once it is on screen, showing `folder`; null when none shows.
QObject *fileDialogShowing(QQuickWindow *window, const QString &folder);

// Once the file dialog is on screen, chooses `file` in it and presses its button, as a user would.
bool chooseInFileDialog(QQuickWindow *window, const QString &file);
// Types the text key by key into whatever has the focus.
void typeText(QQuickWindow *window, const QString &text);

// Answers every alert showing, the first button each time.
void dismissAlerts();

class QImage;
// How many pixels of the image satisfy `counted`.
int countPixels(const QImage &image, const std::function<bool(QRgb)> &counted);

class QTextDocument;
// The pieces of the document's text set on a yellow background (the marked matches).
QStringList markedFragments(const QTextDocument &document);
