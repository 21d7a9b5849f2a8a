#include "M13CheckboxPath.h"

#include <QLineF>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

// Fine enough that a flattened arc is indistinguishable from the curve at three times zoom.
constexpr qreal ArcStep = 0.3;
constexpr int MorphSamples = 72;

QPointF lerp(QPointF a, QPointF b, qreal t)
{
    return a + (b - a) * t;
}

QPointF pointOnArc(QPointF centre, qreal radius, qreal angle)
{
    return centre + QPointF(std::cos(angle), std::sin(angle)) * radius;
}

// The points a pen visits, with the closing segment spelled out.
QPolygonF walked(const M13CheckboxPath::Polyline &line)
{
    QPolygonF points = line.points;
    if (line.closed && points.size() > 1 && points.first() != points.last())
        points.append(points.first());
    return points;
}

qreal walkLength(const QPolygonF &points)
{
    qreal length = 0;
    for (qsizetype i = 1; i < points.size(); ++i)
        length += QLineF(points[i - 1], points[i]).length();
    return length;
}

QPointF pointAtDistance(const QPolygonF &points, qreal distance)
{
    qreal walkedSoFar = 0;
    for (qsizetype i = 1; i < points.size(); ++i) {
        const qreal segment = QLineF(points[i - 1], points[i]).length();
        if (walkedSoFar + segment >= distance && segment > 0)
            return lerp(points[i - 1], points[i], (distance - walkedSoFar) / segment);
        walkedSoFar += segment;
    }
    return points.isEmpty() ? QPointF() : points.last();
}

// N points spread evenly along the line; a loop leaves out its end, which is its start.
QPolygonF resampled(const M13CheckboxPath::Polyline &line, int count, bool asLoop)
{
    const QPolygonF points = walked(line);
    const qreal length = walkLength(points);
    QPolygonF result;
    result.reserve(count);
    const int steps = asLoop ? count : count - 1;
    for (int i = 0; i < count; ++i)
        result.append(pointAtDistance(points, length * i / steps));
    return result;
}

} // namespace

void M13CheckboxPath::moveTo(QPointF point)
{
    m_elements.append(Element{Element::MoveTo, point});
    m_subpathOpen = true;
}

void M13CheckboxPath::lineTo(QPointF point)
{
    m_elements.append(Element{Element::LineTo, point});
    m_subpathOpen = true;
}

void M13CheckboxPath::addArc(QPointF centre, qreal radius, qreal startAngle, qreal endAngle, bool clockwise)
{
    m_elements.append(Element{Element::Arc, centre, radius, startAngle, endAngle, clockwise});
    m_subpathOpen = true;
}

void M13CheckboxPath::closeSubpath()
{
    m_elements.append(Element{Element::Close, {}});
    m_subpathOpen = false;
}

void M13CheckboxPath::addPath(const M13CheckboxPath &other)
{
    // A following MoveTo starts a new subpath on its own; an arc or line would join on instead.
    if (m_subpathOpen && !other.isEmpty() && other.m_elements.first().type != Element::MoveTo)
        closeSubpath();
    m_elements.append(other.m_elements);
    m_subpathOpen = other.m_subpathOpen;
}

qreal M13CheckboxPath::arcSweep(const Element &arc)
{
    qreal sweep = arc.endAngle - arc.startAngle;
    if (arc.clockwise) {
        while (sweep < 0)
            sweep += 2 * M_PI;
    } else {
        while (sweep > 0)
            sweep -= 2 * M_PI;
    }
    return sweep;
}

