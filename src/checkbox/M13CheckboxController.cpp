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

M13CheckboxController::M13CheckboxController(const Effect &effect, bool fillsBox, QObject *parent)
    : QObject(parent),
      m_effect(effect),
      m_fillsBox(fillsBox),
      m_pathGenerator(M13CheckboxPathGenerator::create(m_settings.markType))
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
    m_settings = other.m_settings;
    m_pathGenerator = M13CheckboxPathGenerator::create(m_settings.markType);
    m_pathGenerator->copySettings(*other.m_pathGenerator);
    m_animationGenerator = other.m_animationGenerator;
}

void M13CheckboxController::setTintColor(const QColor &color)
{
    m_settings.tintColor = color;
    resetLayers();
}

void M13CheckboxController::setSecondaryTintColor(std::optional<QColor> color)
{
    m_settings.secondaryTintColor = color;
    resetLayers();
}

void M13CheckboxController::setSecondaryCheckmarkTintColor(std::optional<QColor> color)
{
    m_settings.secondaryCheckmarkTintColor = color;
    resetLayers();
}

void M13CheckboxController::setHideBox(bool hide)
{
    m_settings.hideBox = hide;
    resetLayers();
}

void M13CheckboxController::setMarkType(MarkType type)
{
    if (type == m_settings.markType)
        return;
    auto generator = M13CheckboxPathGenerator::create(type);
    generator->copySettings(*m_pathGenerator);
    m_pathGenerator = std::move(generator);
    m_settings.markType = type;
    resetLayers();
}

QColor M13CheckboxController::secondaryTint() const
{
    return m_settings.secondaryTintColor.value_or(DefaultSecondaryTint);
}

QColor M13CheckboxController::markColor() const
{
    // A mark on a tinted fill is drawn light; without a box behind it, it takes the tint.
    if (m_fillsBox && !m_settings.hideBox)
        return m_settings.secondaryCheckmarkTintColor.value_or(QColor(Qt::white));
    return m_settings.tintColor;
}

M13CheckboxLayer M13CheckboxController::unselectedBox() const
{
    M13CheckboxLayer layer;
    layer.path = m_pathGenerator->boxPath();
    layer.strokeColor = secondaryTint();
    layer.lineWidth = m_pathGenerator->boxLineWidth();
    layer.lineCap = Qt::FlatCap;
    layer.opacity = m_settings.hideBox ? 0 : 1;
    return layer;
}

