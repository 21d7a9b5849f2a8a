#pragma once

#include <QList>
#include <QString>
#include <QVariant>
#include <optional>

class ManagedObject;
struct EntityDescription;

// A typed predicate: attribute equals value, AND, OR. It becomes SQL with bound parameters and
// can also be evaluated on an object in memory (for changes not yet saved). A value compared
// with a 16-bit integer attribute may be decimal text: "1" matches 1, text that is not a
// number matches nothing.
class Predicate
{
public:
    static Predicate equals(const QString &attribute, const QVariant &value);
    static Predicate conjunction(const QList<Predicate> &subpredicates);
    static Predicate disjunction(const QList<Predicate> &subpredicates);

    QString sql(const EntityDescription &entity, QVariantList &bindings) const;
    bool evaluate(const ManagedObject &object) const;

private:
    enum class Kind { Equals, And, Or };
    Predicate(Kind kind, QString attribute, QVariant value, QList<Predicate> subpredicates);
    void appendSql(const EntityDescription &entity, QString &out, QVariantList &bindings) const;

    Kind m_kind;
    QString m_attribute;
    QVariant m_value;
    QList<Predicate> m_subpredicates;
};

struct SortDescriptor {
    QString key;
    bool ascending = true;
};

struct FetchRequest {
    explicit FetchRequest(QString entity) : entityName(std::move(entity)) {}
    QString entityName;
    std::optional<Predicate> predicate;
    QList<SortDescriptor> sortDescriptors;
};

// The value of an attribute comparable with the stored value, or invalid when it can match
// nothing (text that is not a number against a number attribute).
QVariant comparableValue(const EntityDescription &entity, const QString &attribute, const QVariant &value);
