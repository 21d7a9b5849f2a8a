#include "M13CheckboxController.h"

#include <QPainter>

namespace {

using Motion = M13CheckboxAnimationGenerator::Motion;

// A neutral grey that still reads on white and on the paper-coloured wallpapers.
const QColor DefaultSecondaryTint(0xb4, 0xb8, 0xc2);

M13CheckboxLayer withOpacity(M13CheckboxLayer layer, qreal opacity)
{
    layer.opacity = opacity;
    return layer;
}

} // namespace

M13CheckboxController::M13CheckboxController(QObject *parent)
    : QObject(parent),
      m_pathGenerator(M13CheckboxPathGenerator::create(MarkType::Checkmark)),
      m_tintColor(0x0d, 0x26, 0x99)
{
}

M13CheckboxController *M13CheckboxController::create(const M13Checkbox::Animation &animation, QObject *parent)
{
    using Kind = M13Checkbox::Animation::Kind;
    switch (animation.kind()) {
    case Kind::Bounce:
        return new M13CheckboxBounceController(animation.style(), parent);
    case Kind::Expand:
        return new M13CheckboxExpandController(animation.style(), parent);
    case Kind::Flat:
        return new M13CheckboxFlatController(animation.style(), parent);
    case Kind::Fade:
        return new M13CheckboxFadeController(animation.style(), parent);
    case Kind::Dot:
        return new M13CheckboxDotController(animation.style(), parent);
    case Kind::Fill:
        return new M13CheckboxFillController(parent);
    case Kind::Spiral:
        return new M13CheckboxSpiralController(parent);
    case Kind::Stroke:
        break;
    }
    return new M13CheckboxStrokeController(parent);
}

void M13CheckboxController::copySettings(const M13CheckboxController &other)
{
    m_state = other.m_state;
    m_tintColor = other.m_tintColor;
    m_secondaryTintColor = other.m_secondaryTintColor;
    m_secondaryCheckmarkTintColor = other.m_secondaryCheckmarkTintColor;
    m_hideBox = other.m_hideBox;
    m_enableMorphing = other.m_enableMorphing;
    m_markType = other.m_markType;
    m_pathGenerator = M13CheckboxPathGenerator::create(m_markType);
    m_pathGenerator->copySettings(*other.m_pathGenerator);
    m_animationGenerator = other.m_animationGenerator;
}

void M13CheckboxController::setTintColor(const QColor &color)
{
    m_tintColor = color;
    resetLayers();
}

void M13CheckboxController::setSecondaryTintColor(std::optional<QColor> color)
{
    m_secondaryTintColor = color;
    resetLayers();
}

void M13CheckboxController::setSecondaryCheckmarkTintColor(std::optional<QColor> color)
{
    m_secondaryCheckmarkTintColor = color;
    resetLayers();
}

void M13CheckboxController::setHideBox(bool hide)
{
    m_hideBox = hide;
    resetLayers();
}

void M13CheckboxController::setMarkType(MarkType type)
{
    if (type == m_markType)
        return;
    auto generator = M13CheckboxPathGenerator::create(type);
    generator->copySettings(*m_pathGenerator);
    m_pathGenerator = std::move(generator);
    m_markType = type;
    resetLayers();
}

QColor M13CheckboxController::secondaryTint() const
{
    return m_secondaryTintColor.value_or(DefaultSecondaryTint);
}

QColor M13CheckboxController::markColor() const
{
    // A mark on a tinted fill is drawn light; without a box behind it, it takes the tint.
    if (fillsBox() && !m_hideBox)
        return m_secondaryCheckmarkTintColor.value_or(QColor(Qt::white));
    return m_tintColor;
}

M13CheckboxLayer M13CheckboxController::unselectedBox() const
{
    M13CheckboxLayer layer;
    layer.path = m_pathGenerator->boxPath();
    layer.strokeColor = secondaryTint();
    layer.lineWidth = m_pathGenerator->boxLineWidth();
    layer.lineCap = Qt::FlatCap;
    layer.opacity = m_hideBox ? 0 : 1;
    return layer;
}