M13CheckboxLayer M13CheckboxController::shownBox() const
{
    M13CheckboxLayer layer;
    layer.path = m_pathGenerator->boxPath();
    layer.strokeColor = m_settings.tintColor;
    if (m_fillsBox) {
        layer.fillColor = m_settings.tintColor;
    } else {
        // A wash of the tint inside the outline reads as "on" even at a glance.
        QColor wash = m_settings.tintColor;
        wash.setAlphaF(wash.alphaF() * 0.08f);
        layer.fillColor = wash;
    }
    layer.lineWidth = m_pathGenerator->boxLineWidth();
    layer.lineCap = Qt::FlatCap;
    layer.opacity = m_settings.hideBox ? 0 : 1;
    if (m_effect.floods) {
        // A hole that has closed to nothing: the flood has reached the middle.
        layer.path.addPath(layer.path.scaled(m_pathGenerator->centre(), 0, 0));
        layer.fillRule = Qt::OddEvenFill;
    }
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

M13CheckboxLayer M13CheckboxController::hidden(const M13CheckboxLayer &shown, const Hiding &hiding) const
{
    M13CheckboxLayer layer = shown;
    if (hiding.undrawn) {
        layer.strokeEnd = 0;
        layer.fillColor = Qt::transparent;
    }
    if (hiding.squeezed)
        layer.path = shown.path.scaled(m_pathGenerator->centre(), hiding.squeezed->x(), hiding.squeezed->y());
    layer.scale = hiding.scale;
    layer.rotation = hiding.rotation;
    if (hiding.faded)
        layer.opacity = 0;
    if (hiding.lineWidth)
        layer.lineWidth = *hiding.lineWidth;
    return layer;
}

M13CheckboxLayer M13CheckboxController::hiddenBox(const M13CheckboxLayer &shown) const
{
    if (m_effect.floods) {
        // Before the flood the hole is the whole box.
        M13CheckboxLayer layer = shown;
        layer.path = m_pathGenerator->boxPath();
        layer.path.addPath(m_pathGenerator->boxPath());
        layer.opacity = 0;
        return layer;
    }
    return hidden(shown, m_effect.box);
}

M13CheckboxLayer M13CheckboxController::hiddenMark(const M13CheckboxLayer &shown) const
{
    return hidden(shown, m_effect.mark);
}

M13CheckboxLayerAnimation M13CheckboxController::entrance(M13CheckboxLayer *target, const Entrance &entrance,
                                                          const M13CheckboxLayer &hidden,
                                                          const M13CheckboxLayer &shown) const
{
    M13CheckboxLayerAnimation animation =
        m_animationGenerator.appearance(target, hidden, shown, entrance.motion, entrance.begin, entrance.end);
    if (const auto &reveal = entrance.reveal) {
        M13CheckboxLayer revealed = withOpacity(hidden, shown.opacity);
        if (reveal->checkmarkWidths > 0)
            revealed.lineWidth = reveal->checkmarkWidths * m_pathGenerator->checkmarkLineWidth();
        animation.keyframes.insert(1, {reveal->at, revealed, M13CheckboxAnimationGenerator::easing(reveal->motion)});
    }
    return animation;
}

void M13CheckboxController::resetLayers()
{
    stopTransition();
    m_boxShown = m_settings.state != CheckState::Unchecked;
    m_markShown = m_boxShown ? std::optional(m_settings.state) : std::nullopt;
    m_unselectedBoxLayer = withOpacity(unselectedBox(), m_boxShown ? 0 : unselectedBox().opacity);
    const M13CheckboxLayer box = shownBox();
    m_selectedBoxLayer = m_boxShown ? box : hiddenBox(box);
    const M13CheckboxLayer mark = shownMark(m_markShown.value_or(CheckState::Checked));
    m_markLayer = m_markShown ? mark : hiddenMark(mark);
    Q_EMIT layersChanged();
}

void M13CheckboxController::animateToState(std::function<void()> completion)
{
    const bool hasMark = m_settings.state != CheckState::Unchecked;
    animateTo(hasMark, hasMark ? std::optional(m_settings.state) : std::nullopt, std::move(completion));
}

void M13CheckboxController::animateToNoMark(std::function<void()> completion)
{
    animateTo(m_settings.state != CheckState::Unchecked, std::nullopt, std::move(completion));
}

void M13CheckboxController::animateTo(bool boxShown, std::optional<CheckState> mark, std::function<void()> completion)
{
    const bool interrupted = isAnimating();
    stopTransition();
    QList<M13CheckboxLayerAnimation> animations;

    const M13CheckboxLayer box = shownBox();
    const M13CheckboxLayer boxTarget = boxShown ? box : hiddenBox(box);
    if (boxShown != m_boxShown) {
        const M13CheckboxLayerAnimation in = entrance(&m_selectedBoxLayer, m_effect.boxIn, hiddenBox(box), box);
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
        animations.append(m_animationGenerator.morph(&m_markLayer, m_markLayer, shownMark(*mark), m_effect.markMorph));
    } else if (mark && !m_markShown) {
        const M13CheckboxLayer shown = shownMark(*mark);
        M13CheckboxLayerAnimation in = entrance(&m_markLayer, m_effect.markIn, hiddenMark(shown), shown);
        // From rest the mark starts hidden in its new shape; cut short, it carries on from where it is.
        animations.append(interrupted ? in.startingFrom(m_markLayer) : in);
    } else if (!mark && m_markShown) {
        const M13CheckboxLayer shown = shownMark(*m_markShown);
        animations.append(
            entrance(&m_markLayer, m_effect.markIn, hiddenMark(shown), shown).reversed().startingFrom(m_markLayer));
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

// The effects. Times are fractions of the change; the box comes in first and the mark after it,
// overlapping.

namespace {

// The box outline is drawn round in the tint and the mark drawn on after it.
const M13CheckboxController::Effect StrokeEffect{
    .box = {.undrawn = true},
    .mark = {.undrawn = true},
    .boxIn = {Motion::Draw, 0, 0.65},
    .markIn = {Motion::Draw, 0.35, 1},
};

// The rim takes the tint first, the tint closes in on the centre, then the mark is drawn on in white.
const M13CheckboxController::Effect FillEffect{
    .mark = {.undrawn = true},
    .boxIn = {Motion::Morph, 0, 0.7, {{0.2, Motion::Fade}}},
    .markIn = {Motion::Draw, 0.5, 1},
    .floods = true,
};

// The outline is drawn round while the mark turns in from a three-quarter turn, growing.
const M13CheckboxController::Effect SpiralEffect{
    .box = {.undrawn = true},
    .mark = {.scale = 0, .rotation = -270, .faded = true},
    .boxIn = {Motion::Draw, 0, 0.8},
    .markIn = {Motion::Grow, 0.1, 1},
};

// Box and mark pop up from nothing and settle as if on a spring.
const M13CheckboxController::Effect BounceEffect{
    .box = {.scale = 0},
    .mark = {.scale = 0},
    .boxIn = {Motion::Spring, 0, 0.8},
    .markIn = {Motion::Spring, 0.2, 1},
    .markMorph = Motion::Spring,
};

// The box widens out from the centre (its line keeps its width), then the mark grows in it.
const M13CheckboxController::Effect ExpandEffect{
    .box = {.squeezed = QPointF(0, 0), .faded = true},
    .mark = {.scale = 0, .faded = true},
    .boxIn = {Motion::Grow, 0, 0.6},
    .markIn = {Motion::Grow, 0.4, 1},
};

// Box and mark unfold from a flat line across the middle.
const M13CheckboxController::Effect FlatEffect{
    .box = {.squeezed = QPointF(1, 0), .faded = true},
    .mark = {.squeezed = QPointF(1, 0), .faded = true},
    .boxIn = {Motion::Grow, 0, 0.65, {{0.12, Motion::Fade}}},
    .markIn = {Motion::Grow, 0.3, 1, {{0.42, Motion::Fade}}},
};

// Box and mark simply fade in and out.
const M13CheckboxController::Effect FadeEffect{
    .box = {.faded = true},
    .mark = {.faded = true},
    .boxIn = {Motion::Fade, 0, 0.7},
    .markIn = {Motion::Fade, 0.3, 1},
};

// A dot appears in the middle and unfurls into the mark.
const M13CheckboxController::Effect DotEffect{
    .box = {.squeezed = QPointF(0.8, 0.8), .faded = true},
    .mark = {.squeezed = QPointF(0, 0), .faded = true, .lineWidth = 0},
    .boxIn = {Motion::Grow, 0, 0.6},
    .markIn = {Motion::Grow, 0.15, 1, {{0.4, Motion::Spring, 2.4}}},
};

} // namespace

M13CheckboxStrokeController::M13CheckboxStrokeController(QObject *parent)
    : M13CheckboxController(StrokeEffect, false, parent)
{
}

M13CheckboxFillController::M13CheckboxFillController(QObject *parent) : M13CheckboxController(FillEffect, true, parent)
{
}

M13CheckboxSpiralController::M13CheckboxSpiralController(QObject *parent)
    : M13CheckboxController(SpiralEffect, false, parent)
{
}

M13CheckboxBounceController::M13CheckboxBounceController(AnimationStyle style, QObject *parent)
    : M13CheckboxStyledController(BounceEffect, style, parent)
{
}

M13CheckboxExpandController::M13CheckboxExpandController(AnimationStyle style, QObject *parent)
    : M13CheckboxStyledController(ExpandEffect, style, parent)
{
}

M13CheckboxFlatController::M13CheckboxFlatController(AnimationStyle style, QObject *parent)
    : M13CheckboxStyledController(FlatEffect, style, parent)
{
}

M13CheckboxFadeController::M13CheckboxFadeController(AnimationStyle style, QObject *parent)
    : M13CheckboxStyledController(FadeEffect, style, parent)
{
}

M13CheckboxDotController::M13CheckboxDotController(AnimationStyle style, QObject *parent)
    : M13CheckboxStyledController(DotEffect, style, parent)
{
}
