#include "M13Checkbox.h"

#include "M13CheckboxController.h"

#include <QAccessible>
#include <QMetaEnum>
#include <QPainter>
#include <QQuickPaintedItem>
#include <QtQml/qqml.h>

using namespace Qt::StringLiterals;

namespace {

template <typename Enum>
QString enumText(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(int(value)));
}

template <typename Enum>
std::optional<Enum> enumFromText(const QString &text)
{
    const QMetaEnum meta = QMetaEnum::fromType<Enum>();
    for (int i = 0; i < meta.keyCount(); ++i) {
        if (text == QLatin1StringView(meta.key(i)))
            return Enum(meta.value(i));
    }
    return std::nullopt;
}

// An invalid colour stands for none.
std::optional<QColor> orNone(const QColor &color)
{
    return color.isValid() ? std::optional(color) : std::nullopt;
}

// Room around the box for springs that overshoot, the pressed halo and the focus ring, as a share
// of the box.
constexpr qreal Overdraw = 0.3;

// The keyboard focus ring: the accent colour, a thin line just clear of the box.
const QColor FocusRingColor(0x0d, 0x26, 0x99);
constexpr qreal FocusRingWidth = 2;
constexpr qreal FocusRingGap = 2;

} // namespace

// Paints the layers. It reaches past the check box on every side so that motion overshooting
// the box is not cut off, while touches still go by the check box's own bounds.
class M13CheckboxCanvas : public QQuickPaintedItem
{
public:
    explicit M13CheckboxCanvas(M13Checkbox *box) : QQuickPaintedItem(box), m_box(box)
    {
        setAntialiasing(true);
        setAcceptedMouseButtons(Qt::NoButton);
    }

    void paint(QPainter *painter) override
    {
        const M13CheckboxController *controller = m_box->controller();
        const qreal size = controller->pathGenerator().size();
        if (size <= 0)
            return;
        painter->setRenderHint(QPainter::Antialiasing);
        if (!m_box->isEnabled())
            painter->setOpacity(0.4);
        painter->translate(size * Overdraw, size * Overdraw);
        painter->save();
        if (m_box->isSelected()) {
            // A soft halo and a slight give under the finger.
            const QPointF centre = controller->pathGenerator().centre();
            QColor halo = controller->tintColor();
            halo.setAlphaF(0.14f);
            painter->setPen(Qt::NoPen);
            painter->setBrush(halo);
            painter->drawEllipse(centre, size * (0.5 + Overdraw * 0.75), size * (0.5 + Overdraw * 0.75));
            painter->translate(centre);
            painter->scale(0.92, 0.92);
            painter->translate(-centre);
        }
        controller->paint(painter);
        painter->restore();
        if (m_box->hasVisualFocus())
            paintFocusRing(painter, *controller);
    }

private:
    // Drawn at rest, outside the pressed give, following the box's shape.
    static void paintFocusRing(QPainter *painter, const M13CheckboxController &controller)
    {
        const M13CheckboxPathGenerator &generator = controller.pathGenerator();
        const qreal outset = FocusRingGap + FocusRingWidth / 2;
        const QRectF ring = QRectF(0, 0, generator.size(), generator.size()).adjusted(-outset, -outset, outset, outset);
        painter->setPen(QPen(FocusRingColor, FocusRingWidth));
        painter->setBrush(Qt::NoBrush);
        if (generator.boxType() == M13Checkbox::BoxType::Circle)
            painter->drawEllipse(ring);
        else
            painter->drawRoundedRect(ring, generator.cornerRadius() + outset, generator.cornerRadius() + outset);
    }

    M13Checkbox *m_box;
};

std::optional<M13Checkbox::Animation> M13Checkbox::Animation::fromText(const QString &text)
{
    for (const Animation &animation : all()) {
        if (animation.text() == text)
            return animation;
    }
    return std::nullopt;
}

QList<M13Checkbox::Animation> M13Checkbox::Animation::all()
{
    QList<Animation> result;
    for (const auto style : {AnimationStyle::Stroke, AnimationStyle::Fill}) {
        result << bounce(style) << expand(style) << flat(style) << fade(style) << dot(style);
    }
    result << stroke() << fill() << spiral();
    return result;
}

QString M13Checkbox::Animation::text() const
{
    const QString style = enumText(m_style);
    switch (m_kind) {
    case Kind::Bounce:
        return u"Bounce"_s + style;
    case Kind::Expand:
        return u"Expand"_s + style;
    case Kind::Flat:
        return u"Flat"_s + style;
    case Kind::Fade:
        return u"Fade"_s + style;
    case Kind::Dot:
        return u"Dot"_s + style;
    case Kind::Stroke:
        return u"Stroke"_s;
    case Kind::Fill:
        return u"Fill"_s;
    case Kind::Spiral:
        break;
    }
    return u"Spiral"_s;
}

