#include "TestSupport.h"

#include "Alerts.h"
#include "AppDelegate.h"
#include "Bundle.h"
#include "Clock.h"
#include "CoverCache.h"
#include "FatalError.h"
#include "FileChooserLook.h"
#include "Log.h"
#include "Mail.h"
#include "PersistentContainer.h"
#include "Selection.h"
#include "Sharing.h"
#include "SpeechDouble.h"
#include "UserDefaults.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QQmlExtensionPlugin>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

Q_IMPORT_QML_PLUGIN(LarkwellsPlugin)

void importLarkwellsModule()
{
    // The plugin import above lives in this file; calling in keeps it linked.
}

TestEnvironment::TestEnvironment()
{
    FatalError::setThrowing(true);
    Log::setSink([this](const QString &line) { logLines.append(line); });
    UserDefaults::setStandardDirectory(m_data.path());
    PersistentContainer::setDefaultDirectory(m_data.path());
    AppDelegate::shared().reset();
    Bundle::setResourceDirectory({});
    Selection::shared().clear();
    Speech::install(std::make_unique<SpeechDouble>()); // nothing is heard while tests run
}

TestEnvironment::~TestEnvironment()
{
    // No write may still be landing in the folder as it goes.
    UserDefaults::standard().synchronize();
    CoverCache::finishDrawing();
    AppDelegate::shared().reset();
    Log::setSink({});
    Clock::set({});
    // What a test told the desktop could do goes with it.
    Sharing::shared().setCanSendTextForTesting(std::nullopt);
    Sharing::shared().setCanSendMailForTesting(std::nullopt);
    Mail::shared().setCanSendMailForTesting(std::nullopt);
    Mail::shared().setLauncherForTesting({});
}

void TestEnvironment::addBundleFile(const QString &name, const QByteArray &bytes)
{
    writeFile(m_bundle.filePath(name), bytes);
    Bundle::setResourceDirectory(m_bundle.path());
}

QString TestEnvironment::sourceResources()
{
    return QStringLiteral(LARKWELLS_RESOURCES_DIR);
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size() && file.flush();
}

QStringList sqlRun(const QString &path, const QStringList &statements)
{
    const QString name = QStringLiteral("sqlRun");
    QStringList values;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        database.setDatabaseName(path);
        QSqlQuery query(database);
        for (const QString &statement : statements) {
            values.clear();
            if (!database.isOpen() && !database.open())
                return {QStringLiteral("failed: open ") + database.lastError().text()};
            if (!query.exec(statement)) {
                values = {QStringLiteral("failed: ") + statement + QStringLiteral(": ") + query.lastError().text()};
                break;
            }
            while (query.next())
                values.append(query.value(0).toString());
        }
    }
    QSqlDatabase::removeDatabase(name);
    return values;
}

void setPreferences(const QVariantMap &preferences)
{
    for (auto it = preferences.begin(); it != preferences.end(); ++it)
        UserDefaults::standard().set(it.key(), it.value());
}

QString fatalStop(const std::function<void()> &action)
{
    try {
        action();
    } catch (const FatalErrorException &stop) {
        return stop.message();
    }
    return {};
}

static QQuickItem *find(QQuickItem *root, const QString &objectName, bool visibleOnly)
{
    if (!root || (visibleOnly && !root->isVisible()))
        return nullptr;
    if (root->objectName() == objectName)
        return root;
    for (QQuickItem *child : root->childItems()) {
        if (QQuickItem *found = find(child, objectName, visibleOnly))
            return found;
    }
    return nullptr;
}

QQuickItem *findItem(QQuickItem *root, const QString &objectName)
{
    return find(root, objectName, false);
}

QQuickItem *findVisibleItem(QQuickItem *root, const QString &objectName)
{
    return find(root, objectName, true);
}

QQuickItem *findVisibleItem(QQuickWindow *window, const QString &objectName)
{
    return find(window->contentItem(), objectName, true);
}

QQuickItem *waitForItem(QQuickWindow *window, const QString &objectName)
{
    QQuickItem *item = nullptr;
    QRectF last;
    const bool settled = QTest::qWaitFor([&] {
        item = findVisibleItem(window->contentItem(), objectName);
        if (!item)
            return false;
        const QRectF now = item->mapRectToScene(item->boundingRect());
        const bool still = now == last && !now.isEmpty() && item->opacity() == 1;
        last = now;
        if (!still)
            QTest::qWait(40);
        return still;
    }, 15000);
    return settled ? item : nullptr;
}

void click(QQuickWindow *window, QQuickItem *item)
{
    QVERIFY(item);
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(window, Qt::LeftButton, {}, centre.toPoint());
}

