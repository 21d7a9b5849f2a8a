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

// Room around the box for springs that overshoot and for the pressed halo, as a share of the box.
constexpr qreal Overdraw = 0.3;

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
    }

private:
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

QColor M13Checkbox::tintColor() const
{
    return m_controller->tintColor();
}

void M13Checkbox::setTintColor(const QColor &color)
{
    if (color == tintColor())
        return;
    m_controller->setTintColor(color);
    Q_EMIT appearanceChanged();
}

QColor M13Checkbox::secondaryTintColor() const
{
    return m_controller->secondaryTintColor().value_or(QColor());
}

void M13Checkbox::setSecondaryTintColor(const QColor &color)
{
    if (color == secondaryTintColor())
        return;
    m_controller->setSecondaryTintColor(color.isValid() ? std::optional(color) : std::nullopt);
    Q_EMIT appearanceChanged();
}

QColor M13Checkbox::secondaryCheckmarkTintColor() const
{
    return m_controller->secondaryCheckmarkTintColor().value_or(QColor());
}

void M13Checkbox::setSecondaryCheckmarkTintColor(const QColor &color)
{
    if (color == secondaryCheckmarkTintColor())
        return;
    m_controller->setSecondaryCheckmarkTintColor(color.isValid() ? std::optional(color) : std::nullopt);
    Q_EMIT appearanceChanged();
}

bool M13Checkbox::hideBox() const
{
    return m_controller->hideBox();
}

void M13Checkbox::setHideBox(bool hide)
{
    if (hide == hideBox())
        return;
    m_controller->setHideBox(hide);
    Q_EMIT appearanceChanged();
}

bool M13Checkbox::enableMorphing() const
{
    return m_controller->enableMorphing();
}

void M13Checkbox::setEnableMorphing(bool enable)
{
    if (enable == enableMorphing())
        return;
    m_controller->setEnableMorphing(enable);
    Q_EMIT appearanceChanged();
}

M13Checkbox::MarkType M13Checkbox::markType() const
{
    return m_controller->markType();
}

void M13Checkbox::setMarkType(MarkType type)
{
    if (type == markType())
        return;
    m_controller->setMarkType(type);
    Q_EMIT appearanceChanged();
}

M13Checkbox::BoxType M13Checkbox::boxType() const
{
    return m_controller->pathGenerator().boxType();
}

void M13Checkbox::setBoxType(BoxType type)
{
    if (type == boxType())
        return;
    m_controller->pathGenerator().setBoxType(type);
    m_controller->resetLayers();
    Q_EMIT appearanceChanged();
}

qreal M13Checkbox::checkmarkLineWidth() const
{
    return m_controller->pathGenerator().checkmarkLineWidth();
}

void M13Checkbox::setCheckmarkLineWidth(qreal width)
{
    m_checkmarkLineWidthSet = true;
    if (width == checkmarkLineWidth())
        return;
    m_controller->pathGenerator().setCheckmarkLineWidth(width);
    m_controller->resetLayers();
    Q_EMIT appearanceChanged();
}

qreal M13Checkbox::boxLineWidth() const
{
    return m_controller->pathGenerator().boxLineWidth();
}

void M13Checkbox::setBoxLineWidth(qreal width)
{
    if (width == boxLineWidth())
        return;
    m_controller->pathGenerator().setBoxLineWidth(width);
    m_controller->resetLayers();
    Q_EMIT appearanceChanged();
}

qreal M13Checkbox::cornerRadius() const
{
    return m_controller->pathGenerator().cornerRadius();
}

void M13Checkbox::setCornerRadius(qreal radius)
{
    m_cornerRadiusSet = true;
    if (radius == cornerRadius())
        return;
    m_controller->pathGenerator().setCornerRadius(radius);
    m_controller->resetLayers();
    Q_EMIT appearanceChanged();
}

qreal M13Checkbox::animationDuration() const
{
    return m_controller->animationGenerator().animationDuration();
}

void M13Checkbox::setAnimationDuration(qreal seconds)
{
    if (seconds == animationDuration())
        return;
    m_controller->animationGenerator().setAnimationDuration(seconds);
    Q_EMIT appearanceChanged();
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
    if (recognizer->state() == State::Ended) {
        toggleCheckState(true);
        Q_EMIT valueChanged();
    }
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
    // A screen reader's toggle stands for a completed touch.
    toggleCheckState(true);
    Q_EMIT valueChanged();
}
