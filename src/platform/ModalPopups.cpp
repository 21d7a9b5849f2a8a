#include "ModalPopups.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>

namespace {
// The Accessible attached type is private to Qt Quick; its meta-object is public.
QObject *accessibleOf(QQuickItem *item, bool create)
{
    static const QMetaObject *meta = QMetaType::fromName("QQuickAccessibleAttached*").metaObject();
    return meta ? qmlAttachedPropertiesObject(item, qmlAttachedPropertiesFunction(item, meta), create) : nullptr;
}
}

ModalPopups &ModalPopups::shared()
{
    static ModalPopups *popups = new ModalPopups;
    return *popups;
}

ModalPopups *ModalPopups::create(QQmlEngine *, QJSEngine *)
{
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    return &shared();
}

void ModalPopups::watch(QObject *popup)
{
    if (!popup || !connect(popup, SIGNAL(visibleChanged()), this, SLOT(followPopup()), Qt::UniqueConnection))
        return;
    connect(popup, &QObject::destroyed, this, &ModalPopups::refreshLater);
    if (popup->property("visible").toBool()) {
        m_open.append(popup);
        refreshLater();
    }
}

void ModalPopups::followPopup()
{
    QObject *popup = sender();
    m_open.removeAll(popup);
    if (popup->property("visible").toBool())
        m_open.append(popup);
    refreshLater();
}

// After the popup has settled in its overlay, once for however many changes came together.
void ModalPopups::refreshLater()
{
    if (m_refreshing)
        return;
    m_refreshing = true;
    QMetaObject::invokeMethod(this, &ModalPopups::refresh, Qt::QueuedConnection);
}

void ModalPopups::refresh()
{
    m_refreshing = false;
    for (QObject *accessible : std::as_const(m_ignored))
        if (accessible)
            accessible->setProperty("ignored", false);
    m_ignored.clear();
    m_open.removeAll(nullptr);
    QQuickItem *topModal = nullptr;
    for (QObject *popup : std::as_const(m_open)) {
        // The popup's own item is the one its overlay holds, above its content.
        auto *item = popup->property("contentItem").value<QQuickItem *>();
        while (item && item->parentItem() && !item->parentItem()->inherits("QQuickOverlay"))
            item = item->parentItem();
        if (!item || !item->window())
            continue;
        // A popup that is no Dialog has no name of its own: it goes by its title.
        const QString title = popup->property("title").toString();
        if (QObject *accessible = title.isEmpty() ? nullptr : accessibleOf(item, true))
            accessible->setProperty("name", title);
        if (popup->property("modal").toBool())
            topModal = item;
    }
    if (topModal)
        cover(topModal->window()->contentItem(), topModal);
}

void ModalPopups::cover(QQuickItem *item, const QQuickItem *spared)
{
    if (item == spared)
        return;
    // Only items already accessible have an Accessible object.
    QObject *accessible = accessibleOf(item, false);
    if (accessible && !accessible->property("ignored").toBool()) {
        // An ignored item is left out of the tree, but what a screen reader already holds of it
        // would still act: that goes, and a new one is made only once it is shown again.
        accessible->setProperty("ignored", true);
        m_ignored.append(accessible);
        if (QAccessible::isActive())
            if (QAccessibleInterface *face = QAccessible::queryAccessibleInterface(item))
                QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(face));
    }
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        cover(child, spared);
}
