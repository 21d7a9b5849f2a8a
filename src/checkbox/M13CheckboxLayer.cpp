#include "M13CheckboxLayer.h"

#include <QImage>
#include <QPainter>

#include <algorithm>

namespace {

qreal lerp(qreal a, qreal b, qreal t)
{
    return a + (b - a) * t;
}

// Premultiplied, so fading in from transparent does not pass through a dark shade.
QColor lerpColor(const QColor &a, const QColor &b, qreal t)
{
    t = std::clamp(t, 0.0, 1.0);
    const qreal alpha = lerp(a.alphaF(), b.alphaF(), t);
    if (alpha <= 0)
        return Qt::transparent;
    const auto channel = [&](float ca, float cb) {
        return std::clamp(lerp(ca * a.alphaF(), cb * b.alphaF(), t) / alpha, 0.0, 1.0);
    };
    return QColor::fromRgbF(channel(a.redF(), b.redF()), channel(a.greenF(), b.greenF()),
                            channel(a.blueF(), b.blueF()), alpha);
}

} // namespace

bool M13CheckboxLayer::isVisible() const
{
    const bool strokes = strokeColor.alpha() > 0 && lineWidth > 0 && strokeEnd > strokeStart;
    return opacity > 0 && scale > 0.001 && !path.isEmpty() && (strokes || fillColor.alpha() > 0);
}

M13CheckboxLayer M13CheckboxLayer::interpolated(const M13CheckboxLayer &from, const M13CheckboxLayer &to, qreal t)
{
    M13CheckboxLayer result = t < 0.5 ? from : to;
    result.path = M13CheckboxPath::interpolated(from.path, to.path, t);
    result.strokeColor = lerpColor(from.strokeColor, to.strokeColor, t);
    result.fillColor = lerpColor(from.fillColor, to.fillColor, t);
    result.lineWidth = std::max(0.0, lerp(from.lineWidth, to.lineWidth, t));
    result.opacity = std::clamp(lerp(from.opacity, to.opacity, t), 0.0, 1.0);
    result.scale = std::max(0.0, lerp(from.scale, to.scale, t));
    result.rotation = lerp(from.rotation, to.rotation, t);
    result.strokeStart = std::clamp(lerp(from.strokeStart, to.strokeStart, t), 0.0, 1.0);
    result.strokeEnd = std::clamp(lerp(from.strokeEnd, to.strokeEnd, t), 0.0, 1.0);
    return result;
}

void M13CheckboxLayer::paint(QPainter *painter, QPointF centre) const
{
    if (!isVisible())
        return;
    painter->save();
    if (scale != 1 || rotation != 0) {
        painter->translate(centre);
        painter->rotate(rotation);
        painter->scale(scale, scale);
        painter->translate(-centre);
    }
    const bool overlaps = fillColor.alpha() > 0 && strokeColor.alpha() > 0 && lineWidth > 0;
    const auto *target = dynamic_cast<const QImage *>(painter->device());
    if (opacity >= 1 || !overlaps || !target) {
        painter->setOpacity(painter->opacity() * opacity);
        paintOpaque(painter);
    } else {
        // Fill and stroke overlap at the rim; fading them one by one would darken it.
        QImage group(target->size(), QImage::Format_ARGB32_Premultiplied);
        group.setDevicePixelRatio(target->devicePixelRatio());
        group.fill(Qt::transparent);
        {
            QPainter groupPainter(&group);
            groupPainter.setRenderHints(painter->renderHints());
            groupPainter.setTransform(painter->transform());
            paintOpaque(&groupPainter);
        }
        painter->resetTransform();
        painter->setOpacity(painter->opacity() * opacity);
        painter->drawImage(QPointF(0, 0), group);
    }
    painter->restore();
}

void M13CheckboxLayer::paintOpaque(QPainter *painter) const
{
    if (fillColor.alpha() > 0) {
        QPainterPath filled = path.toPainterPath();
        filled.setFillRule(fillRule);
        painter->fillPath(filled, fillColor);
    }
    if (strokeColor.alpha() == 0 || lineWidth <= 0 || strokeEnd <= strokeStart)
        return;
    const QRectF bounds = path.toPainterPath().controlPointRect();
    if (bounds.width() < 0.01 && bounds.height() < 0.01) {
        // The stroker draws nothing for a path folded into a point; a round pen leaves a dot.
        if (lineCap == Qt::RoundCap) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(strokeColor);
            painter->drawEllipse(bounds.center(), lineWidth / 2, lineWidth / 2);
        }
        return;
    }
    // Stroked as fine polylines with round joins: the stroker's offset of a curve goes lumpy
    // once the pen is as wide as the curve is tight, as it is for the radio dot.
    painter->strokePath(path.trimmed(strokeStart, strokeEnd), QPen(strokeColor, lineWidth, Qt::SolidLine, lineCap, Qt::RoundJoin));
}
