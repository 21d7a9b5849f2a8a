#pragma once

#include <QPointF>
#include <QRectF>

#include <functional>

// A long-press recogniser with no minimum duration: it begins as soon as a finger (or the mouse)
// goes down, follows it while it moves, and ends when it lifts, unless it lifts outside the
// view, in which case it fails so that nothing is toggled.
class M13CheckboxGestureRecognizer
{
public:
    enum class State { Possible, Began, Changed, Ended, Cancelled, Failed };
    using Action = std::function<void(M13CheckboxGestureRecognizer *)>;

    static constexpr qreal minimumPressDuration = 0;

    M13CheckboxGestureRecognizer() = default;
    M13CheckboxGestureRecognizer(const M13CheckboxGestureRecognizer &) = delete;
    M13CheckboxGestureRecognizer &operator=(const M13CheckboxGestureRecognizer &) = delete;

    void setAction(Action action) { m_action = std::move(action); }
    State state() const { return m_state; }

    // Positions are in the view's coordinates; `bounds` is the view's own rectangle.
    void touchesBegan(QPointF position);
    void touchesMoved(QPointF position);
    void touchesEnded(QPointF position, const QRectF &bounds);
    void touchesCancelled();

private:
    void moveTo(State state);

    State m_state = State::Possible;
    Action m_action;
};
