#include "Speech.h"

#include <QTextToSpeech>

namespace {
// The desktop's engine, started when a page is first read aloud: starting it loads every voice
// and opens the sound server, which would otherwise cost each reader's first opening. An engine
// that cannot start leaves the voice unavailable rather than failing.
class SystemSpeech final : public Speech
{
public:
    bool available() const override
    {
        return m_offered && (!m_engine || m_engine->state() != QTextToSpeech::Error);
    }

    State state() const override
    {
        if (!m_engine)
            return State::Ready;
        switch (m_engine->state()) {
        case QTextToSpeech::Speaking: return State::Speaking;
        case QTextToSpeech::Paused: return State::Paused;
        default: return State::Ready;
        }
    }

    void say(const QString &text, const QLocale &locale, double rate) override
    {
        if (!start())
            return;
        if (const auto voice = voiceLocale(locale, m_engine->availableLocales()); voice && *voice != m_engine->locale())
            m_engine->setLocale(*voice);
        m_engine->setRate(rate);
        m_engine->say(text);
    }

    void pause() override { if (m_engine) m_engine->pause(); }
    void resume() override { if (m_engine) m_engine->resume(); }
    void stop() override { if (m_engine) m_engine->stop(); }

private:
    bool start()
    {
        if (m_offered && !m_engine) {
            m_engine = std::make_unique<QTextToSpeech>();
            connect(m_engine.get(), &QTextToSpeech::stateChanged, this, &Speech::stateChanged);
            // An engine that fails as it starts says nothing; the Read Aloud button must still go.
            if (m_engine->state() == QTextToSpeech::Error)
                Q_EMIT stateChanged();
        }
        return available();
    }

    const bool m_offered = !QTextToSpeech::availableEngines().isEmpty();
    std::unique_ptr<QTextToSpeech> m_engine;
};

// Kept to the end of the process: the engine must not outlive the application object in a
// static destructor.
Speech *&installed()
{
    static Speech *speech = nullptr;
    return speech;
}
}

Speech &Speech::shared()
{
    if (!installed())
        installed() = new SystemSpeech;
    return *installed();
}

void Speech::install(std::unique_ptr<Speech> speech)
{
    delete installed();
    installed() = speech.release();
}

std::optional<QLocale> voiceLocale(const QLocale &wanted, const QList<QLocale> &offered)
{
    if (offered.contains(wanted))
        return wanted;
    for (const QLocale &locale : offered)
        if (locale.language() == wanted.language())
            return locale;
    return std::nullopt;
}