QPainterPath M13CheckboxPath::toPainterPath() const
{
    QPainterPath path;
    bool open = false;
    for (const Element &e : m_elements) {
        switch (e.type) {
        case Element::MoveTo:
            path.moveTo(e.point);
            open = true;
            break;
        case Element::LineTo:
            if (open)
                path.lineTo(e.point);
            else
                path.moveTo(e.point);
            open = true;
            break;
        case Element::Arc: {
            const QPointF start = pointOnArc(e.point, e.radius, e.startAngle);
            if (open)
                path.lineTo(start);
            else
                path.moveTo(start);
            open = true;
            // QPainterPath counts degrees counter-clockwise with y up: the mirror of ours.
            const QRectF bounds(e.point.x() - e.radius, e.point.y() - e.radius, 2 * e.radius, 2 * e.radius);
            path.arcTo(bounds, -qRadiansToDegrees(e.startAngle), -qRadiansToDegrees(arcSweep(e)));
            break;
        }
        case Element::Close:
            path.closeSubpath();
            open = false;
            break;
        }
    }
    return path;
}

QList<M13CheckboxPath::Polyline> M13CheckboxPath::toPolylines() const
{
    QList<Polyline> lines;
    Polyline current;
    bool open = false;
    const auto finish = [&] {
        if (!current.points.isEmpty())
            lines.append(current);
        current = {};
    };
    // Arcs usually start where the pen already is; a repeated point would be a kink.
    const auto append = [&](QPointF point) {
        if (current.points.isEmpty() || current.points.last() != point)
            current.points.append(point);
    };
    for (const Element &e : m_elements) {
        switch (e.type) {
        case Element::MoveTo:
            finish();
            current.points.append(e.point);
            open = true;
            break;
        case Element::LineTo:
            if (!open)
                finish();
            current.points.append(e.point);
            open = true;
            break;
        case Element::Arc: {
            if (!open)
                finish();
            open = true;
            append(pointOnArc(e.point, e.radius, e.startAngle));
            const qreal sweep = arcSweep(e);
            const int steps = std::max(2, int(std::ceil(std::abs(sweep) * std::max(e.radius, 1.0) / ArcStep)));
            for (int i = 1; i <= steps; ++i)
                append(pointOnArc(e.point, e.radius, e.startAngle + sweep * i / steps));
            break;
        }
        case Element::Close:
            current.closed = true;
            if (current.points.size() > 1 && current.points.first() == current.points.last())
                current.points.removeLast();
            finish();
            open = false;
            break;
        }
    }
    finish();
    return lines;
}

QPainterPath M13CheckboxPath::trimmed(qreal start, qreal end) const
{
    QPainterPath out;
    start = std::clamp(start, 0.0, 1.0);
    end = std::clamp(end, 0.0, 1.0);
    if (end <= start)
        return out;
    const QList<Polyline> lines = toPolylines();
    QList<QPolygonF> walks;
    qreal total = 0;
    for (const Polyline &line : lines) {
        walks.append(walked(line));
        total += walkLength(walks.last());
    }
    const qreal from = start * total;
    const qreal to = end * total;
    qreal offset = 0;
    for (qsizetype l = 0; l < lines.size(); ++l) {
        const QPolygonF &points = walks[l];
        const qreal length = walkLength(points);
        const qreal localFrom = from - offset;
        const qreal localTo = to - offset;
        offset += length;
        if (localTo <= 0 || localFrom >= length)
            continue;
        if (localFrom <= 0 && localTo >= length) {
            // Whole subpaths keep their closing join.
            out.addPolygon(points);
            if (lines[l].closed)
                out.closeSubpath();
            continue;
        }
        qreal walkedSoFar = 0;
        bool started = false;
        for (qsizetype i = 1; i < points.size(); ++i) {
            const qreal segment = QLineF(points[i - 1], points[i]).length();
            const qreal segmentEnd = walkedSoFar + segment;
            if (segmentEnd >= localFrom && segment > 0) {
                if (!started) {
                    out.moveTo(lerp(points[i - 1], points[i], std::max(0.0, localFrom - walkedSoFar) / segment));
                    started = true;
                }
                if (segmentEnd >= localTo) {
                    out.lineTo(lerp(points[i - 1], points[i], (localTo - walkedSoFar) / segment));
                    break;
                }
                out.lineTo(points[i]);
            }
            walkedSoFar = segmentEnd;
        }
    }
    return out;
}