M13Checkbox::M13Checkbox(QQuickItem *parent) : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    setActiveFocusOnTab(true);
    m_canvas = new M13CheckboxCanvas(this);
    m_gestureRecognizer.setAction([this](M13CheckboxGestureRecognizer *recognizer) { handleLongPress(recognizer); });
    installController(M13CheckboxController::create(m_stateChangeAnimation, this));
    setImplicitSize(28, 28);
    updateSizes();
}

M13Checkbox::~M13Checkbox() = default;

void M13Checkbox::installController(M13CheckboxController *controller)
{
    if (M13CheckboxController *old = m_controller) {
        controller->copySettings(*old);
        old->disconnect(this);
        delete old;
    }
    m_controller = controller;
    connect(controller, &M13CheckboxController::layersChanged, m_canvas, [this] { m_canvas->update(); });
    controller->resetLayers();
}

void M13Checkbox::setStateChangeAnimation(const Animation &animation)
{
    if (animation == m_stateChangeAnimation)
        return;
    m_stateChangeAnimation = animation;
    installController(M13CheckboxController::create(animation, this));
    Q_EMIT stateChangeAnimationChanged();
}

QString M13Checkbox::checkStateName(CheckState state)
{
    return enumText(state);
}

M13Checkbox::CheckState M13Checkbox::checkState() const
{
    return m_controller->state();
}

void M13Checkbox::setCheckState(CheckState state, bool animated)
{
    if (checkStateName(m_controller->state()) == checkStateName(state))
        return;
    m_controller->setState(state);
    if (!animated) {
        m_controller->resetLayers();
    } else if (m_controller->enableMorphing()) {
        m_controller->animateToState();
    } else {
        // The box may be gone by the time the mark has been taken off.
        const QPointer<M13Checkbox> self(this);
        m_controller->animateToNoMark([self] {
            if (self)
                self->m_controller->animateToState();
        });
    }
    updateAccessibleState();
    Q_EMIT checkStateChanged();
}

void M13Checkbox::toggleCheckState(bool animated)
{
    setCheckState(checkState() == CheckState::Unchecked ? CheckState::Checked : CheckState::Unchecked, animated);
}

template <typename T, typename Apply>
void M13Checkbox::changeAppearance(const T &value, const T &current, Apply apply)
{
    if (value == current)
        return;
    apply();
    Q_EMIT appearanceChanged();
}

template <typename T>
void M13Checkbox::changeGeometry(T value, T current, void (M13CheckboxPathGenerator::*set)(T))
{
    changeAppearance(value, current, [&] {
        (m_controller->pathGenerator().*set)(value);
        m_controller->resetLayers();
    });
}

QColor M13Checkbox::tintColor() const
{
    return m_controller->tintColor();
}

void M13Checkbox::setTintColor(const QColor &color)
{
    changeAppearance(color, tintColor(), [&] { m_controller->setTintColor(color); });
}

QColor M13Checkbox::secondaryTintColor() const
{
    return m_controller->secondaryTintColor().value_or(QColor());
}

void M13Checkbox::setSecondaryTintColor(const QColor &color)
{
    changeAppearance(color, secondaryTintColor(), [&] { m_controller->setSecondaryTintColor(orNone(color)); });
}

QColor M13Checkbox::secondaryCheckmarkTintColor() const
{
    return m_controller->secondaryCheckmarkTintColor().value_or(QColor());
}

void M13Checkbox::setSecondaryCheckmarkTintColor(const QColor &color)
{
    changeAppearance(color, secondaryCheckmarkTintColor(),
                     [&] { m_controller->setSecondaryCheckmarkTintColor(orNone(color)); });
}

bool M13Checkbox::hideBox() const
{
    return m_controller->hideBox();
}

void M13Checkbox::setHideBox(bool hide)
{
    changeAppearance(hide, hideBox(), [&] { m_controller->setHideBox(hide); });
}

bool M13Checkbox::enableMorphing() const
{
    return m_controller->enableMorphing();
}

void M13Checkbox::setEnableMorphing(bool enable)
{
    changeAppearance(enable, enableMorphing(), [&] { m_controller->setEnableMorphing(enable); });
}

M13Checkbox::MarkType M13Checkbox::markType() const
{
    return m_controller->markType();
}

void M13Checkbox::setMarkType(MarkType type)
{
    changeAppearance(type, markType(), [&] { m_controller->setMarkType(type); });
}

