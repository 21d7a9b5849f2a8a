#pragma once

#include "M13Checkbox.h"
#include "M13CheckboxPath.h"

#include <memory>

// Makes the box outline and the marks for one mark type at the current size. Lengths are in
// item units; the box fills a size × size square with its stroke inside it.
class M13CheckboxPathGenerator
{
public:
    using CheckState = M13Checkbox::CheckState;
    using BoxType = M13Checkbox::BoxType;
    using MarkType = M13Checkbox::MarkType;

    virtual ~M13CheckboxPathGenerator() = default;
    static std::unique_ptr<M13CheckboxPathGenerator> create(MarkType type);

    qreal size() const { return m_size; }
    void setSize(qreal size) { m_size = size; }
    qreal checkmarkLineWidth() const { return m_checkmarkLineWidth; }
    void setCheckmarkLineWidth(qreal width) { m_checkmarkLineWidth = width; }
    qreal boxLineWidth() const { return m_boxLineWidth; }
    void setBoxLineWidth(qreal width) { m_boxLineWidth = width; }
    qreal cornerRadius() const { return m_cornerRadius; }
    void setCornerRadius(qreal radius) { m_cornerRadius = radius; }
    BoxType boxType() const { return m_boxType; }
    void setBoxType(BoxType type) { m_boxType = type; }
    void copySettings(const M13CheckboxPathGenerator &other);

    QPointF centre() const { return {m_size / 2, m_size / 2}; }
    M13CheckboxPath boxPath() const;
    // The mark of a checked or mixed box; an unchecked box borrows the checked one to hide it.
    M13CheckboxPath markPath(CheckState state) const;
    virtual qreal markLineWidth(CheckState state) const;

protected:
    M13CheckboxPathGenerator() = default;
    // Copies the sizes and box type, which are all this class holds; a subclass keeps its own.
    M13CheckboxPathGenerator(const M13CheckboxPathGenerator &) = default;
    M13CheckboxPathGenerator &operator=(const M13CheckboxPathGenerator &) = default;

    virtual M13CheckboxPath checkedMark() const = 0;
    // A level bar through the centre, split where the checkmark bends so the two morph well.
    virtual M13CheckboxPath mixedMark() const;
    // Half the clear width inside the box's stroke.
    qreal innerRadius() const { return m_size / 2 - m_boxLineWidth; }
    // Points of a mark are laid out for a circle; a square has room to spare in its corners.
    qreal boxRoom() const { return m_boxType == BoxType::Square ? 1.08 : 1.0; }
    // Half the length of the level bar of the mixed marks and the plus.
    qreal barHalfLength() const { return innerRadius() * 0.55 * boxRoom(); }

private:
    qreal m_size = 24;
    qreal m_checkmarkLineWidth = 2;
    qreal m_boxLineWidth = 2;
    qreal m_cornerRadius = 3;
    BoxType m_boxType = BoxType::Circle;
};

// A checkmark placed in polar terms about the box centre, in units of the box's clear radius.
class M13CheckboxCheckPathGenerator : public M13CheckboxPathGenerator
{
public:
    struct PerBox
    {
        qreal circle;
        qreal square;
        qreal forBox(BoxType type) const { return type == BoxType::Square ? square : circle; }
    };
    struct CheckmarkProperties
    {
        // Where the long arm, carried on, would meet the box (radians, clockwise on screen).
        qreal longArmBoxIntersectionAngle = -0.595;
        PerBox longArmRadius{0.75, 0.8};
        // The bend: its distance from the centre and its turn from straight below the centre.
        PerBox middlePointRadius{0.45, 0.48};
        PerBox middlePointOffset{0.34, 0.34};
        // The free end of the short arm, turned from the long arm's opposite direction.
        PerBox shortArmRadius{0.55, 0.58};
        PerBox shortArmOffset{0.595, 0.595};
    };

    CheckmarkProperties checkmarkProperties;

protected:
    M13CheckboxPath checkedMark() const override;
};

// A solid dot, drawn as a thick round stroke so it can be drawn on like any other mark.
class M13CheckboxRadioPathGenerator : public M13CheckboxPathGenerator
{
public:
    qreal markLineWidth(CheckState state) const override;

protected:
    M13CheckboxPath checkedMark() const override;
    qreal dotRadius() const;
};

// A plus when checked and a minus when mixed; the upright bar lies down to morph between them.
class M13CheckboxAddRemovePathGenerator : public M13CheckboxPathGenerator
{
protected:
    M13CheckboxPath checkedMark() const override { return bars(true); }
    M13CheckboxPath mixedMark() const override { return bars(false); }

private:
    // The level bar, then the second bar: upright, or lying on the first.
    M13CheckboxPath bars(bool upright) const;
};

// A chevron pointing right, as on a row that opens more.
class M13CheckboxDisclosurePathGenerator : public M13CheckboxPathGenerator
{
protected:
    M13CheckboxPath checkedMark() const override;
};
