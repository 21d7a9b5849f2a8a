#include "AboutImportUndo.h"

#include "StoreSnapshots.h"

AboutImportUndo &AboutImportUndo::shared()
{
    static AboutImportUndo *undo = new AboutImportUndo;
    return *undo;
}

AboutImportUndo *AboutImportUndo::create(QQmlEngine *, QJSEngine *)
{
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    return &shared();
}

void AboutImportUndo::importStarted(const QString &snapshot)
{
    m_snapshot = snapshot;
    Q_EMIT availableChanged();
}

bool AboutImportUndo::undo()
{
    if (!StoreSnapshots::restoreArticles(m_snapshot))
        return false;
    reset();
    Q_EMIT undone();
    return true;
}

void AboutImportUndo::reset()
{
    m_snapshot.clear();
    Q_EMIT availableChanged();
}
