#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QVariant>
#include <optional>

class ManagedObjectContext;

enum class AttributeType { String, Integer16, Date };

struct AttributeDescription {
    QString name;
    AttributeType type;
};

// One entity of the model "TheLarkwellsBook": its name and attributes in column order.
struct EntityDescription {
    QString name;
    QList<AttributeDescription> attributes;

    std::optional<AttributeType> typeOf(const QString &attribute) const;
    // The attribute's place in column order, or -1 when the entity has none of that name.
    qsizetype indexOf(const QString &attribute) const;
    static const EntityDescription &named(const QString &entityName);
    static const QList<EntityDescription> &model();
};

// A stored object. Attributes are optional: an unset value is an invalid QVariant (an unset
// string reads as absent, an unset 16-bit integer as 0). Setting a value marks the object
// changed until its context saves.
class ManagedObject
{
public:
    virtual ~ManagedObject() = default;
    ManagedObject(const ManagedObject &) = delete;
    ManagedObject &operator=(const ManagedObject &) = delete;

    const EntityDescription &entity() const { return m_entity; }
    ManagedObjectContext *managedObjectContext() const { return m_context; }
    qint64 objectID() const { return m_id; } // 0 until the object is first saved

    QVariant valueForKey(const QString &key) const { return m_values.value(m_entity.indexOf(key)); }
    // Assigns by attribute name; the value is converted to the attribute's type.
    void setValueForKey(const QString &key, const QVariant &value);

    bool isInserted() const { return m_inserted; }
    bool isUpdated() const { return m_updated; }
    bool isDeleted() const { return m_deleted; }

protected:
    ManagedObject(const EntityDescription &entity, ManagedObjectContext *context);

    std::optional<QString> string(const QString &key) const;
    qint16 integer16(const QString &key) const;
    std::optional<QDateTime> date(const QString &key) const;
    template<typename T>
    void setOptional(const QString &key, const std::optional<T> &value)
    {
        setValueForKey(key, value ? QVariant::fromValue(*value) : QVariant());
    }

private:
    friend class ManagedObjectContext;

    const EntityDescription &m_entity;
    ManagedObjectContext *m_context;
    qint64 m_id = 0;
    // In the entity's column order: a hash per object cost kilobytes a page and a note.
    QList<QVariant> m_values;
    QList<QVariant> m_stored; // the values as stored, while changed and not saved
    bool m_inserted = false;
    bool m_updated = false;
    bool m_deleted = false;
};