M13CheckboxLayer M13CheckboxController::shownBox() const
{
    M13CheckboxLayer layer;
    layer.path = m_pathGenerator->boxPath();
    layer.strokeColor = m_tintColor;
    if (fillsBox()) {
        layer.fillColor = m_tintColor;
    } else {
        // A wash of the tint inside the outline reads as "on" even at a glance.
        QColor wash = m_tintColor;
        wash.setAlphaF(wash.alphaF() * 0.08f);
        layer.fillColor = wash;
    }
    layer.lineWidth = m_pathGenerator->boxLineWidth();
    layer.lineCap = Qt::FlatCap;
    layer.opacity = m_hideBox ? 0 : 1;
    return layer;
}

M13CheckboxLayer M13CheckboxController::shownMark(CheckState state) const
{
    M13CheckboxLayer layer;
    layer.path = m_pathGenerator->markPath(state);
    layer.strokeColor = markColor();
    layer.lineWidth = m_pathGenerator->markLineWidth(state);
    layer.lineCap = Qt::RoundCap;
    return layer;
}

void M13CheckboxController::resetLayers()
{
    stopTransition();
    m_boxShown = m_state != CheckState::Unchecked;
    m_markShown = m_boxShown ? std::optional(m_state) : std::nullopt;
    m_unselectedBoxLayer = withOpacity(unselectedBox(), m_boxShown ? 0 : unselectedBox().opacity);
    const M13CheckboxLayer box = shownBox();
    m_selectedBoxLayer = m_boxShown ? box : hiddenBox(box);
    const M13CheckboxLayer mark = shownMark(m_markShown.value_or(CheckState::Checked));
    m_markLayer = m_markShown ? mark : hiddenMark(mark);
    Q_EMIT layersChanged();
}

void M13CheckboxController::animateToState(std::function<void()> completion)
{
    const bool hasMark = m_state != CheckState::Unchecked;
    animateTo(hasMark, hasMark ? std::optional(m_state) : std::nullopt, std::move(completion));
}

void M13CheckboxController::animateToNoMark(std::function<void()> completion)
{
    animateTo(m_state != CheckState::Unchecked, std::nullopt, std::move(completion));
}

void M13CheckboxController::animateTo(bool boxShown, std::optional<CheckState> mark, std::function<void()> completion)
{
    const bool interrupted = isAnimating();
    stopTransition();
    QList<M13CheckboxLayerAnimation> animations;

    const M13CheckboxLayer box = shownBox();
    const M13CheckboxLayer boxTarget = boxShown ? box : hiddenBox(box);
    if (boxShown != m_boxShown) {
        const M13CheckboxLayerAnimation in = boxAppearance(&m_selectedBoxLayer, hiddenBox(box), box);
        animations.append((boxShown ? in : in.reversed()).startingFrom(m_selectedBoxLayer));
        // The grey outline gives way once the selected box covers it, and is back before it goes.
        const M13CheckboxLayer outline = unselectedBox();
        const M13CheckboxLayerAnimation cover{&m_unselectedBoxLayer,
                                              {{0.7, outline}, {0.9, withOpacity(outline, 0)}}};
        animations.append((boxShown ? cover : cover.reversed()).startingFrom(m_unselectedBoxLayer));
    } else if (interrupted) {
        animations.append(m_animationGenerator.morph(&m_selectedBoxLayer, m_selectedBoxLayer, boxTarget));
        const M13CheckboxLayer outline = unselectedBox();
        animations.append(m_animationGenerator.morph(&m_unselectedBoxLayer, m_unselectedBoxLayer,
                                                     withOpacity(outline, boxShown ? 0 : outline.opacity)));
    }

    if (mark && m_markShown && *mark != *m_markShown) {
        animations.append(m_animationGenerator.morph(&m_markLayer, m_markLayer, shownMark(*mark), markMorphMotion()));
    } else if (mark && !m_markShown) {
        const M13CheckboxLayer shown = shownMark(*mark);
        M13CheckboxLayerAnimation in = markAppearance(&m_markLayer, hiddenMark(shown), shown);
        // From rest the mark starts hidden in its new shape; cut short, it carries on from where it is.
        animations.append(interrupted ? in.startingFrom(m_markLayer) : in);
    } else if (!mark && m_markShown) {
        const M13CheckboxLayer shown = shownMark(*m_markShown);
        animations.append(markAppearance(&m_markLayer, hiddenMark(shown), shown).reversed().startingFrom(m_markLayer));
    } else if (interrupted) {
        const M13CheckboxLayer shown = shownMark(mark.value_or(CheckState::Checked));
        animations.append(m_animationGenerator.morph(&m_markLayer, m_markLayer, mark ? shown : hiddenMark(shown)));
    }

    m_boxShown = boxShown;
    m_markShown = mark;
    if (animations.isEmpty()) {
        if (completion)
            completion();
        return;
    }
    M13CheckboxTransition *transition = m_animationGenerator.transition(animations, this);
    m_transition = transition;
    connect(transition, &M13CheckboxTransition::frameChanged, this, &M13CheckboxController::layersChanged);
    connect(transition, &M13CheckboxTransition::finished, this, [this, transition, completion] {
        if (m_transition == transition)
            m_transition = nullptr;
        transition->deleteLater();
        if (completion)
            completion();
    });
    transition->start();
}

