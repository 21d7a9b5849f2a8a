#pragma once

#include "Appearance.h"
#include "ReadAloud.h"

#include <QObject>
#include <QQmlEngine>

// What every reader screen's controller shares: its title, the reader appearance (font, size,
// colour, wallpaper) and the device kind, read in that order when the screen loads.
class ReaderScreen : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QString title READ title NOTIFY loaded)
    Q_PROPERTY(ReaderAppearance *appearance READ appearance CONSTANT)
    Q_PROPERTY(int deviceid READ deviceid NOTIFY loaded)
    Q_PROPERTY(ReadAloud *readAloud READ readAloud CONSTANT)

public:
    using QObject::QObject;

    QString title() const { return m_title; }
    ReaderAppearance *appearance() { return &m_appearance; }
    int deviceid() const { return m_deviceid; }
    ReadAloud *readAloud() { return &m_readAloud; }

    Q_INVOKABLE void HandlePinch(double scale) { m_appearance.HandlePinch(scale); }

Q_SIGNALS:
    void loaded();

protected:
    // The wallpaper draw (a first draw in 0..firstBound-1), the device kind, then the settings.
    void loadAppearance(int firstBound, double defaultFontSize = 15.0);

    ReaderAppearance m_appearance;
    ReadAloud m_readAloud;
    int m_deviceid = 0;
    QString m_title;
};
