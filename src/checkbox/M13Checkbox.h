#pragma once

#include "M13CheckboxGestureRecognizer.h"

#include <QColor>
#include <QPointer>
#include <QQuickItem>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <optional>

class M13CheckboxCanvas;
class M13CheckboxController;
class M13CheckboxPathGenerator;

// The animated check box of the favourite marks and the wallpaper rows. Owners set its state,
// with or without animation, and read it back on valueChanged, which only a completed touch
// (or Space, or a screen reader's toggle) sends.
class M13Checkbox : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(CheckState checkState READ checkState WRITE setCheckState NOTIFY checkStateChanged)
    Q_PROPERTY(QColor tintColor READ tintColor WRITE setTintColor NOTIFY appearanceChanged)
    Q_PROPERTY(QColor secondaryTintColor READ secondaryTintColor WRITE setSecondaryTintColor NOTIFY appearanceChanged)
    Q_PROPERTY(QColor secondaryCheckmarkTintColor READ secondaryCheckmarkTintColor WRITE setSecondaryCheckmarkTintColor NOTIFY appearanceChanged)
    Q_PROPERTY(bool hideBox READ hideBox WRITE setHideBox NOTIFY appearanceChanged)
    Q_PROPERTY(bool enableMorphing READ enableMorphing WRITE setEnableMorphing NOTIFY appearanceChanged)
    Q_PROPERTY(MarkType markType READ markType WRITE setMarkType NOTIFY appearanceChanged)
    Q_PROPERTY(BoxType boxType READ boxType WRITE setBoxType NOTIFY appearanceChanged)
    Q_PROPERTY(qreal checkmarkLineWidth READ checkmarkLineWidth WRITE setCheckmarkLineWidth NOTIFY appearanceChanged)
    Q_PROPERTY(qreal boxLineWidth READ boxLineWidth WRITE setBoxLineWidth NOTIFY appearanceChanged)
    Q_PROPERTY(qreal cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY appearanceChanged)
    Q_PROPERTY(qreal animationDuration READ animationDuration WRITE setAnimationDuration NOTIFY appearanceChanged)
    Q_PROPERTY(QVariant checkedValue MEMBER m_checkedValue NOTIFY valuesChanged)
    Q_PROPERTY(QVariant uncheckedValue MEMBER m_uncheckedValue NOTIFY valuesChanged)
    Q_PROPERTY(QVariant mixedValue MEMBER m_mixedValue NOTIFY valuesChanged)
    Q_PROPERTY(bool selected READ isSelected NOTIFY selectedChanged)
    // Focus that came from the keyboard, which shows a ring round the box.
    Q_PROPERTY(bool visualFocus READ hasVisualFocus NOTIFY visualFocusChanged)
    // Text forms for layouts that can only carry strings; unknown text leaves the value alone.
    Q_PROPERTY(QString _IBCheckState READ ibCheckState WRITE setIBCheckState NOTIFY checkStateChanged)
    Q_PROPERTY(QString _IBMarkType READ ibMarkType WRITE setIBMarkType NOTIFY appearanceChanged)
    Q_PROPERTY(QString _IBBoxType READ ibBoxType WRITE setIBBoxType NOTIFY appearanceChanged)
    Q_PROPERTY(QString _IBStateChangeAnimation READ ibStateChangeAnimation WRITE setIBStateChangeAnimation NOTIFY stateChangeAnimationChanged)