void M13CheckboxController::stopTransition()
{
    if (M13CheckboxTransition *transition = m_transition) {
        m_transition = nullptr;
        transition->stop();
        transition->disconnect(this);
        transition->deleteLater();
    }
}

void M13CheckboxController::paint(QPainter *painter) const
{
    const QPointF centre = m_pathGenerator->centre();
    m_unselectedBoxLayer.paint(painter, centre);
    m_selectedBoxLayer.paint(painter, centre);
    m_markLayer.paint(painter, centre);
}

// Stroke

M13CheckboxLayer M13CheckboxStrokeController::hiddenBox(const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer layer = shown;
    layer.strokeEnd = 0;
    layer.fillColor = Qt::transparent;
    return layer;
}

M13CheckboxLayer M13CheckboxStrokeController::hiddenMark(const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer layer = shown;
    layer.strokeEnd = 0;
    return layer;
}

M13CheckboxLayerAnimation M13CheckboxStrokeController::boxAppearance(M13CheckboxLayer *target,
                                                                     const M13CheckboxLayer &hidden,
                                                                     const M13CheckboxLayer &shown) const
{
    return animationGenerator().appearance(target, hidden, shown, Motion::Draw, 0, 0.65);
}

M13CheckboxLayerAnimation M13CheckboxStrokeController::markAppearance(M13CheckboxLayer *target,
                                                                      const M13CheckboxLayer &hidden,
                                                                      const M13CheckboxLayer &shown) const
{
    return animationGenerator().appearance(target, hidden, shown, Motion::Draw, 0.35, 1);
}

// Fill

M13CheckboxLayer M13CheckboxFillController::shownBox() const
{
    // The box with a hole that closes to nothing: the flood has reached the middle.
    M13CheckboxLayer layer = M13CheckboxController::shownBox();
    const M13CheckboxPath outline = layer.path;
    layer.path.addPath(outline.scaled(pathGenerator().centre(), 0, 0));
    layer.fillRule = Qt::OddEvenFill;
    return layer;
}

M13CheckboxLayer M13CheckboxFillController::hiddenBox(const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer layer = M13CheckboxController::shownBox();
    const M13CheckboxPath outline = layer.path;
    layer.path.addPath(outline);
    layer.fillRule = Qt::OddEvenFill;
    layer.opacity = 0;
    layer.strokeColor = shown.strokeColor;
    return layer;
}

M13CheckboxLayer M13CheckboxFillController::hiddenMark(const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer layer = shown;
    layer.strokeEnd = 0;
    return layer;
}

