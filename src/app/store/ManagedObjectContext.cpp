#include "ManagedObjectContext.h"

#include "Entities.h"
#include "FatalError.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QSqlRecord>
#include <limits>

using namespace Qt::StringLiterals;

namespace {
QString columnList(const EntityDescription &entity)
{
    QStringList columns{u"id"_s};
    for (const AttributeDescription &attribute : entity.attributes)
        columns.append(u'"' + attribute.name + u'"');
    return columns.join(u", "_s);
}

QVariant toColumn(AttributeType type, const QVariant &value)
{
    if (!value.isValid())
        return QVariant(type == AttributeType::Integer16 ? QMetaType(QMetaType::Int) : QMetaType(QMetaType::QString));
    if (type == AttributeType::Date)
        return value.toDateTime().toUTC().toString(Qt::ISODate);
    return value;
}

QVariant fromColumn(AttributeType type, const QVariant &value)
{
    if (value.isNull())
        return {};
    switch (type) {
    case AttributeType::String: return value.toString();
    case AttributeType::Integer16: return int(qint16(value.toInt()));
    // Kept in UTC, read back in local time, as every date the screens make is: a note's
    // calendar day is the reader's day, not Greenwich's.
    case AttributeType::Date: return QDateTime::fromString(value.toString(), Qt::ISODate).toLocalTime();
    }
    return {};
}

// Store order: an absent value sorts first, then numbers or text ascending.
int compareValues(const QVariant &a, const QVariant &b)
{
    if (!a.isValid() || !b.isValid())
        return int(a.isValid()) - int(b.isValid());
    if (a.typeId() == QMetaType::QString)
        return a.toString().compare(b.toString());
    if (a.typeId() == QMetaType::QDateTime)
        return a.toDateTime() < b.toDateTime() ? -1 : b.toDateTime() < a.toDateTime() ? 1 : 0;
    return a.toLongLong() < b.toLongLong() ? -1 : b.toLongLong() < a.toLongLong() ? 1 : 0;
}
}

QString StoreError::unresolvedMessage() const
{
    QStringList entries;
    for (auto it = userInfo.begin(); it != userInfo.end(); ++it)
        entries.append(it.key() + u" = "_s + it.value().toString() + u';');
    return u"Unresolved error "_s + description + u", {"_s + entries.join(u' ') + u'}';
}

ManagedObjectContext::ManagedObjectContext(const QString &connectionName)
    : m_connectionName(connectionName)
    , m_database(QSqlDatabase::database(connectionName, false))
{
}

ManagedObjectContext::~ManagedObjectContext() = default;

void ManagedObjectContext::adopt(std::unique_ptr<ManagedObject> object)
{
    object->m_inserted = true;
    m_inserted.append(object.get());
    m_objects.push_back(std::move(object));
}

void ManagedObjectContext::markUpdated(ManagedObject *object)
{
    if (!object->m_updated && !object->m_deleted) {
        object->m_updated = true;
        object->m_stored = object->m_values;
        m_updated.append(object);
    }
}

void ManagedObjectContext::deleteObject(ManagedObject *object)
{
    if (!object || object->m_deleted)
        return;
    if (object->m_inserted) {
        // Never saved: it simply stops being inserted.
        object->m_inserted = false;
        object->m_deleted = true;
        m_inserted.removeOne(object);
        return;
    }
    object->m_deleted = true;
    m_deleted.append(object);
}

bool ManagedObjectContext::hasChanges() const
{
    return !m_inserted.isEmpty() || !m_updated.isEmpty() || !m_deleted.isEmpty();
}

QSqlQuery &ManagedObjectContext::prepared(const QString &sql)
{
    auto &statement = m_statements[sql];
    if (!statement) {
        statement = std::make_shared<QSqlQuery>(m_database);
        statement->setForwardOnly(true);
        statement->prepare(sql);
    }
    return *statement;
}

const ManagedObjectContext::EntitySql &ManagedObjectContext::sqlFor(const EntityDescription &entity)
{
    auto it = m_entitySql.constFind(&entity);
    if (it != m_entitySql.constEnd())
        return *it;
    EntitySql sql;
    QStringList columns, assignments;
    for (const AttributeDescription &attribute : entity.attributes) {
        const QString column = u'"' + attribute.name + u'"';
        sql.valueNames.append(u":v"_s + QString::number(sql.valueNames.size()));
        columns.append(column);
        assignments.append(column + u" = "_s + sql.valueNames.last());
    }
    const QString table = u'"' + entity.name + u'"';
    sql.select = u"SELECT "_s + columnList(entity) + u" FROM "_s + table;
    sql.insert = u"INSERT INTO "_s + table + u" ("_s + columns.join(u", "_s) + u") VALUES ("_s
        + sql.valueNames.join(u", "_s) + u')';
    sql.update = u"UPDATE "_s + table + u" SET "_s + assignments.join(u", "_s) + u" WHERE id = :id"_s;
    sql.remove = u"DELETE FROM "_s + table + u" WHERE id = :id"_s;
    return *m_entitySql.insert(&entity, std::move(sql));
}

