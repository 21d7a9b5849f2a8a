#pragma once

#include <QObject>
#include <QQmlEngine>

// "Undo Import": after an about import in this run, puts back the articles as they were before
// it, from the copy of the store taken just before the table was emptied. Offered once: an
// undo, or a later import, replaces the offer. An import of an earlier run is not offered, so
// an old copy never overwrites articles written since.
class AboutImportUndo : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool available READ available NOTIFY availableChanged)

public:
    static AboutImportUndo &shared();
    static AboutImportUndo *create(QQmlEngine *, QJSEngine *);

    bool available() const { return !m_snapshot.isEmpty(); }
    // An import is about to empty the articles; `snapshot` holds them as they are.
    void importStarted(const QString &snapshot);
    // Restores the articles; false (and nothing changed) when the copy cannot be read.
    Q_INVOKABLE bool undo();
    // Forgets the offer (a new data folder in tests).
    void reset();

Q_SIGNALS:
    void availableChanged();
    void undone();

private:
    explicit AboutImportUndo(QObject *parent = nullptr) : QObject(parent) {}
    QString m_snapshot;
};
