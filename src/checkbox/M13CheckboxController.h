#pragma once

#include "M13Checkbox.h"
#include "M13CheckboxAnimationGenerator.h"
#include "M13CheckboxLayer.h"
#include "M13CheckboxPathGenerator.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

// Owns the check box's state, colours and three layers, and animates the layers from one state
// to another. Each subclass is one effect: it says how the selected box and the mark look when
// hidden and how they come in; going out is the same motion played backwards.
class M13CheckboxController : public QObject
{
    Q_OBJECT

public:
    using CheckState = M13Checkbox::CheckState;
    using MarkType = M13Checkbox::MarkType;
    using AnimationStyle = M13Checkbox::AnimationStyle;
    using Motion = M13CheckboxAnimationGenerator::Motion;

    explicit M13CheckboxController(QObject *parent = nullptr);
    static M13CheckboxController *create(const M13Checkbox::Animation &animation, QObject *parent = nullptr);
    // Takes over another controller's state, colours and settings.
    void copySettings(const M13CheckboxController &other);

    M13CheckboxPathGenerator &pathGenerator() { return *m_pathGenerator; }
    const M13CheckboxPathGenerator &pathGenerator() const { return *m_pathGenerator; }
    M13CheckboxAnimationGenerator &animationGenerator() { return m_animationGenerator; }
    const M13CheckboxAnimationGenerator &animationGenerator() const { return m_animationGenerator; }

    CheckState state() const { return m_state; }
    // Only records the state; the owner then resets or animates the layers.
    void setState(CheckState state) { m_state = state; }

    QColor tintColor() const { return m_tintColor; }
    void setTintColor(const QColor &color);
    std::optional<QColor> secondaryTintColor() const { return m_secondaryTintColor; }
    void setSecondaryTintColor(std::optional<QColor> color);
    std::optional<QColor> secondaryCheckmarkTintColor() const { return m_secondaryCheckmarkTintColor; }
    void setSecondaryCheckmarkTintColor(std::optional<QColor> color);
    bool hideBox() const { return m_hideBox; }
    void setHideBox(bool hide);
    bool enableMorphing() const { return m_enableMorphing; }
    void setEnableMorphing(bool enable) { m_enableMorphing = enable; }
    MarkType markType() const { return m_markType; }
    // Swaps in the generator for the new mark, keeping its sizes.
    void setMarkType(MarkType type);

    const M13CheckboxLayer &markLayer() const { return m_markLayer; }
    const M13CheckboxLayer &selectedBoxLayer() const { return m_selectedBoxLayer; }
    const M13CheckboxLayer &unselectedBoxLayer() const { return m_unselectedBoxLayer; }

    // Puts the layers at rest in the current state at once.
    void resetLayers();
    // Animates the layers from where they are to the current state.
    void animateToState(std::function<void()> completion = {});
    // Animates to the current state's box with no mark at all: the first half of a change made
    // without morphing.
    void animateToNoMark(std::function<void()> completion = {});
    M13CheckboxTransition *transition() const { return m_transition; }
    bool isAnimating() const { return m_transition && m_transition->isRunning(); }

    void paint(QPainter *painter) const;

Q_SIGNALS:
    void layersChanged();

protected:
    virtual bool fillsBox() const { return false; }
    // The looks at rest in a checked or mixed state.
    virtual M13CheckboxLayer shownBox() const;
    M13CheckboxLayer shownMark(CheckState state) const;
    M13CheckboxLayer unselectedBox() const;
    QColor secondaryTint() const;
    QColor markColor() const;

    virtual M13CheckboxLayer hiddenBox(const M13CheckboxLayer &shown) const = 0;
    virtual M13CheckboxLayer hiddenMark(const M13CheckboxLayer &shown) const = 0;
    virtual M13CheckboxLayerAnimation boxAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                                    const M13CheckboxLayer &shown) const = 0;
    virtual M13CheckboxLayerAnimation markAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                                     const M13CheckboxLayer &shown) const = 0;
    // Between a checkmark and a bar, when morphing.
    virtual Motion markMorphMotion() const { return Motion::Morph; }

