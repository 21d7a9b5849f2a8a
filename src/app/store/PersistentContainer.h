#pragma once

#include "ManagedObjectContext.h"

#include <functional>
#include <memory>

// The store of the model "TheLarkwellsBook": one SQLite file, <directory>/<name>.sqlite, in WAL
// mode, with one table per entity. Several containers may be open on the same file.
class PersistentContainer
{
public:
    explicit PersistentContainer(const QString &name);
    ~PersistentContainer();
    PersistentContainer(const PersistentContainer &) = delete;
    PersistentContainer &operator=(const PersistentContainer &) = delete;

    // Where stores are kept (the application's data folder unless set).
    static QString defaultDirectory();
    static void setDefaultDirectory(const QString &directory);

    // Opens the store and brings its schema up to date; the handler gets the error, if any. An
    // empty, read-only, damaged or newer store is an error and is left exactly as it is.
    void loadPersistentStores(const std::function<void(const std::optional<StoreError> &)> &completion);
    ManagedObjectContext &viewContext();
    QString storePath() const;
    // Where no store exists yet, puts a copy of `filledStore` (a store file this version wrote)
    // in its place instead of an empty new one. False when a store is already there or the
    // copy could not be made; nothing half-made is left behind.
    bool adoptStore(const QString &filledStore) const;

private:
    std::optional<StoreError> open();
    std::optional<StoreError> create(const QString &path);
    static QString building(const QString &path);
    static std::optional<StoreError> moveIntoPlace(const QString &building, const QString &path);
    static std::optional<StoreError> refuseUnwritable(const QString &path);
    // Whether the store at `path` passes every check, read through on a connection of its own.
    bool readsSound(const QString &path) const;
    // `readThrough`: every page is read and its structure checked, not only the schema.
    static std::optional<StoreError> check(QSqlDatabase &database, const QString &path, bool readThrough);
    static std::optional<StoreError> configure(QSqlDatabase &database, const QString &path);
    static std::optional<StoreError> configureUnflushed(QSqlDatabase &database, const QString &path);
    static std::optional<StoreError> migrate(QSqlDatabase &database, const QString &path);
    static std::optional<StoreError> matchModel(QSqlDatabase &database, const QString &path);

    QString m_name;
    QString m_connectionName;
    std::unique_ptr<ManagedObjectContext> m_viewContext;
    QString m_soundStore; // the store this container opened and found sound
};