StoreError ManagedObjectContext::errorOf(const QSqlQuery &query) const
{
    const QSqlError error = query.lastError();
    return {error.text(),
            {{u"NSSQLiteErrorDomain"_s, error.nativeErrorCode()},
             {u"NSFilePath"_s, m_database.databaseName()},
             {u"reason"_s, error.databaseText()}}};
}

ManagedObject *ManagedObjectContext::objectForRow(const EntityDescription &entity, const QSqlQuery &query)
{
    const qint64 id = query.value(0).toLongLong();
    ManagedObject *&object = m_registered[entity.name][id];
    if (!object) {
        auto fresh = makeManagedObject(entity.name, this);
        fresh->m_id = id;
        object = fresh.get();
        m_objects.push_back(std::move(fresh));
    }
    if (!object->m_updated) {
        for (qsizetype i = 0; i < entity.attributes.size(); ++i)
            object->m_values[i] = fromColumn(entity.attributes[i].type, query.value(int(i) + 1));
    }
    return object;
}

void ManagedObjectContext::sortInMemory(QList<ManagedObject *> &objects, const QList<SortDescriptor> &sort) const
{
    std::stable_sort(objects.begin(), objects.end(), [&](const ManagedObject *a, const ManagedObject *b) {
        for (const SortDescriptor &key : sort) {
            const int order = compareValues(a->valueForKey(key.key), b->valueForKey(key.key));
            if (order != 0)
                return key.ascending ? order < 0 : order > 0;
        }
        // Saved rows in row order, then new objects in the order they were made.
        const qint64 ida = a->m_id ? a->m_id : std::numeric_limits<qint64>::max();
        const qint64 idb = b->m_id ? b->m_id : std::numeric_limits<qint64>::max();
        return ida < idb;
    });
}

QSqlQuery *ManagedObjectContext::runSelect(const FetchRequest &request, const EntityDescription &entity,
                                           const QString &select, std::optional<StoreError> *error)
{
    QVariantList bindings;
    QString sql = select;
    if (request.predicate)
        sql += u" WHERE "_s + request.predicate->sql(entity, bindings);
    QStringList order;
    for (const SortDescriptor &key : request.sortDescriptors) {
        if (!entity.typeOf(key.key))
            fatalError(u"Fatal error: the entity %1 has no attribute \"%2\" to sort by"_s.arg(entity.name, key.key));
        order.append(u'"' + key.key + (key.ascending ? u"\" ASC"_s : u"\" DESC"_s));
    }
    order.append(u"id ASC"_s);
    sql += u" ORDER BY "_s + order.join(u", "_s);

    QSqlQuery &query = prepared(sql);
    for (qsizetype i = 0; i < bindings.size(); ++i)
        query.bindValue(int(i), bindings[i]);
    if (!query.exec()) {
        if (error)
            *error = errorOf(query);
        return nullptr;
    }
    return &query;
}

bool ManagedObjectContext::hasChangesOf(const QString &entityName) const
{
    for (const QList<ManagedObject *> *changes : {&m_inserted, &m_updated, &m_deleted}) {
        for (const ManagedObject *object : *changes) {
            if (object->entity().name == entityName)
                return true;
        }
    }
    return false;
}

bool ManagedObjectContext::readStoredRows(const FetchRequest &request, const QStringList &columns,
                                          const std::function<void(const QSqlQuery &)> &row,
                                          std::optional<StoreError> *error)
{
    if (hasChangesOf(request.entityName))
        return false;
    const EntityDescription &entity = EntityDescription::named(request.entityName);
    QStringList quoted;
    for (const QString &column : columns) {
        if (!entity.typeOf(column))
            fatalError(u"Fatal error: the entity %1 has no attribute \"%2\""_s.arg(entity.name, column));
        quoted.append(u'"' + column + u'"');
    }
    QSqlQuery *query = runSelect(request, entity, u"SELECT "_s + quoted.join(u", "_s) + u" FROM \""_s + entity.name + u'"', error);
    if (!query)
        return true;
    while (query->next())
        row(*query);
    query->finish();
    return true;
}