private:
    void animateTo(bool boxShown, std::optional<CheckState> mark, std::function<void()> completion);
    void stopTransition();

    std::unique_ptr<M13CheckboxPathGenerator> m_pathGenerator;
    M13CheckboxAnimationGenerator m_animationGenerator;
    CheckState m_state = CheckState::Unchecked;
    QColor m_tintColor;
    std::optional<QColor> m_secondaryTintColor;
    std::optional<QColor> m_secondaryCheckmarkTintColor;
    bool m_hideBox = false;
    bool m_enableMorphing = true;
    MarkType m_markType = MarkType::Checkmark;

    M13CheckboxLayer m_markLayer;
    M13CheckboxLayer m_selectedBoxLayer;
    M13CheckboxLayer m_unselectedBoxLayer;
    // What the layers show or are heading for.
    bool m_boxShown = false;
    std::optional<CheckState> m_markShown;
    QPointer<M13CheckboxTransition> m_transition;
};

// The default: the box outline is drawn round in the tint and the mark drawn on after it.
class M13CheckboxStrokeController : public M13CheckboxController
{
    Q_OBJECT
public:
    using M13CheckboxController::M13CheckboxController;

protected:
    M13CheckboxLayer hiddenBox(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayer hiddenMark(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation boxAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                            const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation markAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                             const M13CheckboxLayer &shown) const override;
};

// The tint floods the box from its rim inwards, then the mark is drawn on in white.
class M13CheckboxFillController : public M13CheckboxController
{
    Q_OBJECT
public:
    using M13CheckboxController::M13CheckboxController;

protected:
    bool fillsBox() const override { return true; }
    M13CheckboxLayer shownBox() const override;
    M13CheckboxLayer hiddenBox(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayer hiddenMark(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation boxAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                            const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation markAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                             const M13CheckboxLayer &shown) const override;
};

// The effects that come in a stroke and a fill style.
class M13CheckboxStyledController : public M13CheckboxController
{
    Q_OBJECT
public:
    explicit M13CheckboxStyledController(AnimationStyle style, QObject *parent = nullptr)
        : M13CheckboxController(parent), m_style(style)
    {
    }
    AnimationStyle style() const { return m_style; }

protected:
    bool fillsBox() const override { return m_style == AnimationStyle::Fill; }

private:
    AnimationStyle m_style;
};

// Box and mark pop up from nothing and settle as if on a spring.
class M13CheckboxBounceController : public M13CheckboxStyledController
{
    Q_OBJECT
public:
    using M13CheckboxStyledController::M13CheckboxStyledController;

protected:
    M13CheckboxLayer hiddenBox(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayer hiddenMark(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation boxAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                            const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation markAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                             const M13CheckboxLayer &shown) const override;
    Motion markMorphMotion() const override { return Motion::Spring; }
};

// The box widens out from the centre, then the mark grows in it.
class M13CheckboxExpandController : public M13CheckboxStyledController
{
    Q_OBJECT
public:
    using M13CheckboxStyledController::M13CheckboxStyledController;

protected:
    M13CheckboxLayer hiddenBox(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayer hiddenMark(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation boxAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                            const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation markAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                             const M13CheckboxLayer &shown) const override;
};

// Box and mark unfold from a flat line across the middle.
class M13CheckboxFlatController : public M13CheckboxStyledController
{
    Q_OBJECT
public:
    using M13CheckboxStyledController::M13CheckboxStyledController;

protected:
    M13CheckboxLayer hiddenBox(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayer hiddenMark(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation boxAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                            const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation markAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                             const M13CheckboxLayer &shown) const override;
};

// The outline is drawn round while the mark turns in from a three-quarter turn, growing.
class M13CheckboxSpiralController : public M13CheckboxController
{
    Q_OBJECT
public:
    using M13CheckboxController::M13CheckboxController;

protected:
    M13CheckboxLayer hiddenBox(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayer hiddenMark(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation boxAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                            const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation markAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                             const M13CheckboxLayer &shown) const override;
};

// Box and mark simply fade in and out.
class M13CheckboxFadeController : public M13CheckboxStyledController
{
    Q_OBJECT
public:
    using M13CheckboxStyledController::M13CheckboxStyledController;

protected:
    M13CheckboxLayer hiddenBox(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayer hiddenMark(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation boxAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                            const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation markAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                             const M13CheckboxLayer &shown) const override;
};

// A dot appears in the middle and unfurls into the mark.
class M13CheckboxDotController : public M13CheckboxStyledController
{
    Q_OBJECT
public:
    using M13CheckboxStyledController::M13CheckboxStyledController;

protected:
    M13CheckboxLayer hiddenBox(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayer hiddenMark(const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation boxAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                            const M13CheckboxLayer &shown) const override;
    M13CheckboxLayerAnimation markAppearance(M13CheckboxLayer *target, const M13CheckboxLayer &hidden,
                                             const M13CheckboxLayer &shown) const override;
};
