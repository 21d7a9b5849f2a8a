#pragma once

#include "Speech.h"

// The voice under test: remembers what it was asked to say and moves through the states at
// once. Every TestEnvironment installs a fresh one; `SpeechDouble::shared()` reaches it.
class SpeechDouble final : public Speech
{
public:
    static SpeechDouble &shared() { return static_cast<SpeechDouble &>(Speech::shared()); }

    bool hasEngine = true;
    QString spokenText;
    QLocale spokenLocale;
    double spokenRate = 0;
    int stops = 0;

    bool available() const override { return hasEngine; }
    State state() const override { return m_state; }
    void say(const QString &text, const QLocale &locale, double rate) override
    {
        std::tie(spokenText, spokenLocale, spokenRate) = std::tuple(text, locale, rate);
        setState(State::Speaking);
    }
    void pause() override { setState(State::Paused); }
    void resume() override { setState(State::Speaking); }
    void stop() override
    {
        ++stops;
        setState(State::Ready);
    }
    // The engine reached the end of the text.
    void finish() { setState(State::Ready); }

private:
    void setState(State state)
    {
        m_state = state;
        Q_EMIT stateChanged();
    }
    State m_state = State::Ready;
};
