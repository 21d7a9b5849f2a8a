#include "M13CheckboxGestureRecognizer.h"

void M13CheckboxGestureRecognizer::touchesBegan(QPointF)
{
    moveTo(State::Began);
}

void M13CheckboxGestureRecognizer::touchesMoved(QPointF)
{
    if (m_state == State::Began || m_state == State::Changed)
        moveTo(State::Changed);
}

void M13CheckboxGestureRecognizer::touchesEnded(QPointF position, const QRectF &bounds)
{
    if (m_state != State::Began && m_state != State::Changed)
        return;
    moveTo(bounds.contains(position) ? State::Ended : State::Failed);
}

void M13CheckboxGestureRecognizer::touchesCancelled()
{
    if (m_state == State::Began || m_state == State::Changed)
        moveTo(State::Cancelled);
}

void M13CheckboxGestureRecognizer::moveTo(State state)
{
    m_state = state;
    if (m_action)
        m_action(this);
    // Finished gestures are ready for the next touch once their action has seen them.
    if (state == State::Ended || state == State::Cancelled || state == State::Failed)
        m_state = State::Possible;
}