M13Checkbox::BoxType M13Checkbox::boxType() const
{
    return m_controller->pathGenerator().boxType();
}

void M13Checkbox::setBoxType(BoxType type)
{
    changeGeometry(type, boxType(), &M13CheckboxPathGenerator::setBoxType);
}

qreal M13Checkbox::checkmarkLineWidth() const
{
    return m_controller->pathGenerator().checkmarkLineWidth();
}

void M13Checkbox::setCheckmarkLineWidth(qreal width)
{
    m_checkmarkLineWidthSet = true;
    changeGeometry(width, checkmarkLineWidth(), &M13CheckboxPathGenerator::setCheckmarkLineWidth);
}

qreal M13Checkbox::boxLineWidth() const
{
    return m_controller->pathGenerator().boxLineWidth();
}

void M13Checkbox::setBoxLineWidth(qreal width)
{
    changeGeometry(width, boxLineWidth(), &M13CheckboxPathGenerator::setBoxLineWidth);
}

qreal M13Checkbox::cornerRadius() const
{
    return m_controller->pathGenerator().cornerRadius();
}

void M13Checkbox::setCornerRadius(qreal radius)
{
    m_cornerRadiusSet = true;
    changeGeometry(radius, cornerRadius(), &M13CheckboxPathGenerator::setCornerRadius);
}

qreal M13Checkbox::animationDuration() const
{
    return m_controller->animationGenerator().animationDuration();
}

void M13Checkbox::setAnimationDuration(qreal seconds)
{
    changeAppearance(seconds, animationDuration(),
                     [&] { m_controller->animationGenerator().setAnimationDuration(seconds); });
}

QString M13Checkbox::ibCheckState() const
{
    return enumText(checkState());
}

void M13Checkbox::setIBCheckState(const QString &text)
{
    if (const auto state = enumFromText<CheckState>(text))
        setCheckState(*state);
}

QString M13Checkbox::ibMarkType() const
{
    return enumText(markType());
}

void M13Checkbox::setIBMarkType(const QString &text)
{
    if (const auto type = enumFromText<MarkType>(text))
        setMarkType(*type);
}

QString M13Checkbox::ibBoxType() const
{
    return enumText(boxType());
}

void M13Checkbox::setIBBoxType(const QString &text)
{
    if (const auto type = enumFromText<BoxType>(text))
        setBoxType(*type);
}

QString M13Checkbox::ibStateChangeAnimation() const
{
    return m_stateChangeAnimation.text();
}

void M13Checkbox::setIBStateChangeAnimation(const QString &text)
{
    if (const auto animation = Animation::fromText(text))
        setStateChangeAnimation(*animation);
}

void M13Checkbox::handleLongPress(M13CheckboxGestureRecognizer *recognizer)
{
    using State = M13CheckboxGestureRecognizer::State;
    setSelected(recognizer->state() == State::Began || recognizer->state() == State::Changed);
    if (recognizer->state() == State::Ended)
        toggleByUser();
}

void M13Checkbox::toggleByUser()
{
    toggleCheckState(true);
    Q_EMIT valueChanged();
}

QRectF M13Checkbox::boxRect() const
{
    const qreal size = std::min(width(), height());
    return {(width() - size) / 2, (height() - size) / 2, size, size};
}

void M13Checkbox::setSelected(bool selected)
{
    if (selected == m_selected)
        return;
    m_selected = selected;
    m_canvas->update();
    updateAccessibleState();
    Q_EMIT selectedChanged();
}

void M13Checkbox::updateSizes()
{
    const QRectF box = boxRect();
    const qreal size = box.width();
    M13CheckboxPathGenerator &generator = m_controller->pathGenerator();
    generator.setSize(size);
    // Until the owner picks them, the line and corners keep their proportions at any size.
    if (!m_checkmarkLineWidthSet)
        generator.setCheckmarkLineWidth(std::max(1.5, size / 12));
    if (!m_cornerRadiusSet)
        generator.setCornerRadius(size / 5);
    const qreal margin = size * Overdraw;
    m_canvas->setPosition(box.topLeft() - QPointF(margin, margin));
    m_canvas->setSize({size + 2 * margin, size + 2 * margin});
    m_controller->resetLayers();
}

void M13Checkbox::componentComplete()
{
    QQuickItem::componentComplete();
    attachAccessibility();
}

void M13Checkbox::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        updateSizes();
}

void M13Checkbox::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    // Boxes made in C++ get their accessible face once they are in a scene.
    if (change == ItemSceneChange && value.window && isComponentComplete())
        attachAccessibility();
    if (change == ItemEnabledHasChanged)
        m_canvas->update();
}

