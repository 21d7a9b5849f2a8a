#include "ReadAloud.h"

#include "PreferenceKeys.h"
#include "Speech.h"

ReadAloud::ReadAloud(QObject *parent)
    : QObject(parent)
{
    connect(&Speech::shared(), &Speech::stateChanged, this, [this] {
        if (Speech::shared().state() == Speech::State::Ready)
            m_started = false;
        Q_EMIT stateChanged();
    });
}

ReadAloud::~ReadAloud()
{
    stop();
}

bool ReadAloud::available() const
{
    return Speech::shared().available();
}

bool ReadAloud::speaking() const
{
    return m_started && Speech::shared().state() == Speech::State::Speaking;
}

bool ReadAloud::paused() const
{
    return m_started && Speech::shared().state() == Speech::State::Paused;
}

void ReadAloud::play(const QString &text)
{
    if (paused()) {
        Speech::shared().resume();
        return;
    }
    if (!available() || text.trimmed().isEmpty())
        return;
    // Rich text hands over its line breaks as separators a voice does not know.
    QString plain = text;
    plain.replace(QChar::LineSeparator, u'\n').replace(QChar::ParagraphSeparator, u'\n');
    m_started = true;
    Speech::shared().say(plain, QLocale(), Preferences::doubleOrAbsent(PreferenceKeys::ReadAloudRate));
}

void ReadAloud::pause()
{
    if (speaking())
        Speech::shared().pause();
}

void ReadAloud::stop()
{
    if (!m_started)
        return;
    m_started = false;
    Speech::shared().stop();
    Q_EMIT stateChanged();
}
