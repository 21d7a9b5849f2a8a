#pragma once

#include "AboutSeeding.h"
#include "Appearance.h"
#include "Entities.h"

#include <QObject>
#include <QQmlEngine>

// Lists the about articles by name and hands the chosen one to the article screen. The first
// visit on a device fills the table from the shipped about file.
class AboutTableViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QStringList AboutNames READ AboutNames NOTIFY AboutListChanged)
    Q_PROPERTY(ListAppearance *appearance READ appearance CONSTANT)

public:
    explicit AboutTableViewController(QObject *parent = nullptr);

    QString title() const;
    // The rows' texts: each article's name, empty when it has none.
    QStringList AboutNames() const;
    const QList<About *> &AboutList() const { return m_AboutList; }
    ListAppearance *appearance() { return &m_appearance; }

    Q_INVOKABLE void viewDidLoad();
    // An article screen or the import came back: the list is fetched again.
    Q_INVOKABLE void unwindToAboutSegue();
    Q_INVOKABLE void unwindToMain();
    Q_INVOKABLE void didSelectRowAt(int row);
    Q_INVOKABLE void NewArticle();

Q_SIGNALS:
    void AboutListChanged();

private:
    void seedOnFirstVisit();
    void fetch();

    ListAppearance m_appearance;
    AboutSeeding m_seeding;
    QList<About *> m_AboutList;
};
