#pragma once

#include "M13CheckboxPath.h"

#include <QColor>

class QPainter;

// One drawn part of the check box (the box outline, the selected box, the mark): a path and how
// it is painted. Every field interpolates, so an animation is a run of these looks.
struct M13CheckboxLayer
{
    M13CheckboxPath path;
    QColor strokeColor = Qt::transparent;
    QColor fillColor = Qt::transparent;
    Qt::FillRule fillRule = Qt::WindingFill;
    Qt::PenCapStyle lineCap = Qt::RoundCap;
    qreal lineWidth = 0;
    qreal opacity = 1;
    qreal scale = 1;    // about the box centre, line width included
    qreal rotation = 0; // degrees, clockwise on screen, about the box centre
    qreal strokeStart = 0;
    qreal strokeEnd = 1;

    bool operator==(const M13CheckboxLayer &) const = default;

    bool isVisible() const;
    // t may overshoot [0, 1] for springy motion; opacity, colours and stroke ends stay in range.
    static M13CheckboxLayer interpolated(const M13CheckboxLayer &from, const M13CheckboxLayer &to, qreal t);
    void paint(QPainter *painter, QPointF centre) const;

private:
    void paintOpaque(QPainter *painter) const;
};
