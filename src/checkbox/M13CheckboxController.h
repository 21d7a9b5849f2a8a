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
// to another. Each subclass is one effect, given to this class as an `Effect`: how the selected
// box and the mark look when hidden and how they come in; going out is the same motion played
// backwards.
class M13CheckboxController : public QObject
{
    Q_OBJECT

public:
    using CheckState = M13Checkbox::CheckState;
    using MarkType = M13Checkbox::MarkType;
    using AnimationStyle = M13Checkbox::AnimationStyle;
    using Motion = M13CheckboxAnimationGenerator::Motion;

    // What a layer gives up to be hidden; everything else stays as it is shown.
    struct Hiding
    {
        bool undrawn = false;                 // no stroke drawn yet and nothing inside
        std::optional<QPointF> squeezed = {}; // the path scaled about the centre by x and y
        qreal scale = 1;                      // the whole layer, line included
        qreal rotation = 0;                   // degrees
        bool faded = false;                   // opacity 0
        std::optional<qreal> lineWidth = {};
    };

    // How a layer comes in between two fractions of the change. With `reveal`, the hidden look
    // first turns visible in place (the fill's rim, the flat line, the dot), then becomes the shown one.
    struct Entrance
    {
        struct Reveal
        {
            qreal at;
            Motion motion;
            qreal checkmarkWidths = 0; // the line width then, in checkmark line widths; 0 keeps it
        };

        Motion motion;
        qreal begin;
        qreal end;
        std::optional<Reveal> reveal = {};
    };

    struct Effect
    {
        Hiding box = {};
        Hiding mark = {};
        Entrance boxIn;
        Entrance markIn;
        // Between a checkmark and a bar, when morphing.
        Motion markMorph = Motion::Morph;
        // The shown box is a tinted ring whose hole has closed; hidden, the hole is the whole box.
        bool floods = false;
    };

    static M13CheckboxController *create(const M13Checkbox::Animation &animation, QObject *parent = nullptr);
    // Takes over another controller's state, colours and settings.
    void copySettings(const M13CheckboxController &other);

    M13CheckboxPathGenerator &pathGenerator() { return *m_pathGenerator; }
    const M13CheckboxPathGenerator &pathGenerator() const { return *m_pathGenerator; }
    M13CheckboxAnimationGenerator &animationGenerator() { return m_animationGenerator; }
    const M13CheckboxAnimationGenerator &animationGenerator() const { return m_animationGenerator; }

    CheckState state() const { return m_settings.state; }
    // Only records the state; the owner then resets or animates the layers.
    void setState(CheckState state) { m_settings.state = state; }

    QColor tintColor() const { return m_settings.tintColor; }
    void setTintColor(const QColor &color);
    std::optional<QColor> secondaryTintColor() const { return m_settings.secondaryTintColor; }
    void setSecondaryTintColor(std::optional<QColor> color);
    std::optional<QColor> secondaryCheckmarkTintColor() const { return m_settings.secondaryCheckmarkTintColor; }
    void setSecondaryCheckmarkTintColor(std::optional<QColor> color);
    bool hideBox() const { return m_settings.hideBox; }
    void setHideBox(bool hide);
    bool enableMorphing() const { return m_settings.enableMorphing; }
    void setEnableMorphing(bool enable) { m_settings.enableMorphing = enable; }
    MarkType markType() const { return m_settings.markType; }
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
    // `fillsBox`: the selected box is filled with the tint and the mark drawn light on it.
    M13CheckboxController(const Effect &effect, bool fillsBox, QObject *parent);

private:
    // The looks at rest in a checked or mixed state, and hidden.
    M13CheckboxLayer shownBox() const;
    M13CheckboxLayer shownMark(CheckState state) const;
    M13CheckboxLayer unselectedBox() const;
    M13CheckboxLayer hiddenBox(const M13CheckboxLayer &shown) const;
    M13CheckboxLayer hiddenMark(const M13CheckboxLayer &shown) const;
    M13CheckboxLayer hidden(const M13CheckboxLayer &shown, const Hiding &hiding) const;
    M13CheckboxLayerAnimation entrance(M13CheckboxLayer *target, const Entrance &entrance,
                                       const M13CheckboxLayer &hidden, const M13CheckboxLayer &shown) const;
    QColor secondaryTint() const;
    QColor markColor() const;

    void animateTo(bool boxShown, std::optional<CheckState> mark, std::function<void()> completion);
    void stopTransition();

    // What carries over to the controller of another effect.
    struct Settings
    {
        CheckState state = CheckState::Unchecked;
        QColor tintColor{0x0d, 0x26, 0x99};
        std::optional<QColor> secondaryTintColor;
        std::optional<QColor> secondaryCheckmarkTintColor;
        bool hideBox = false;
        bool enableMorphing = true;
        MarkType markType = MarkType::Checkmark;
    };

    const Effect &m_effect;
    const bool m_fillsBox;
    Settings m_settings;
    std::unique_ptr<M13CheckboxPathGenerator> m_pathGenerator;
    M13CheckboxAnimationGenerator m_animationGenerator;

    M13CheckboxLayer m_markLayer;
    M13CheckboxLayer m_selectedBoxLayer;
    M13CheckboxLayer m_unselectedBoxLayer;
    // What the layers show or are heading for.
    bool m_boxShown = false;
    std::optional<CheckState> m_markShown;
    QPointer<M13CheckboxTransition> m_transition;
};

// The effects below differ only in their `Effect`, described where it is defined.

class M13CheckboxStrokeController : public M13CheckboxController
{
    Q_OBJECT
public:
    explicit M13CheckboxStrokeController(QObject *parent = nullptr);
};

class M13CheckboxFillController : public M13CheckboxController
{
    Q_OBJECT
public:
    explicit M13CheckboxFillController(QObject *parent = nullptr);
};

class M13CheckboxSpiralController : public M13CheckboxController
{
    Q_OBJECT
public:
    explicit M13CheckboxSpiralController(QObject *parent = nullptr);
};

// The effects that come in a stroke and a fill style.
class M13CheckboxStyledController : public M13CheckboxController
{
    Q_OBJECT
public:
    AnimationStyle style() const { return m_style; }

protected:
    M13CheckboxStyledController(const Effect &effect, AnimationStyle style, QObject *parent)
        : M13CheckboxController(effect, style == AnimationStyle::Fill, parent), m_style(style)
    {
    }

private:
    AnimationStyle m_style;
};

class M13CheckboxBounceController : public M13CheckboxStyledController
{
    Q_OBJECT
public:
    explicit M13CheckboxBounceController(AnimationStyle style, QObject *parent = nullptr);
};

class M13CheckboxExpandController : public M13CheckboxStyledController
{
    Q_OBJECT
public:
    explicit M13CheckboxExpandController(AnimationStyle style, QObject *parent = nullptr);
};

class M13CheckboxFlatController : public M13CheckboxStyledController
{
    Q_OBJECT
public:
    explicit M13CheckboxFlatController(AnimationStyle style, QObject *parent = nullptr);
};

class M13CheckboxFadeController : public M13CheckboxStyledController
{
    Q_OBJECT
public:
    explicit M13CheckboxFadeController(AnimationStyle style, QObject *parent = nullptr);
};

class M13CheckboxDotController : public M13CheckboxStyledController
{
    Q_OBJECT
public:
    explicit M13CheckboxDotController(AnimationStyle style, QObject *parent = nullptr);
};
