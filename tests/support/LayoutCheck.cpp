#include "LayoutCheck.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace {
// A pixel of slack: anti-aliased borders and rounded positions touch without overlapping.
constexpr qreal tolerance = 1.5;

struct Control
{
    QQuickItem *item;
    QRectF scene;   // where the control is laid out
    QRectF visible; // the part not clipped away by a scrolling parent
};

bool isControlRole(QAccessible::Role role)
{
    using enum QAccessible::Role;
    static const QList<QAccessible::Role> roles{Button,   CheckBox,   RadioButton, ComboBox,       SpinBox, Slider,  Dial,
                                                EditableText, PageTab, ButtonMenu, ButtonDropDown, Link,    ListItem};
    return roles.contains(role);
}

bool shown(const QQuickItem *item)
{
    for (const QQuickItem *it = item; it; it = it->parentItem()) {
        if (it->opacity() <= 0.01)
            return false;
    }
    return item->isVisible() && item->isEnabled();
}

bool isControl(QQuickItem *item)
{
    if (item->inherits("QQuickPage")) // a screen presents itself as a tab, but holds the controls
        return false;
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
    return accessible && isControlRole(accessible->role());
}

QString nameOf(QQuickItem *item)
{
    if (!item->objectName().isEmpty())
        return item->objectName();
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
    const QString name = accessible ? accessible->text(QAccessible::Name) : QString();
    return name.isEmpty() ? u"<unnamed %1>"_s.arg(QString::fromLatin1(item->metaObject()->className())) : u"\"%1\""_s.arg(name);
}

QString describe(const Control &control)
{
    const QRect r = control.scene.toRect();
    return u"%1 [%2,%3 %4x%5]"_s.arg(nameOf(control.item)).arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

QRectF sceneRect(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

bool fits(const QRectF &inner, const QRectF &outer)
{
    return outer.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(inner);
}

void collect(QQuickItem *item, QRectF clip, QList<Control> &controls)
{
    if (!shown(item))
        return;
    if (item->clip())
        clip &= sceneRect(item);
    if (isControl(item))
        controls.append({item, sceneRect(item), sceneRect(item) & clip});
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        collect(child, clip, controls);
}

// Whether the rectangle `scene` of `item` can be brought inside the window: it already is, or it lies
// within what a flickable scrolls through and that flickable can itself be reached.
bool reachable(const QQuickItem *item, const QRectF &scene, const QRectF &window)
{
    if (fits(scene, window))
        return true;
    QQuickItem *flickable = item->parentItem();
    while (flickable && !flickable->inherits("QQuickFlickable"))
        flickable = flickable->parentItem();
    if (!flickable)
        return false;
    auto *content = flickable->property("contentItem").value<QQuickItem *>();
    const QRectF inContent = content->mapRectFromScene(scene);
    const QRectF range(flickable->property("originX").toReal(), flickable->property("originY").toReal(),
                       std::max(flickable->property("contentWidth").toReal(), flickable->width()),
                       std::max(flickable->property("contentHeight").toReal(), flickable->height()));
    return fits(inContent, range) && reachable(flickable, sceneRect(flickable), window);
}

// The popup (dialog, sheet, picker) holding `item`, or null for the screen itself. A popup
// covers the screen on purpose, so only controls of the same layer can collide.
const QQuickItem *layerOf(const QQuickItem *item)
{
    for (const QQuickItem *it = item; it->parentItem(); it = it->parentItem()) {
        if (it->parentItem()->inherits("QQuickOverlay"))
            return it;
    }
    return nullptr;
}
}

QStringList layoutFaults(QQuickWindow *window)
{
    // Stock controls tell their role only to an active screen reader.
    QAccessible::setActive(true);
    const QRectF bounds(0, 0, window->width(), window->height());
    QList<Control> controls;
    collect(window->contentItem(), bounds, controls);
    QStringList faults;
    for (const Control &control : controls) {
        if (!reachable(control.item, control.scene, bounds))
            faults.append(u"out of reach: "_s + describe(control));
    }
    for (qsizetype i = 0; i < controls.size(); ++i) {
        for (qsizetype j = i + 1; j < controls.size(); ++j) {
            const QRectF both = controls[i].visible & controls[j].visible;
            if (both.width() > tolerance && both.height() > tolerance && !controls[i].item->isAncestorOf(controls[j].item)
                && !controls[j].item->isAncestorOf(controls[i].item)
                && layerOf(controls[i].item) == layerOf(controls[j].item))
                faults.append(u"overlap: %1 and %2"_s.arg(describe(controls[i]), describe(controls[j])));
        }
    }
    return faults;
}
