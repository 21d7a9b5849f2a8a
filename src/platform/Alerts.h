#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QStringList>
#include <functional>

// Modal alerts: a title, a message and buttons. Controllers present them; the window shows the
// current one in a dialog and reports the button pressed. Alerts queue while one is showing.
class Alerts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool showing READ showing NOTIFY currentChanged)
    Q_PROPERTY(QString title READ title NOTIFY currentChanged)
    Q_PROPERTY(QString message READ message NOTIFY currentChanged)
    Q_PROPERTY(QStringList buttons READ buttons NOTIFY currentChanged)
    Q_PROPERTY(int cancelButton READ cancelButton NOTIFY currentChanged)

public:
    struct Alert {
        QString title;
        QString message;
        QStringList buttons;
        std::function<void(int)> handler; // the index of the button pressed
        // Where there is a choice: the button that changes nothing, which the keyboard starts on
        // and Escape presses; -1 for none.
        int cancelButton = -1;
    };

    static Alerts &shared();
    static Alerts *create(QQmlEngine *, QJSEngine *);

    void present(Alert alert);
    // Presents on the next turn of the event loop, like work queued on the main queue.
    void presentAsync(Alert alert);

    bool showing() const { return !m_queue.isEmpty(); }
    QString title() const { return showing() ? m_queue.first().title : QString(); }
    QString message() const { return showing() ? m_queue.first().message : QString(); }
    QStringList buttons() const { return showing() ? m_queue.first().buttons : QStringList(); }
    int cancelButton() const { return showing() ? m_queue.first().cancelButton : -1; }

    Q_INVOKABLE void dismiss(int buttonIndex);

Q_SIGNALS:
    void currentChanged();
    void presented(const QString &title, const QString &message);

private:
    explicit Alerts(QObject *parent = nullptr) : QObject(parent) {}
    QList<Alert> m_queue;
};