bool clickTo(QQuickWindow *window, const QString &objectName, const QString &page)
{
    QQuickItem *item = waitForItem(window, objectName);
    if (!item)
        return false;
    click(window, item);
    return QTest::qWaitFor([&] { return topPage(window) == page; });
}

QQuickItem *currentScreen(QQuickWindow *window)
{
    auto *stack = findItem(window->contentItem(), QStringLiteral("stack"));
    if (!stack || stack->property("busy").toBool())
        return nullptr;
    return stack->property("currentItem").value<QQuickItem *>();
}

QString topPage(QQuickWindow *window)
{
    const QQuickItem *screen = currentScreen(window);
    return screen ? screen->objectName() : QString();
}

QQuickWindow *loadMainWindow(QQmlApplicationEngine &engine)
{
    importLarkwellsModule();
    engine.addImportPath(QStringLiteral("qrc:/qt/qml")); // not a default import path before Qt 6.5
    FileChooserLook::install(engine);
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Larkwells/app/Main.qml")));
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    return window && QTest::qWaitForWindowExposed(window) ? window : nullptr;
}

QQuickWindow *loadLaunchedWindow(QQmlApplicationEngine &engine)
{
    UserDefaults::standard().set(QStringLiteral("hasBeenLaunchedBeforeFlag"), true);
    QQuickWindow *window = loadMainWindow(engine);
    return window && waitForItem(window, QStringLiteral("ControlButton")) ? window : nullptr;
}

QQuickWindow *openFromCover(QQmlApplicationEngine &engine, const QString &menuButton, const QString &page)
{
    QQuickWindow *window = loadLaunchedWindow(engine);
    if (!window)
        return nullptr;
    for (const QString &button : {QStringLiteral("ControlButton"), menuButton}) {
        QQuickItem *item = waitForItem(window, button);
        if (!item)
            return nullptr;
        click(window, item);
    }
    return QTest::qWaitFor([&] { return topPage(window) == page; }) ? window : nullptr;
}

std::unique_ptr<QQuickWindow> qmlWindow(QQmlEngine &engine, const QString &body)
{
    importLarkwellsModule();
    engine.addImportPath(QStringLiteral("qrc:/qt/qml")); // not a default import path before Qt 6.5
    QQmlComponent component(&engine);
    component.setData((QStringLiteral("import QtQuick\nimport QtQuick.Controls\nimport Larkwells\n") + body).toUtf8(),
                      QUrl(QStringLiteral("qrc:/test/Window.qml")));
    QObject *root = component.create();
    std::unique_ptr<QQuickWindow> window(qobject_cast<QQuickWindow *>(root));
    if (!window) {
        delete root;
        qWarning().noquote() << "no window:" << component.errorString();
        return nullptr;
    }
    return QTest::qWaitForWindowExposed(window.get()) ? std::move(window) : nullptr;
}

OpenedUrls::OpenedUrls(const QStringList &schemes) : m_schemes(schemes)
{
    for (const QString &scheme : schemes)
        QDesktopServices::setUrlHandler(scheme, this, "open");
}

OpenedUrls::~OpenedUrls()
{
    for (const QString &scheme : std::as_const(m_schemes))
        QDesktopServices::unsetUrlHandler(scheme);
}

QObject *fileDialogShowing(QQuickWindow *window, const QString &folder)
{
    QObject *dialog = nullptr;
    const bool shown = QTest::qWaitFor([&] {
        for (QObject *object : window->findChildren<QObject *>()) {
            if (object->inherits("QQuickFileDialogImpl") && object->property("visible").toBool())
                dialog = object;
        }
        return dialog != nullptr;
    });
    return shown && dialog->setProperty("currentFolder", QUrl::fromLocalFile(folder)) ? dialog : nullptr;
}

bool chooseInFileDialog(QQuickWindow *window, const QString &file)
{
    QObject *dialog = fileDialogShowing(window, QFileInfo(file).path());
    return dialog && dialog->setProperty("selectedFile", QUrl::fromLocalFile(file)) && QMetaObject::invokeMethod(dialog, "accept");
}

void typeText(QQuickWindow *window, const QString &text)
{
    for (const QChar c : text)
        QTest::keyClick(window, c.toLatin1());
}

void dismissAlerts()
{
    while (Alerts::shared().showing())
        Alerts::shared().dismiss(0);
}

int countPixels(const QImage &image, const std::function<bool(QRgb)> &counted)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += counted(image.pixel(x, y));
    }
    return count;
}

QStringList markedFragments(const QTextDocument &document)
{
    QStringList marked;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (it.fragment().charFormat().background().color() == QColor(Qt::yellow))
                marked.append(it.fragment().text());
        }
    }
    return marked;
}
