#include "FetchRequest.h"

#include "FatalError.h"
#include "ManagedObject.h"

#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

Predicate::Predicate(Kind kind, QString attribute, QVariant value, QList<Predicate> subpredicates)
    : m_kind(kind), m_attribute(std::move(attribute)), m_value(std::move(value)), m_subpredicates(std::move(subpredicates))
{
}

Predicate Predicate::equals(const QString &attribute, const QVariant &value)
{
    return Predicate(Kind::Equals, attribute, value, {});
}

Predicate Predicate::conjunction(const QList<Predicate> &subpredicates)
{
    return Predicate(Kind::And, {}, {}, subpredicates);
}

Predicate Predicate::disjunction(const QList<Predicate> &subpredicates)
{
    return Predicate(Kind::Or, {}, {}, subpredicates);
}

namespace {
// A sign and digits only: text the pattern below accepts, recognised without running it.
bool plainDecimal(QStringView text)
{
    if (!text.isEmpty() && (text.front() == u'+' || text.front() == u'-'))
        text = text.sliced(1);
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}
}

QVariant comparableValue(const EntityDescription &entity, const QString &attribute, const QVariant &value)
{
    const auto type = entity.typeOf(attribute);
    if (!type)
        fatalError(u"Fatal error: the entity %1 has no attribute \"%2\""_s.arg(entity.name, attribute));
    switch (*type) {
    case AttributeType::String:
        return value.toString();
    case AttributeType::Date:
        return value.toDateTime().toUTC();
    case AttributeType::Integer16:
        if (value.typeId() != QMetaType::QString)
            return value.toLongLong();
        static const QRegularExpression decimal(u"^[+-]?[0-9]+$"_s);
        const QString text = value.toString();
        bool ok = false;
        const qlonglong number = text.toLongLong(&ok);
        return ok && (plainDecimal(text) || decimal.match(text).hasMatch()) ? QVariant(number) : QVariant();
    }
    return {};
}

QString Predicate::sql(const EntityDescription &entity, QVariantList &bindings) const
{
    QString out;
    appendSql(entity, out, bindings);
    return out;
}

// Writes into one string: the fetch of every seeded page runs this.
void Predicate::appendSql(const EntityDescription &entity, QString &out, QVariantList &bindings) const
{
    if (m_kind == Kind::Equals) {
        const QVariant value = comparableValue(entity, m_attribute, m_value);
        if (!value.isValid()) {
            out += u'0';
            return;
        }
        const auto type = entity.typeOf(m_attribute);
        bindings.append(*type == AttributeType::Date ? QVariant(value.toDateTime().toString(Qt::ISODate)) : value);
        // An unset number reads as 0.
        const bool orUnset = *type == AttributeType::Integer16 && value.toLongLong() == 0;
        out += orUnset ? u"(\""_s : u"\""_s;
        out += m_attribute;
        out += u"\" = ?"_s;
        if (orUnset) {
            out += u" OR \""_s;
            out += m_attribute;
            out += u"\" IS NULL)"_s;
        }
        return;
    }
    if (m_subpredicates.isEmpty()) {
        out += m_kind == Kind::And ? u'1' : u'0';
        return;
    }
    for (qsizetype i = 0; i < m_subpredicates.size(); ++i) {
        if (i > 0)
            out += m_kind == Kind::And ? u" AND "_s : u" OR "_s;
        out += u'(';
        m_subpredicates[i].appendSql(entity, out, bindings);
        out += u')';
    }
}

bool Predicate::evaluate(const ManagedObject &object) const
{
    switch (m_kind) {
    case Kind::Equals: {
        const QVariant wanted = comparableValue(object.entity(), m_attribute, m_value);
        const QVariant stored = object.valueForKey(m_attribute);
        const auto type = object.entity().typeOf(m_attribute);
        if (wanted.isValid() && *type == AttributeType::Integer16)
            return stored.toLongLong() == wanted.toLongLong(); // an unset number reads as 0
        if (!wanted.isValid() || !stored.isValid())
            return false;
        if (*type == AttributeType::Date)
            return stored.toDateTime() == wanted.toDateTime();
        return stored.toString() == wanted.toString();
    }
    case Kind::And:
        return std::all_of(m_subpredicates.begin(), m_subpredicates.end(),
                           [&](const Predicate &p) { return p.evaluate(object); });
    case Kind::Or:
        return std::any_of(m_subpredicates.begin(), m_subpredicates.end(),
                           [&](const Predicate &p) { return p.evaluate(object); });
    }
    return false;
}