M13CheckboxLayerAnimation M13CheckboxFillController::boxAppearance(M13CheckboxLayer *target,
                                                                   const M13CheckboxLayer &hidden,
                                                                   const M13CheckboxLayer &shown) const
{
    // The rim takes the tint first, then the tint closes in on the centre.
    M13CheckboxLayer rim = hidden;
    rim.opacity = shown.opacity;
    return {target,
            {{0, hidden},
             {0.2, rim, M13CheckboxAnimationGenerator::easing(Motion::Fade)},
             {0.7, shown, M13CheckboxAnimationGenerator::easing(Motion::Morph)}}};
}

M13CheckboxLayerAnimation M13CheckboxFillController::markAppearance(M13CheckboxLayer *target,
                                                                    const M13CheckboxLayer &hidden,
                                                                    const M13CheckboxLayer &shown) const
{
    return animationGenerator().appearance(target, hidden, shown, Motion::Draw, 0.5, 1);
}

// Bounce

M13CheckboxLayer M13CheckboxBounceController::hiddenBox(const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer layer = shown;
    layer.scale = 0;
    return layer;
}

M13CheckboxLayer M13CheckboxBounceController::hiddenMark(const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer layer = shown;
    layer.scale = 0;
    return layer;
}

M13CheckboxLayerAnimation M13CheckboxBounceController::boxAppearance(M13CheckboxLayer *target,
                                                                     const M13CheckboxLayer &hidden,
                                                                     const M13CheckboxLayer &shown) const
{
    return animationGenerator().appearance(target, hidden, shown, Motion::Spring, 0, 0.8);
}

M13CheckboxLayerAnimation M13CheckboxBounceController::markAppearance(M13CheckboxLayer *target,
                                                                      const M13CheckboxLayer &hidden,
                                                                      const M13CheckboxLayer &shown) const
{
    return animationGenerator().appearance(target, hidden, shown, Motion::Spring, 0.2, 1);
}

// Expand

M13CheckboxLayer M13CheckboxExpandController::hiddenBox(const M13CheckboxLayer &shown) const
{
    // The outline itself shrinks to the centre; its line keeps its width.
    M13CheckboxLayer layer = shown;
    layer.path = shown.path.scaled(pathGenerator().centre(), 0, 0);
    layer.opacity = 0;
    return layer;
}

M13CheckboxLayer M13CheckboxExpandController::hiddenMark(const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer layer = shown;
    layer.scale = 0;
    layer.opacity = 0;
    return layer;
}

M13CheckboxLayerAnimation M13CheckboxExpandController::boxAppearance(M13CheckboxLayer *target,
                                                                     const M13CheckboxLayer &hidden,
                                                                     const M13CheckboxLayer &shown) const
{
    return animationGenerator().appearance(target, hidden, shown, Motion::Grow, 0, 0.6);
}

M13CheckboxLayerAnimation M13CheckboxExpandController::markAppearance(M13CheckboxLayer *target,
                                                                      const M13CheckboxLayer &hidden,
                                                                      const M13CheckboxLayer &shown) const
{
    return animationGenerator().appearance(target, hidden, shown, Motion::Grow, 0.4, 1);
}

// Flat

M13CheckboxLayer M13CheckboxFlatController::hiddenBox(const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer layer = shown;
    layer.path = shown.path.scaled(pathGenerator().centre(), 1, 0);
    layer.opacity = 0;
    return layer;
}

M13CheckboxLayer M13CheckboxFlatController::hiddenMark(const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer layer = shown;
    layer.path = shown.path.scaled(pathGenerator().centre(), 1, 0);
    layer.opacity = 0;
    return layer;
}

M13CheckboxLayerAnimation M13CheckboxFlatController::boxAppearance(M13CheckboxLayer *target,
                                                                   const M13CheckboxLayer &hidden,
                                                                   const M13CheckboxLayer &shown) const
{
    return {target,
            {{0, hidden},
             {0.12, withOpacity(hidden, shown.opacity), M13CheckboxAnimationGenerator::easing(Motion::Fade)},
             {0.65, shown, M13CheckboxAnimationGenerator::easing(Motion::Grow)}}};
}

