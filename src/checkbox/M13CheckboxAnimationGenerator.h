#pragma once

#include "M13CheckboxLayer.h"

#include <QEasingCurve>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

// The look a layer reaches at `time`, a fraction of the transition, and how it gets there from
// the keyframe before.
struct M13CheckboxKeyframe
{
    qreal time = 0;
    M13CheckboxLayer layer;
    QEasingCurve easing = QEasingCurve::Linear;
    bool mirrored = false; // the easing run backwards, for a played-backwards segment

    qreal progress(qreal x) const;
};

// One layer's keyframes. Before the first keyframe the layer holds still at its look.
struct M13CheckboxLayerAnimation
{
    M13CheckboxLayer *target = nullptr;
    QList<M13CheckboxKeyframe> keyframes;

    M13CheckboxLayer valueAt(qreal progress) const;
    // The same motion played from its end to its start.
    M13CheckboxLayerAnimation reversed() const;
    // Starts from wherever the layer is now, so an interrupted change carries on without a jump.
    M13CheckboxLayerAnimation startingFrom(const M13CheckboxLayer &current) const;
};

// Runs layer animations together, one frame per timer tick, and leaves every layer at its last
// keyframe when done.
class M13CheckboxTransition : public QObject
{
    Q_OBJECT

public:
    M13CheckboxTransition(QList<M13CheckboxLayerAnimation> animations, qreal seconds, qreal frameRate,
                          QObject *parent = nullptr);

    void start();
    // Leaves the layers where they are; `finished` is not sent.
    void stop() { m_timer.stop(); }
    // Holds the transition still at a moment (0 to 1); for stills of the motion.
    void seek(qreal progress);
    qreal progress() const { return m_progress; }
    bool isRunning() const { return m_timer.isActive(); }

Q_SIGNALS:
    void frameChanged();
    void finished();

private:
    void tick();
    void apply(qreal progress);

    QList<M13CheckboxLayerAnimation> m_animations;
    qreal m_seconds;
    qreal m_progress = 0;
    QTimer m_timer;
    QElapsedTimer m_clock;
};

// Builds the animations the controllers run, all sharing one duration and frame rate.
class M13CheckboxAnimationGenerator
{
public:
    // The characters of motion the effects are made of.
    enum class Motion {
        Draw,   // a pen drawing on: quick start, gentle finish
        Grow,   // out from nothing, settling softly
        Spring, // overshoots and settles, as if on a spring
        Fade,   // even in and out
        Morph,  // one shape easing into another
    };

    qreal animationDuration() const { return m_animationDuration; }
    void setAnimationDuration(qreal seconds) { m_animationDuration = seconds; }
    qreal frameRate() const { return m_frameRate; }
    void setFrameRate(qreal rate) { m_frameRate = rate; }

    static QEasingCurve easing(Motion motion);

    // From hidden to shown between two fractions of the transition.
    M13CheckboxLayerAnimation appearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                         const M13CheckboxLayer &shown, Motion motion, qreal begin = 0,
                                         qreal end = 1) const;
    M13CheckboxLayerAnimation morph(M13CheckboxLayer *target, const M13CheckboxLayer &from,
                                    const M13CheckboxLayer &to, Motion motion = Motion::Morph) const;
    M13CheckboxTransition *transition(QList<M13CheckboxLayerAnimation> animations, QObject *parent) const;

private:
    qreal m_animationDuration = 0.3;
    qreal m_frameRate = 60;
};