QList<ManagedObject *> ManagedObjectContext::execute(const FetchRequest &request, std::optional<StoreError> *error)
{
    const EntityDescription &entity = EntityDescription::named(request.entityName);
    QSqlQuery *found = runSelect(request, entity, sqlFor(entity).select, error);
    if (!found)
        return {};
    QSqlQuery &query = *found;
    QList<ManagedObject *> objects;
    while (query.next()) {
        ManagedObject *object = objectForRow(entity, query);
        if (!object->m_deleted && !object->m_updated)
            objects.append(object);
    }
    query.finish();

    // Unsaved changes of this context count as if they were saved.
    bool pending = false;
    for (const QList<ManagedObject *> *changed : {&m_updated, &m_inserted}) {
        for (ManagedObject *object : *changed) {
            if (object->entity().name == entity.name && !object->m_deleted
                && (!request.predicate || request.predicate->evaluate(*object))) {
                objects.append(object);
                pending = true;
            }
        }
    }
    if (pending)
        sortInMemory(objects, request.sortDescriptors);
    return objects;
}

void ManagedObjectContext::writeObject(ManagedObject *object, std::optional<StoreError> &error)
{
    const EntityDescription &entity = object->entity();
    const EntitySql &sql = sqlFor(entity);
    QSqlQuery &query = prepared(object->m_deleted ? sql.remove : object->m_inserted ? sql.insert : sql.update);
    if (!object->m_deleted) {
        for (qsizetype i = 0; i < entity.attributes.size(); ++i)
            query.bindValue(sql.valueNames[i], toColumn(entity.attributes[i].type, object->m_values[i]));
    }
    if (!object->m_inserted)
        query.bindValue(u":id"_s, object->m_id);
    if (!query.exec()) {
        error = errorOf(query);
        return;
    }
    if (object->m_inserted)
        object->m_id = query.lastInsertId().toLongLong();
    query.finish();
}

// BEGIN and COMMIT as kept statements: the driver's transaction() and commit() would compile
// them anew on every save. Failures read as the driver's own.
std::optional<StoreError> ManagedObjectContext::execTransactionStatement(const QString &sql, const char *failure)
{
    QSqlQuery &query = prepared(sql);
    const bool ok = m_database.isOpen() && query.exec();
    const QString reason = query.lastError().databaseText();
    query.finish();
    if (ok)
        return std::nullopt;
    const QSqlError error(QCoreApplication::translate("QSQLiteDriver", failure), reason, QSqlError::TransactionError);
    return StoreError{error.text(), {{u"NSFilePath"_s, m_database.databaseName()}, {u"reason"_s, error.databaseText()}}};
}

std::optional<StoreError> ManagedObjectContext::save()
{
    if (!hasChanges())
        return std::nullopt;
    std::optional<StoreError> error = execTransactionStatement(u"BEGIN"_s, "Unable to begin transaction");
    if (error)
        return error;
    for (const QList<ManagedObject *> *changes : {&m_inserted, &m_updated, &m_deleted}) {
        for (ManagedObject *object : *changes) {
            if (!error)
                writeObject(object, error);
        }
    }
    if (!error)
        error = execTransactionStatement(u"COMMIT"_s, "Unable to commit transaction");
    if (error) {
        m_database.rollback();
        for (ManagedObject *object : std::as_const(m_inserted))
            object->m_id = 0;
        return error;
    }
    for (ManagedObject *object : std::as_const(m_inserted)) {
        object->m_inserted = false;
        m_registered[object->entity().name].insert(object->m_id, object);
    }
    for (ManagedObject *object : std::as_const(m_updated)) {
        object->m_updated = false;
        object->m_stored.clear();
    }
    for (ManagedObject *object : std::as_const(m_deleted))
        m_registered[object->entity().name].remove(object->m_id);
    m_inserted.clear();
    m_updated.clear();
    m_deleted.clear();
    return std::nullopt;
}

void ManagedObjectContext::discardChanges(ManagedObject *object)
{
    if (object->m_inserted) {
        deleteObject(object);
        return;
    }
    if (object->m_updated) {
        object->m_values = std::exchange(object->m_stored, {});
        object->m_updated = false;
        m_updated.removeOne(object);
    }
    if (object->m_deleted) {
        object->m_deleted = false;
        m_deleted.removeOne(object);
    }
}
