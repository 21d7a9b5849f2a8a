#pragma once

#include <QList>
#include <QLocale>
#include <QObject>
#include <memory>
#include <optional>

// The voice that reads a page aloud. The desktop's text-to-speech engine stands behind it;
// tests put a double in its place, so nothing is heard while they run. Where no engine can
// start, `available()` is false and the readers offer no Read Aloud button.
class Speech : public QObject
{
    Q_OBJECT

public:
    enum class State { Ready, Speaking, Paused };

    // The installed voice; the desktop's engine until another is installed.
    static Speech &shared();
    static void install(std::unique_ptr<Speech> speech);

    virtual bool available() const = 0;
    virtual State state() const = 0;
    // Speaks `text` in the voice closest to `locale`, at `rate` (-1 slowest, 0 normal, 1 fastest).
    virtual void say(const QString &text, const QLocale &locale, double rate) = 0;
    virtual void pause() = 0;
    virtual void resume() = 0;
    virtual void stop() = 0;

Q_SIGNALS:
    void stateChanged();

protected:
    using QObject::QObject;
};

// The voice locale to use for `wanted` among those an engine offers: the locale itself, else the
// first of the same language, else none (the engine keeps its own).
std::optional<QLocale> voiceLocale(const QLocale &wanted, const QList<QLocale> &offered);
