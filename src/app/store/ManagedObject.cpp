#include "ManagedObject.h"

#include "FatalError.h"
#include "ManagedObjectContext.h"

using namespace Qt::StringLiterals;

const QList<EntityDescription> &EntityDescription::model()
{
    using enum AttributeType;
    static const QList<EntityDescription> entities{
        {u"PoemPrayer"_s, {{u"ampm"_s, String}, {u"day"_s, Integer16}, {u"dt"_s, String},
                           {u"favorite"_s, String}, {u"month"_s, Integer16}, {u"pagenum"_s, Integer16},
                           {u"poemprayer"_s, String}}},
        {u"Notes"_s, {{u"ampm"_s, String}, {u"day"_s, Integer16}, {u"dt"_s, Date},
                      {u"dtstring"_s, String}, {u"month"_s, Integer16}, {u"notes"_s, String},
                      {u"subject"_s, String}, {u"year"_s, Integer16}}},
        {u"SpecialDay"_s, {{u"ampm"_s, String}, {u"dayname"_s, String}, {u"poemprayer"_s, String}}},
        {u"About"_s, {{u"aboutText"_s, String}, {u"name"_s, String}}},
    };
    return entities;
}

const EntityDescription &EntityDescription::named(const QString &entityName)
{
    for (const EntityDescription &entity : model()) {
        if (entity.name == entityName)
            return entity;
    }
    fatalError(u"Fatal error: the model has no entity named \"%1\""_s.arg(entityName));
}

qsizetype EntityDescription::indexOf(const QString &attribute) const
{
    for (qsizetype i = 0; i < attributes.size(); ++i) {
        if (attributes[i].name == attribute)
            return i;
    }
    return -1;
}

std::optional<AttributeType> EntityDescription::typeOf(const QString &attribute) const
{
    const qsizetype index = indexOf(attribute);
    return index < 0 ? std::nullopt : std::optional(attributes[index].type);
}

ManagedObject::ManagedObject(const EntityDescription &entity, ManagedObjectContext *context)
    : m_entity(entity)
    , m_context(context)
    , m_values(entity.attributes.size())
{
}

void ManagedObject::setValueForKey(const QString &key, const QVariant &value)
{
    const qsizetype index = m_entity.indexOf(key);
    if (index < 0)
        fatalError(u"Fatal error: the entity %1 has no attribute \"%2\""_s.arg(m_entity.name, key));
    QVariant stored;
    if (value.isValid()) {
        switch (m_entity.attributes[index].type) {
        case AttributeType::String: stored = value.toString(); break;
        case AttributeType::Integer16: stored = int(qint16(value.toInt())); break;
        case AttributeType::Date: stored = value.toDateTime().toLocalTime(); break; // as read back
        }
    }
    if (!m_inserted && m_context)
        m_context->markUpdated(this);
    m_values[index] = stored;
}

std::optional<QString> ManagedObject::string(const QString &key) const
{
    const QVariant value = valueForKey(key);
    return value.isValid() ? std::optional(value.toString()) : std::nullopt;
}

qint16 ManagedObject::integer16(const QString &key) const
{
    return qint16(valueForKey(key).toInt());
}

std::optional<QDateTime> ManagedObject::date(const QString &key) const
{
    const QVariant value = valueForKey(key);
    return value.isValid() ? std::optional(value.toDateTime()) : std::nullopt;
}
