#include "TestSupport.h"

#include "AppDelegate.h"
#include "Bundle.h"
#include "Clock.h"
#include "FatalError.h"
#include "Log.h"
#include "PersistentContainer.h"
#include "Selection.h"
#include "UserDefaults.h"

#include <QDir>
#include <QFile>
#include <QQmlExtensionPlugin>
#include <QQuickItem>

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
}

TestEnvironment::~TestEnvironment()
{
    AppDelegate::shared().reset();
    Log::setSink({});
    Clock::set({});
}

void TestEnvironment::addBundleFile(const QString &name, const QByteArray &bytes)
{
    QFile file(QDir(m_bundle.path()).filePath(name));
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    Bundle::setResourceDirectory(m_bundle.path());
}

QString TestEnvironment::sourceResources()
{
    return QStringLiteral(LARKWELLS_RESOURCES_DIR);
}

QQuickItem *findItem(QQuickItem *root, const QString &objectName)
{
    if (!root)
        return nullptr;
    if (root->objectName() == objectName)
        return root;
    for (QQuickItem *child : root->childItems()) {
        if (QQuickItem *found = findItem(child, objectName))
            return found;
    }
    return nullptr;
}

QQuickItem *findVisibleItem(QQuickItem *root, const QString &objectName)
{
    if (!root || !root->isVisible())
        return nullptr;
    if (root->objectName() == objectName)
        return root;
    for (QQuickItem *child : root->childItems()) {
        if (QQuickItem *found = findVisibleItem(child, objectName))
            return found;
    }
    return nullptr;
}
