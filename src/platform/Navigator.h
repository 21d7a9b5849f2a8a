#pragma once

#include <QHash>
#include <QObject>
#include <QQmlEngine>

// Moves between screens by segue identifier, the way the screen layout names its transitions.
// A segue pushes the page registered for it; an unwind pops back to the nearest page below
// that accepts the identifier, which then gets its unwind call, or, with none below, puts that
// page in place of the screen. The window does the pushing.
class Navigator : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    static Navigator &shared();
    static Navigator *create(QQmlEngine *, QJSEngine *);

    // The URL of the QML page a segue opens; empty for an unknown segue.
    Q_INVOKABLE QString pageFor(const QString &identifier) const;
    Q_INVOKABLE bool canPerform(const QString &identifier) const { return !pageFor(identifier).isEmpty(); }
    // The page an unwind returns to ("unwindToAboutSegue": the page of "AboutSegue"); empty when
    // no segue of that name has a page.
    Q_INVOKABLE QString unwindPage(const QString &identifier) const;

    // Every segue that has a screen, in a stable order.
    QStringList segues() const;

    Q_INVOKABLE void performSegue(const QString &identifier);
    Q_INVOKABLE void unwind(const QString &identifier);
    // Back to the first screen, as when the application starts.
    Q_INVOKABLE void popToRoot();

Q_SIGNALS:
    void segueRequested(const QString &identifier, const QString &page);
    void unwindRequested(const QString &identifier);
    void popToRootRequested();

private:
    explicit Navigator(QObject *parent = nullptr);
    QHash<QString, QString> m_pages;
};
