#include "WindowIcon.h"

#include <QIconEngine>
#include <optional>

namespace {
class DeferredIconEngine : public QIconEngine
{
public:
    explicit DeferredIconEngine(QString file)
        : m_file(std::move(file))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, mode, state);
    }
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        return icon().pixmap(size, scale, mode, state);
    }
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return icon().availableSizes(mode, state);
    }
    QIconEngine *clone() const override { return new DeferredIconEngine(m_file); }
    QString key() const override { return QStringLiteral("DeferredIconEngine"); }
    bool isNull() override { return m_file.isEmpty(); }

private:
    QIcon &icon()
    {
        if (!m_icon)
            m_icon = QIcon(m_file);
        return *m_icon;
    }

    QString m_file;
    std::optional<QIcon> m_icon;
};
}

QIcon windowIcon(const QString &file)
{
    return QIcon(new DeferredIconEngine(file));
}
