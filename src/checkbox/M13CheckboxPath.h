#pragma once

#include <QList>
#include <QPainterPath>
#include <QPolygonF>

// An outline kept as the drawing steps that made it, so it can be checked exactly, morphed step
// by step into an outline of the same make-up, and drawn only part of the way along its length.
// Angles are in radians measured from +x towards +y, so on screen (y down) increasing angles
// turn clockwise.
class M13CheckboxPath
{
public:
    struct Element
    {
        enum Type { MoveTo, LineTo, Arc, Close };
        Type type = MoveTo;
        QPointF point; // target of MoveTo and LineTo, centre of Arc
        qreal radius = 0;
        qreal startAngle = 0;
        qreal endAngle = 0;
        bool clockwise = true;
        bool operator==(const Element &) const = default;
    };

    // One run of connected points, as drawn.
    struct Polyline
    {
        QPolygonF points;
        bool closed = false;
    };

    void moveTo(QPointF point);
    void lineTo(QPointF point);
    // Joins the current point to the arc's start with a line, as a pen would.
    void addArc(QPointF centre, qreal radius, qreal startAngle, qreal endAngle, bool clockwise);
    void closeSubpath();
    // Appends the other path's subpaths.
    void addPath(const M13CheckboxPath &other);

    const QList<Element> &elements() const { return m_elements; }
    bool isEmpty() const { return m_elements.isEmpty(); }
    bool operator==(const M13CheckboxPath &) const = default;

    QPainterPath toPainterPath() const;
    QList<Polyline> toPolylines() const;
    // The part between two fractions of the whole length, for drawing a stroke on or off.
    QPainterPath trimmed(qreal start, qreal end) const;
    // Scales the geometry about a centre while the line width stays; a squash turns arcs into
    // polylines since an arc cannot be squashed.
    M13CheckboxPath scaled(QPointF centre, qreal sx, qreal sy) const;

    // Paths made of the same steps morph step by step (points, radii and angles); any other pair
    // is resampled along its length and morphed point by point. t may overshoot [0, 1].
    static M13CheckboxPath interpolated(const M13CheckboxPath &from, const M13CheckboxPath &to, qreal t);

    static qreal arcSweep(const Element &arc);

private:
    static M13CheckboxPath fromPolylines(const QList<Polyline> &lines);

    QList<Element> m_elements;
    bool m_subpathOpen = false;
};