M13CheckboxPath M13CheckboxPath::scaled(QPointF centre, qreal sx, qreal sy) const
{
    if (qFuzzyCompare(sx, sy) && sx >= 0) {
        M13CheckboxPath result = *this;
        for (Element &e : result.m_elements) {
            e.point = centre + (e.point - centre) * sx;
            e.radius *= sx;
        }
        return result;
    }
    QList<Polyline> lines = toPolylines();
    for (Polyline &line : lines) {
        for (QPointF &p : line.points)
            p = QPointF(centre.x() + (p.x() - centre.x()) * sx, centre.y() + (p.y() - centre.y()) * sy);
    }
    return fromPolylines(lines);
}

M13CheckboxPath M13CheckboxPath::fromPolylines(const QList<Polyline> &lines)
{
    M13CheckboxPath path;
    for (const Polyline &line : lines) {
        if (line.points.isEmpty())
            continue;
        path.moveTo(line.points.first());
        for (qsizetype i = 1; i < line.points.size(); ++i)
            path.lineTo(line.points[i]);
        if (line.closed)
            path.closeSubpath();
    }
    return path;
}

M13CheckboxPath M13CheckboxPath::interpolated(const M13CheckboxPath &from, const M13CheckboxPath &to, qreal t)
{
    if (from.isEmpty() || to.isEmpty())
        return t < 0.5 ? from : to;
    if (t == 0)
        return from;
    if (t == 1)
        return to;

    const bool sameSteps = from.m_elements.size() == to.m_elements.size()
        && std::equal(from.m_elements.begin(), from.m_elements.end(), to.m_elements.begin(),
                      [](const Element &a, const Element &b) {
                          return a.type == b.type && a.clockwise == b.clockwise;
                      });
    if (sameSteps) {
        M13CheckboxPath result = from;
        for (qsizetype i = 0; i < result.m_elements.size(); ++i) {
            Element &e = result.m_elements[i];
            const Element &target = to.m_elements[i];
            e.point = lerp(e.point, target.point, t);
            e.radius = std::max(0.0, e.radius + (target.radius - e.radius) * t);
            e.startAngle += (target.startAngle - e.startAngle) * t;
            e.endAngle += (target.endAngle - e.endAngle) * t;
        }
        return result;
    }

    QList<Polyline> a = from.toPolylines();
    QList<Polyline> b = to.toPolylines();
    // A squashed copy keeps its original's points one for one: morph those pairs directly.
    const bool samePoints = a.size() == b.size()
        && std::equal(a.begin(), a.end(), b.begin(), [](const Polyline &p, const Polyline &q) {
               return p.points.size() == q.points.size() && p.closed == q.closed;
           });
    if (samePoints) {
        for (qsizetype i = 0; i < a.size(); ++i) {
            for (qsizetype k = 0; k < a[i].points.size(); ++k)
                a[i].points[k] = lerp(a[i].points[k], b[i].points[k], t);
        }
        return fromPolylines(a);
    }
    // A subpath without a partner morphs out of (or into) a copy of the last one there is.
    while (a.size() < b.size())
        a.append(a.last());
    while (b.size() < a.size())
        b.append(b.last());
    QList<Polyline> result;
    for (qsizetype i = 0; i < a.size(); ++i) {
        const bool loop = a[i].closed && b[i].closed;
        const QPolygonF pa = resampled(a[i], MorphSamples, loop);
        const QPolygonF pb = resampled(b[i], MorphSamples, loop);
        Polyline line{{}, loop};
        for (int k = 0; k < MorphSamples; ++k)
            line.points.append(lerp(pa[k], pb[k], t));
        result.append(line);
    }
    return fromPolylines(result);
}
