#pragma once

#include <QObject>
#include <QQmlEngine>

// A reader's Read Aloud: speaks the shown text in the locale's voice at the stored rate, pauses,
// resumes and stops. Speech this screen started ends when the screen goes.
class ReadAloud : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Each reader screen owns its Read Aloud")
    Q_PROPERTY(bool available READ available NOTIFY stateChanged)
    Q_PROPERTY(bool speaking READ speaking NOTIFY stateChanged)
    Q_PROPERTY(bool paused READ paused NOTIFY stateChanged)

public:
    explicit ReadAloud(QObject *parent = nullptr);
    ~ReadAloud() override;

    bool available() const;
    bool speaking() const;
    bool paused() const;

    // Starts reading `text` from its beginning, or goes on where a pause left off.
    Q_INVOKABLE void play(const QString &text);
    Q_INVOKABLE void pause();
    Q_INVOKABLE void stop();

Q_SIGNALS:
    void stateChanged();

private:
    bool m_started = false; // the voice is reading this screen's text
};
