#pragma once

#include "FetchRequest.h"
#include "ManagedObject.h"

#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariantMap>
#include <functional>
#include <memory>
#include <vector>

// An error of the store: a description and the details behind it.
struct StoreError {
    QString description;
    QVariantMap userInfo;
    // "Unresolved error <description>, <user information>": the form of every fatal store stop.
    QString unresolvedMessage() const;
};

// The working set of stored objects on one database connection. It keeps one live object per
// row (two fetches of a row give the same object), tracks inserts, changes and deletions, and
// writes them all in one transaction on save. Objects live as long as their context.
class ManagedObjectContext
{
public:
    explicit ManagedObjectContext(const QString &connectionName);
    ~ManagedObjectContext();

    // Objects matching the request; unsaved changes of this context count. On a failure the
    // list is empty and the error is reported through `error`.
    QList<ManagedObject *> execute(const FetchRequest &request, std::optional<StoreError> *error = nullptr);
    template<typename T>
    QList<T *> fetch(const FetchRequest &request, std::optional<StoreError> *error = nullptr)
    {
        QList<T *> objects;
        for (ManagedObject *object : execute(request, error))
            objects.append(static_cast<T *>(object));
        return objects;
    }

    // The stored values of `columns`, row by row in the request's order, read straight from the
    // store without making objects, for a reader that only copies them out. Returns false, and
    // reads nothing, while this context holds unsaved changes of the entity: only its objects
    // show those.
    bool readStoredRows(const FetchRequest &request, const QStringList &columns,
                        const std::function<void(const QSqlQuery &)> &row, std::optional<StoreError> *error = nullptr);

    template<typename T>
    T *insertNewObject()
    {
        auto object = std::make_unique<T>(this);
        T *raw = object.get();
        adopt(std::move(object));
        return raw;
    }
    void deleteObject(ManagedObject *object);

    bool hasChanges() const;
    // Writes every insert, change and deletion since the last save in one transaction.
    std::optional<StoreError> save();
    // Forgets what was done to this object since the last save: changed, it reads as stored
    // again; inserted, it is gone; deleted, it is back.
    void discardChanges(ManagedObject *object);

private:
    friend class ManagedObject;
    void adopt(std::unique_ptr<ManagedObject> object);
    void markUpdated(ManagedObject *object);
    ManagedObject *objectForRow(const EntityDescription &entity, const QSqlQuery &query);
    // The statement for this SQL, prepared on first use and kept for the context's lifetime.
    QSqlQuery &prepared(const QString &sql);
    // The SQL texts of an entity, built once. Writes name their placeholders (":v0" for the
    // first attribute, ..., ":id"): Qt binds a name without formatting a name for the position.
    struct EntitySql {
        QString select, insert, update, remove;
        QStringList valueNames;
    };
    const EntitySql &sqlFor(const EntityDescription &entity);
    // The prepared, bound query of a request selecting `select` columns; nullptr on a failure.
    QSqlQuery *runSelect(const FetchRequest &request, const EntityDescription &entity, const QString &select,
                         std::optional<StoreError> *error);
    bool hasChangesOf(const QString &entityName) const;
    StoreError errorOf(const QSqlQuery &query) const;
    std::optional<StoreError> execTransactionStatement(const QString &sql, const char *failure);
    void writeObject(ManagedObject *object, std::optional<StoreError> &error);
    void sortInMemory(QList<ManagedObject *> &objects, const QList<SortDescriptor> &sort) const;

    QString m_connectionName;
    QSqlDatabase m_database; // the connection, looked up once
    std::vector<std::unique_ptr<ManagedObject>> m_objects;
    QHash<QString, QHash<qint64, ManagedObject *>> m_registered; // entity → id → object
    QList<ManagedObject *> m_inserted;
    QList<ManagedObject *> m_updated;
    QList<ManagedObject *> m_deleted;
    QHash<QString, std::shared_ptr<QSqlQuery>> m_statements;
    QHash<const EntityDescription *, EntitySql> m_entitySql;
};
