#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QQmlEngine>

class QQuickItem;

// Taps never reach what lies behind an open modal popup (its overlay takes them), and neither
// may a screen reader. While one is open, every item outside the topmost modal popup leaves the
// accessibility tree, and what a screen reader found there before goes dead, so it can neither
// be read nor pressed; once the popup closes it all comes back. Nothing is disabled or hidden:
// the screen behind keeps its look, its keyboard focus and its state. A popup with a `title`
// is named by it, modal or not (a docked picker leaves the screen behind in reach).
class ModalPopups : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    static ModalPopups &shared();
    static ModalPopups *create(QQmlEngine *, QJSEngine *);

    // Each popup reports itself once made; it counts while it is visible.
    Q_INVOKABLE void watch(QObject *popup);

private Q_SLOTS:
    void followPopup();

private:
    explicit ModalPopups(QObject *parent = nullptr) : QObject(parent) {}
    void refreshLater();
    void refresh();
    void cover(QQuickItem *item, const QQuickItem *spared);

    QList<QPointer<QObject>> m_open; // in the order they opened: the last is on top
    QList<QPointer<QObject>> m_ignored; // the Accessible objects made ignored here
    bool m_refreshing = false;
};
