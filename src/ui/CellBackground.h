#pragma once

#include <QQuickPaintedItem>
#include <QUrl>

// A list card under its wallpaper: the picture cropped to fill the card, clipped to its rounded
// corners, darker while pressed, with the card's border over it.
class CellBackground : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QUrl wallpaper READ wallpaper WRITE setWallpaper NOTIFY wallpaperChanged)
    Q_PROPERTY(bool pressed READ pressed WRITE setPressed NOTIFY pressedChanged)

public:
    explicit CellBackground(QQuickItem *parent = nullptr);

    QUrl wallpaper() const { return m_wallpaper; }
    void setWallpaper(const QUrl &wallpaper);
    bool pressed() const { return m_pressed; }
    void setPressed(bool pressed);

    void paint(QPainter *painter) override;

    static constexpr qreal cornerRadius = 10;
    static constexpr qreal borderWidth = 2;
    // Hue 0.5, saturation 0.06, brightness 0.96.
    static QColor cellColor() { return QColor::fromHsvF(0.5, 0.06, 0.96); }

Q_SIGNALS:
    void wallpaperChanged();
    void pressedChanged();

private:
    QImage croppedWallpaper(const QSize &size) const;

    QUrl m_wallpaper;
    bool m_pressed = false;
};
