#include "M13CheckboxAnimationGenerator.h"

#include <algorithm>
#include <cmath>

namespace {

// A damped spring: about 18% past the target, a small swing back, then rest exactly at 1.
qreal spring(qreal x)
{
    if (x >= 1)
        return 1;
    return 1 - std::exp(-4.5 * x) * std::cos(2.6 * M_PI * x) * (1 - std::pow(x, 6));
}

} // namespace

qreal M13CheckboxKeyframe::progress(qreal x) const
{
    return mirrored ? 1 - easing.valueForProgress(1 - x) : easing.valueForProgress(x);
}

M13CheckboxLayer M13CheckboxLayerAnimation::valueAt(qreal progress) const
{
    if (keyframes.isEmpty())
        return target ? *target : M13CheckboxLayer();
    if (progress <= keyframes.first().time)
        return keyframes.first().layer;
    for (qsizetype i = 1; i < keyframes.size(); ++i) {
        const M13CheckboxKeyframe &to = keyframes[i];
        if (progress < to.time) {
            const M13CheckboxKeyframe &from = keyframes[i - 1];
            const qreal x = (progress - from.time) / (to.time - from.time);
            return M13CheckboxLayer::interpolated(from.layer, to.layer, to.progress(x));
        }
    }
    return keyframes.last().layer;
}

M13CheckboxLayerAnimation M13CheckboxLayerAnimation::reversed() const
{
    M13CheckboxLayerAnimation result{target, {}};
    for (qsizetype i = keyframes.size() - 1; i >= 0; --i) {
        M13CheckboxKeyframe frame{1 - keyframes[i].time, keyframes[i].layer};
        // The segment now arriving here is the one that used to leave from here.
        if (i + 1 < keyframes.size()) {
            frame.easing = keyframes[i + 1].easing;
            frame.mirrored = !keyframes[i + 1].mirrored;
        }
        result.keyframes.append(frame);
    }
    return result;
}

M13CheckboxLayerAnimation M13CheckboxLayerAnimation::startingFrom(const M13CheckboxLayer &current) const
{
    M13CheckboxLayerAnimation result = *this;
    if (!result.keyframes.isEmpty())
        result.keyframes.first().layer = current;
    return result;
}

M13CheckboxTransition::M13CheckboxTransition(QList<M13CheckboxLayerAnimation> animations, qreal seconds,
                                             qreal frameRate, QObject *parent)
    : QObject(parent), m_animations(std::move(animations)), m_seconds(seconds)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(std::max(1, int(std::lround(1000 / std::max(1.0, frameRate)))));
    connect(&m_timer, &QTimer::timeout, this, &M13CheckboxTransition::tick);
}

void M13CheckboxTransition::start()
{
    apply(0);
    m_clock.start();
    m_timer.start();
}

void M13CheckboxTransition::seek(qreal progress)
{
    m_timer.stop();
    apply(std::clamp(progress, 0.0, 1.0));
}

void M13CheckboxTransition::tick()
{
    // Progress follows the clock, so a late frame catches up rather than slowing the motion.
    const qreal progress = m_seconds > 0 ? m_clock.nsecsElapsed() / (m_seconds * 1e9) : 1;
    if (progress < 1) {
        apply(progress);
        return;
    }
    m_timer.stop();
    apply(1);
    Q_EMIT finished();
}

void M13CheckboxTransition::apply(qreal progress)
{
    m_progress = progress;
    for (const M13CheckboxLayerAnimation &animation : std::as_const(m_animations))
        *animation.target = animation.valueAt(progress);
    Q_EMIT frameChanged();
}

QEasingCurve M13CheckboxAnimationGenerator::easing(Motion motion)
{
    switch (motion) {
    case Motion::Draw:
        return QEasingCurve::OutQuad;
    case Motion::Grow:
        return QEasingCurve::OutCubic;
    case Motion::Spring: {
        QEasingCurve curve;
        curve.setCustomType(spring);
        return curve;
    }
    case Motion::Fade:
        return QEasingCurve::InOutSine;
    case Motion::Morph:
        break;
    }
    return QEasingCurve::InOutCubic;
}

M13CheckboxLayerAnimation M13CheckboxAnimationGenerator::appearance(M13CheckboxLayer *target,
                                                                    const M13CheckboxLayer &hidden,
                                                                    const M13CheckboxLayer &shown, Motion motion,
                                                                    qreal begin, qreal end) const
{
    return {target, {{begin, hidden}, {end, shown, easing(motion)}}};
}

M13CheckboxLayerAnimation M13CheckboxAnimationGenerator::morph(M13CheckboxLayer *target, const M13CheckboxLayer &from,
                                                               const M13CheckboxLayer &to, Motion motion) const
{
    return appearance(target, from, to, motion);
}

M13CheckboxTransition *M13CheckboxAnimationGenerator::transition(QList<M13CheckboxLayerAnimation> animations,
                                                                  QObject *parent) const
{
    return new M13CheckboxTransition(std::move(animations), m_animationDuration, m_frameRate, parent);
}