M13CheckboxLayerAnimation M13CheckboxFlatController::markAppearance(M13CheckboxLayer *target,
                                                                    const M13CheckboxLayer &hidden,
                                                                    const M13CheckboxLayer &shown) const
{
    return {target,
            {{0.3, hidden},
             {0.42, withOpacity(hidden, shown.opacity), M13CheckboxAnimationGenerator::easing(Motion::Fade)},
             {1, shown, M13CheckboxAnimationGenerator::easing(Motion::Grow)}}};
}

// Spiral

M13CheckboxLayer M13CheckboxSpiralController::hiddenBox(const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer layer = shown;
    layer.strokeEnd = 0;
    layer.fillColor = Qt::transparent;
    return layer;
}

M13CheckboxLayer M13CheckboxSpiralController::hiddenMark(const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer layer = shown;
    layer.scale = 0;
    layer.rotation = -270;
    layer.opacity = 0;
    return layer;
}

M13CheckboxLayerAnimation M13CheckboxSpiralController::boxAppearance(M13CheckboxLayer *target,
                                                                     const M13CheckboxLayer &hidden,
                                                                     const M13CheckboxLayer &shown) const
{
    return animationGenerator().appearance(target, hidden, shown, Motion::Draw, 0, 0.8);
}

M13CheckboxLayerAnimation M13CheckboxSpiralController::markAppearance(M13CheckboxLayer *target,
                                                                      const M13CheckboxLayer &hidden,
                                                                      const M13CheckboxLayer &shown) const
{
    return animationGenerator().appearance(target, hidden, shown, Motion::Grow, 0.1, 1);
}

// Fade

M13CheckboxLayer M13CheckboxFadeController::hiddenBox(const M13CheckboxLayer &shown) const
{
    return withOpacity(shown, 0);
}

M13CheckboxLayer M13CheckboxFadeController::hiddenMark(const M13CheckboxLayer &shown) const
{
    return withOpacity(shown, 0);
}

M13CheckboxLayerAnimation M13CheckboxFadeController::boxAppearance(M13CheckboxLayer *target,
                                                                   const M13CheckboxLayer &hidden,
                                                                   const M13CheckboxLayer &shown) const
{
    return animationGenerator().appearance(target, hidden, shown, Motion::Fade, 0, 0.7);
}

M13CheckboxLayerAnimation M13CheckboxFadeController::markAppearance(M13CheckboxLayer *target,
                                                                    const M13CheckboxLayer &hidden,
                                                                    const M13CheckboxLayer &shown) const
{
    return animationGenerator().appearance(target, hidden, shown, Motion::Fade, 0.3, 1);
}

// Dot

M13CheckboxLayer M13CheckboxDotController::hiddenBox(const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer layer = shown;
    layer.path = shown.path.scaled(pathGenerator().centre(), 0.8, 0.8);
    layer.opacity = 0;
    return layer;
}

M13CheckboxLayer M13CheckboxDotController::hiddenMark(const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer layer = shown;
    layer.path = shown.path.scaled(pathGenerator().centre(), 0, 0);
    layer.lineWidth = 0;
    layer.opacity = 0;
    return layer;
}

M13CheckboxLayerAnimation M13CheckboxDotController::boxAppearance(M13CheckboxLayer *target,
                                                                  const M13CheckboxLayer &hidden,
                                                                  const M13CheckboxLayer &shown) const
{
    return animationGenerator().appearance(target, hidden, shown, Motion::Grow, 0, 0.6);
}

M13CheckboxLayerAnimation M13CheckboxDotController::markAppearance(M13CheckboxLayer *target,
                                                                   const M13CheckboxLayer &hidden,
                                                                   const M13CheckboxLayer &shown) const
{
    M13CheckboxLayer dot = hidden;
    dot.opacity = shown.opacity;
    dot.lineWidth = 2.4 * pathGenerator().checkmarkLineWidth();
    return {target,
            {{0.15, hidden},
             {0.4, dot, M13CheckboxAnimationGenerator::easing(Motion::Spring)},
             {1, shown, M13CheckboxAnimationGenerator::easing(Motion::Grow)}}};
}
