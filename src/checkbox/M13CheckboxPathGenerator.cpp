#include "M13CheckboxPathGenerator.h"

#include <cmath>

namespace {

QPointF polar(QPointF centre, qreal radius, qreal angle)
{
    return centre + QPointF(std::cos(angle), std::sin(angle)) * radius;
}

} // namespace

std::unique_ptr<M13CheckboxPathGenerator> M13CheckboxPathGenerator::create(MarkType type)
{
    switch (type) {
    case MarkType::Radio:
        return std::make_unique<M13CheckboxRadioPathGenerator>();
    case MarkType::AddRemove:
        return std::make_unique<M13CheckboxAddRemovePathGenerator>();
    case MarkType::Disclosure:
        return std::make_unique<M13CheckboxDisclosurePathGenerator>();
    case MarkType::Checkmark:
        break;
    }
    return std::make_unique<M13CheckboxCheckPathGenerator>();
}

void M13CheckboxPathGenerator::copySettings(const M13CheckboxPathGenerator &other)
{
    M13CheckboxPathGenerator::operator=(other);
}

M13CheckboxPath M13CheckboxPathGenerator::boxPath() const
{
    const qreal s = m_size;
    const qreal b = m_boxLineWidth;
    M13CheckboxPath path;
    if (m_boxType == BoxType::Circle) {
        // Starts and ends at the top, so a stroke drawn on grows clockwise from twelve o'clock.
        path.addArc({s / 2, s / 2}, (s - b) / 2, -M_PI / 2, 3 * M_PI / 2, true);
        return path;
    }
    const qreal r = m_cornerRadius;
    const qreal e = b / 2;
    const qreal lo = e + r;
    const qreal hi = s - e - r;
    path.moveTo({(lo + hi) / 2, lo - r});
    path.lineTo({hi, lo - r});
    if (r != 0)
        path.addArc({hi, lo}, r, -M_PI / 2, 0, true);
    path.lineTo({hi + r, hi});
    if (r != 0)
        path.addArc({hi, hi}, r, 0, M_PI / 2, true);
    path.lineTo({lo, hi + r});
    if (r != 0)
        path.addArc({lo, hi}, r, M_PI / 2, M_PI, true);
    path.lineTo({lo - r, lo});
    if (r != 0)
        path.addArc({lo, lo}, r, M_PI, 3 * M_PI / 2, true);
    path.closeSubpath();
    return path;
}

M13CheckboxPath M13CheckboxPathGenerator::markPath(CheckState state) const
{
    return state == CheckState::Mixed ? mixedMark() : checkedMark();
}

qreal M13CheckboxPathGenerator::markLineWidth(CheckState) const
{
    return m_checkmarkLineWidth;
}

M13CheckboxPath M13CheckboxPathGenerator::mixedMark() const
{
    const QPointF c = centre();
    const qreal half = barHalfLength();
    M13CheckboxPath path;
    path.moveTo(c + QPointF(-half, 0));
    path.lineTo(c + QPointF(-0.3 * half, 0));
    path.lineTo(c + QPointF(half, 0));
    return path;
}

M13CheckboxPath M13CheckboxCheckPathGenerator::checkedMark() const
{
    const CheckmarkProperties &p = checkmarkProperties;
    const QPointF c = centre();
    const qreal r = innerRadius();
    const qreal angle = p.longArmBoxIntersectionAngle;
    // Drawn from the short arm's tip, through the bend, up the long arm.
    M13CheckboxPath path;
    path.moveTo(polar(c, r * p.shortArmRadius.forBox(boxType()), angle + M_PI + p.shortArmOffset.forBox(boxType())));
    path.lineTo(polar(c, r * p.middlePointRadius.forBox(boxType()), M_PI / 2 + p.middlePointOffset.forBox(boxType())));
    path.lineTo(polar(c, r * p.longArmRadius.forBox(boxType()), angle));
    return path;
}

qreal M13CheckboxRadioPathGenerator::dotRadius() const
{
    return innerRadius() * 0.5 * boxRoom();
}

qreal M13CheckboxRadioPathGenerator::markLineWidth(CheckState state) const
{
    return state == CheckState::Mixed ? checkmarkLineWidth() : dotRadius();
}

M13CheckboxPath M13CheckboxRadioPathGenerator::checkedMark() const
{
    // A ring as wide as its radius is doubled leaves no hole: a disc that can be swept on.
    M13CheckboxPath path;
    path.addArc(centre(), dotRadius() / 2, -M_PI / 2, 3 * M_PI / 2, true);
    return path;
}

M13CheckboxPath M13CheckboxAddRemovePathGenerator::bars(bool upright) const
{
    const QPointF c = centre();
    const QPointF across(barHalfLength(), 0);
    const QPointF second = upright ? QPointF(0, barHalfLength()) : across;
    M13CheckboxPath path;
    path.moveTo(c - across);
    path.lineTo(c + across);
    path.moveTo(c - second);
    path.lineTo(c + second);
    return path;
}

M13CheckboxPath M13CheckboxDisclosurePathGenerator::checkedMark() const
{
    const QPointF c = centre();
    const qreal r = innerRadius() * boxRoom();
    M13CheckboxPath path;
    path.moveTo(c + QPointF(-0.2 * r, -0.5 * r));
    path.lineTo(c + QPointF(0.3 * r, 0));
    path.lineTo(c + QPointF(-0.2 * r, 0.5 * r));
    return path;
}
