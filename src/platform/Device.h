#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QSizeF>

// The device idiom: a phone when the shorter side of the window is below 600 logical pixels,
// otherwise a tablet. The window reports its size; before it does, the primary screen counts.
class Device : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(Idiom idiom READ idiom NOTIFY idiomChanged)
    Q_PROPERTY(QSizeF windowSize READ windowSize WRITE setWindowSize NOTIFY idiomChanged)

public:
    enum Idiom { Unspecified = 0, Phone = 1, Tablet = 2 };
    Q_ENUM(Idiom)

    static Device &shared();
    static Device *create(QQmlEngine *, QJSEngine *);

    Idiom idiom() const;
    // What a screen keeps as its `deviceid`: 1 on a phone, 2 on a tablet (logging "iPad"),
    // otherwise 0 (logging "Not Possible").
    int deviceid() const;
    QSizeF windowSize() const { return m_windowSize; }
    void setWindowSize(const QSizeF &size);
    // Back at the cover the screens that were read are gone: their script objects are collected
    // and the freed memory handed back to the system, so the book keeps no more than it shows.
    Q_INVOKABLE void releaseUnusedMemory();

Q_SIGNALS:
    void idiomChanged();

private:
    explicit Device(QObject *parent = nullptr) : QObject(parent) {}
    QSizeF m_windowSize;
    QPointer<QJSEngine> m_engine;
};