public:
    enum class CheckState { Unchecked, Checked, Mixed };
    Q_ENUM(CheckState)
    enum class BoxType { Circle, Square };
    Q_ENUM(BoxType)
    enum class MarkType { Checkmark, Radio, AddRemove, Disclosure };
    Q_ENUM(MarkType)
    enum class AnimationStyle { Stroke, Fill };
    Q_ENUM(AnimationStyle)

    // How a state change is animated. Equality and hashing go by the text form.
    class Animation
    {
    public:
        enum class Kind { Bounce, Expand, Flat, Fade, Dot, Stroke, Fill, Spiral };

        static Animation bounce(AnimationStyle style) { return {Kind::Bounce, style}; }
        static Animation expand(AnimationStyle style) { return {Kind::Expand, style}; }
        static Animation flat(AnimationStyle style) { return {Kind::Flat, style}; }
        static Animation fade(AnimationStyle style) { return {Kind::Fade, style}; }
        static Animation dot(AnimationStyle style) { return {Kind::Dot, style}; }
        static Animation stroke() { return {Kind::Stroke, AnimationStyle::Stroke}; }
        static Animation fill() { return {Kind::Fill, AnimationStyle::Fill}; }
        static Animation spiral() { return {Kind::Spiral, AnimationStyle::Stroke}; }
        static std::optional<Animation> fromText(const QString &text);
        static QList<Animation> all();

        Kind kind() const { return m_kind; }
        // Only bounce, expand, flat, fade and dot carry a style of their own.
        AnimationStyle style() const { return m_style; }
        QString text() const;

        friend bool operator==(const Animation &a, const Animation &b) { return a.text() == b.text(); }
        friend size_t qHash(const Animation &animation, size_t seed = 0) { return qHash(animation.text(), seed); }

    private:
        Animation(Kind kind, AnimationStyle style) : m_kind(kind), m_style(style) {}
        Kind m_kind;
        AnimationStyle m_style;
    };

    explicit M13Checkbox(QQuickItem *parent = nullptr);
    ~M13Checkbox() override;

    M13CheckboxController *controller() const { return m_controller; }
    Animation stateChangeAnimation() const { return m_stateChangeAnimation; }
    // Swaps in the matching controller; state, colours and settings carry over.
    void setStateChangeAnimation(const Animation &animation);

    CheckState checkState() const;
    Q_INVOKABLE void setCheckState(M13Checkbox::CheckState state, bool animated = false);
    Q_INVOKABLE void toggleCheckState(bool animated = false);
    static QString checkStateName(CheckState state);

    QVariant checkedValue() const { return m_checkedValue; }
    QVariant uncheckedValue() const { return m_uncheckedValue; }
    QVariant mixedValue() const { return m_mixedValue; }

    QColor tintColor() const;
    void setTintColor(const QColor &color);
    // An invalid colour stands for "none": the control's own default is used.
    QColor secondaryTintColor() const;
    void setSecondaryTintColor(const QColor &color);
    QColor secondaryCheckmarkTintColor() const;
    void setSecondaryCheckmarkTintColor(const QColor &color);
    bool hideBox() const;
    void setHideBox(bool hide);
    bool enableMorphing() const;
    void setEnableMorphing(bool enable);
    MarkType markType() const;
    void setMarkType(MarkType type);
    BoxType boxType() const;
    void setBoxType(BoxType type);
    // Follows the size (a twelfth of it) until set.
    qreal checkmarkLineWidth() const;
    void setCheckmarkLineWidth(qreal width);
    qreal boxLineWidth() const;
    void setBoxLineWidth(qreal width);
    // Follows the size until set.
    qreal cornerRadius() const;
    void setCornerRadius(qreal radius);
    // Seconds.
    qreal animationDuration() const;
    void setAnimationDuration(qreal seconds);

    bool isSelected() const { return m_selected; }
    bool hasVisualFocus() const { return m_visualFocus; }

    QString ibCheckState() const;
    void setIBCheckState(const QString &text);
    QString ibMarkType() const;
    void setIBMarkType(const QString &text);
    QString ibBoxType() const;
    void setIBBoxType(const QString &text);
    QString ibStateChangeAnimation() const;
    void setIBStateChangeAnimation(const QString &text);

    // The action of the gesture recogniser.
    void handleLongPress(M13CheckboxGestureRecognizer *recognizer);

    // Where the box is drawn inside the item: a centred square.
    QRectF boxRect() const;

Q_SIGNALS:
    void checkStateChanged();
    void valueChanged();
    void appearanceChanged();
    void valuesChanged();
    void selectedChanged();
    void visualFocusChanged();
    void stateChangeAnimationChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent *event) override;
    void touchUngrabEvent() override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void installController(M13CheckboxController *controller);
    // Applies a change of look that differs from the current one, and tells the owner.
    template <typename T, typename Apply>
    void changeAppearance(const T &value, const T &current, Apply apply);
    // The same for a size or shape the path generator keeps; the layers are redrawn at once.
    template <typename T>
    void changeGeometry(T value, T current, void (M13CheckboxPathGenerator::*set)(T));
    void updateSizes();
    void setSelected(bool selected);
    void setVisualFocus(bool visualFocus);
    // A toggle the user asked for: the state flips with animation and the owner hears of it.
    void toggleByUser();
    void attachAccessibility();
    void updateAccessibleState();

private Q_SLOTS:
    void accessibleToggle();

private:

    M13CheckboxController *m_controller = nullptr;
    M13CheckboxCanvas *m_canvas = nullptr;
    M13CheckboxGestureRecognizer m_gestureRecognizer;
    Animation m_stateChangeAnimation = Animation::stroke();
    QVariant m_checkedValue;
    QVariant m_uncheckedValue;
    QVariant m_mixedValue;
    bool m_selected = false;
    bool m_visualFocus = false;
    bool m_spaceHeld = false;
    bool m_checkmarkLineWidthSet = false;
    bool m_cornerRadiusSet = false;
    QPointer<QObject> m_accessible;
};