void M13Checkbox::mousePressEvent(QMouseEvent *event)
{
    m_gestureRecognizer.touchesBegan(event->position());
    event->accept();
}

void M13Checkbox::mouseMoveEvent(QMouseEvent *event)
{
    m_gestureRecognizer.touchesMoved(event->position());
    event->accept();
}

void M13Checkbox::mouseReleaseEvent(QMouseEvent *event)
{
    m_gestureRecognizer.touchesEnded(event->position(), QRectF(0, 0, width(), height()));
    event->accept();
}

void M13Checkbox::mouseUngrabEvent()
{
    m_gestureRecognizer.touchesCancelled();
}

void M13Checkbox::touchEvent(QTouchEvent *event)
{
    if (event->points().isEmpty())
        return;
    // The first finger decides; others resting on the box change nothing.
    const QEventPoint &point = event->points().first();
    switch (event->type()) {
    case QEvent::TouchBegin:
        m_gestureRecognizer.touchesBegan(point.position());
        break;
    case QEvent::TouchUpdate:
        if (point.state() == QEventPoint::Released)
            m_gestureRecognizer.touchesEnded(point.position(), QRectF(0, 0, width(), height()));
        else
            m_gestureRecognizer.touchesMoved(point.position());
        break;
    case QEvent::TouchEnd:
        m_gestureRecognizer.touchesEnded(point.position(), QRectF(0, 0, width(), height()));
        break;
    case QEvent::TouchCancel:
        m_gestureRecognizer.touchesCancelled();
        break;
    default:
        break;
    }
    event->accept();
}

void M13Checkbox::touchUngrabEvent()
{
    m_gestureRecognizer.touchesCancelled();
}

void M13Checkbox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space || event->modifiers() != Qt::NoModifier) {
        event->ignore();
        return;
    }
    // Space is a tap in the middle of the box: down on press, up on release.
    if (!event->isAutoRepeat() && !m_spaceHeld) {
        m_spaceHeld = true;
        m_gestureRecognizer.touchesBegan(boxRect().center());
    }
    event->accept();
}

void M13Checkbox::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space) {
        event->ignore();
        return;
    }
    if (!event->isAutoRepeat() && m_spaceHeld) {
        m_spaceHeld = false;
        m_gestureRecognizer.touchesEnded(boxRect().center(), QRectF(0, 0, width(), height()));
    }
    event->accept();
}

void M13Checkbox::focusInEvent(QFocusEvent *event)
{
    QQuickItem::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    setVisualFocus(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
                   || reason == Qt::ShortcutFocusReason);
}

void M13Checkbox::focusOutEvent(QFocusEvent *event)
{
    QQuickItem::focusOutEvent(event);
    setVisualFocus(false);
    // Space held while focus moves away must not toggle a box the user has left.
    if (m_spaceHeld) {
        m_spaceHeld = false;
        m_gestureRecognizer.touchesCancelled();
    }
}

void M13Checkbox::setVisualFocus(bool visualFocus)
{
    if (visualFocus == m_visualFocus)
        return;
    m_visualFocus = visualFocus;
    m_canvas->update();
    Q_EMIT visualFocusChanged();
}

void M13Checkbox::attachAccessibility()
{
    if (m_accessible)
        return;
    // The Accessible attached type is private to Qt Quick; its meta-object is public, and that is
    // all that is needed to set the role and follow its actions.
    const QMetaObject *meta = QMetaType::fromName("QQuickAccessibleAttached*").metaObject();
    if (!meta)
        return;
    QObject *attached = qmlAttachedPropertiesObject(this, qmlAttachedPropertiesFunction(this, meta), true);
    if (!attached)
        return;
    m_accessible = attached;
    attached->setProperty("role", QVariant::fromValue(QAccessible::CheckBox));
    attached->setProperty("checkable", true);
    connect(attached, SIGNAL(toggleAction()), this, SLOT(accessibleToggle()));
    connect(attached, SIGNAL(pressAction()), this, SLOT(accessibleToggle()));
    updateAccessibleState();
}

void M13Checkbox::updateAccessibleState()
{
    if (!m_accessible)
        return;
    m_accessible->setProperty("checked", checkState() == CheckState::Checked);
    m_accessible->setProperty("checkStateMixed", checkState() == CheckState::Mixed);
    m_accessible->setProperty("pressed", m_selected);
}

void M13Checkbox::accessibleToggle()
{
    // A screen reader still reaches boxes that cannot be touched; those refuse.
    if (!isVisible() || !isEnabled())
        return;
    // Otherwise its toggle stands for a completed touch.
    toggleByUser();
}
