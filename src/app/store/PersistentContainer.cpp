#include "PersistentContainer.h"

#include "FatalError.h"
#include "ManagedObject.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {
bool flushToDisk(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && ::fsync(file.handle()) == 0;
}

QString &directorySetting()
{
    static QString directory;
    return directory;
}

StoreError errorOf(const QSqlError &error, const QString &path)
{
    return {error.text(), {{u"NSSQLiteErrorDomain"_s, error.nativeErrorCode()},
                           {u"NSFilePath"_s, path},
                           {u"reason"_s, error.databaseText()}}};
}

std::optional<StoreError> execAll(QSqlDatabase &database, const QString &path, const QStringList &statements)
{
    QSqlQuery query(database);
    for (const QString &statement : statements) {
        if (!query.exec(statement))
            return errorOf(query.lastError(), path);
    }
    return std::nullopt;
}

// A store found sound is not read through again while it stays as this application left it:
// the same size and times on disk, and no changes waiting in its log. One changed by anything
// else, or left with changes in its log by a process that ended without closing it, is checked.
// The mark lives in the cache folder: without it the store is only checked once more.
QString soundMarkPath(const QString &path)
{
    const QFileInfo store(path);
    return QDir(store.path()).filePath(u"cache/"_s + store.fileName() + u".sound"_s);
}

QByteArray fileMark(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return {};
    return QByteArray::number(file.size()) + ' ' + QByteArray::number(file.lastModified().toMSecsSinceEpoch()) + ' '
        + QByteArray::number(file.fileTime(QFileDevice::FileMetadataChangeTime).toMSecsSinceEpoch());
}

bool changesWaiting(const QString &path)
{
    return QFileInfo(path + u"-wal"_s).size() > 0;
}

bool knownSound(const QString &path)
{
    QFile mark(soundMarkPath(path));
    const QByteArray current = fileMark(path);
    return !current.isEmpty() && !changesWaiting(path) && mark.open(QIODevice::ReadOnly) && mark.readAll() == current;
}

void markSound(const QString &path)
{
    const QString markPath = soundMarkPath(path);
    if (changesWaiting(path) || !QDir().mkpath(QFileInfo(markPath).path()))
        return;
    QFile mark(markPath);
    if (mark.open(QIODevice::WriteOnly | QIODevice::Truncate))
        mark.write(fileMark(path));
}

// Each step brings the schema from version i to i + 1, in one transaction.
const QList<QStringList> migrations{
    {
        u"CREATE TABLE \"PoemPrayer\" (id INTEGER PRIMARY KEY, \"ampm\" TEXT, \"day\" INTEGER, \"dt\" TEXT, "
        "\"favorite\" TEXT, \"month\" INTEGER, \"pagenum\" INTEGER, \"poemprayer\" TEXT)"_s,
        u"CREATE TABLE \"Notes\" (id INTEGER PRIMARY KEY, \"ampm\" TEXT, \"day\" INTEGER, \"dt\" TEXT, "
        "\"dtstring\" TEXT, \"month\" INTEGER, \"notes\" TEXT, \"subject\" TEXT, \"year\" INTEGER)"_s,
        u"CREATE TABLE \"SpecialDay\" (id INTEGER PRIMARY KEY, \"ampm\" TEXT, \"dayname\" TEXT, \"poemprayer\" TEXT)"_s,
        u"CREATE TABLE \"About\" (id INTEGER PRIMARY KEY, \"aboutText\" TEXT, \"name\" TEXT)"_s,
        u"CREATE INDEX PoemPrayerDay ON \"PoemPrayer\" (\"month\", \"day\", \"ampm\")"_s,
    },
    // The lookups by name that seeding, saving and importing make for every line they read.
    {
        u"CREATE INDEX PoemPrayerDate ON \"PoemPrayer\" (\"dt\", \"ampm\")"_s,
        u"CREATE INDEX SpecialDayName ON \"SpecialDay\" (\"dayname\", \"ampm\")"_s,
        u"CREATE INDEX AboutName ON \"About\" (\"name\")"_s,
    },
};
}

QString PersistentContainer::defaultDirectory()
{
    if (directorySetting().isEmpty())
        return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return directorySetting();
}

void PersistentContainer::setDefaultDirectory(const QString &directory)
{
    directorySetting() = directory;
}

PersistentContainer::PersistentContainer(const QString &name)
    : m_name(name)
{
    static int serial = 0;
    m_connectionName = u"%1-%2"_s.arg(name).arg(++serial);
}

PersistentContainer::~PersistentContainer()
{
    m_viewContext.reset();
    if (QSqlDatabase::contains(m_connectionName)) {
        QSqlDatabase::database(m_connectionName, false).close();
        QSqlDatabase::removeDatabase(m_connectionName);
    }
    // Closed by the last connection, the log is written into the store and removed. A store
    // changed since it was found sound, by this session or by anything else, is read through
    // now, so that the next launch need not.
    if (!m_soundStore.isEmpty() && !changesWaiting(m_soundStore) && !knownSound(m_soundStore) && readsSound(m_soundStore))
        markSound(m_soundStore);
}

QString PersistentContainer::storePath() const
{
    return QDir(defaultDirectory()).filePath(m_name + u".sqlite"_s);
}

void PersistentContainer::loadPersistentStores(const std::function<void(const std::optional<StoreError> &)> &completion)
{
    const std::optional<StoreError> error = open();
    if (!error)
        m_viewContext = std::make_unique<ManagedObjectContext>(m_connectionName);
    completion(error);
}

ManagedObjectContext &PersistentContainer::viewContext()
{
    if (!m_viewContext)
        fatalError(u"Fatal error: the store \"%1\" was used before it was loaded"_s.arg(m_name));
    return *m_viewContext;
}

std::optional<StoreError> PersistentContainer::open()
{
    const QString path = storePath();
    if (!QDir().mkpath(defaultDirectory()))
        return StoreError{u"The folder for the store could not be created."_s, {{u"NSFilePath"_s, defaultDirectory()}}};
    if (!QFileInfo::exists(path)) {
        if (const auto error = create(path))
            return error;
    }
    if (const auto error = refuseUnwritable(path))
        return error;
    const bool sound = knownSound(path); // before this connection touches the store or its log
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_connectionName);
    database.setDatabaseName(path);
    if (!database.open())
        return errorOf(database.lastError(), path);
    // Reads only: a damaged or newer store is refused before anything could write to it.
    if (const auto error = check(database, path, !sound))
        return error;
    if (const auto error = configure(database, path))
        return error;
    if (const auto error = migrate(database, path))
        return error;
    if (!sound)
        markSound(path);
    m_soundStore = path;
    return std::nullopt;
}

bool PersistentContainer::readsSound(const QString &path) const
{
    const QString connection = m_connectionName + u"-check"_s;
    bool sound = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, connection);
        database.setDatabaseName(path);
        sound = database.open() && !check(database, path, true);
        database.close();
    }
    QSqlDatabase::removeDatabase(connection);
    return sound;
}

// A new store is built beside its final name and moved into place once its schema is written,
// so an interrupted first start leaves no empty or half-made store behind. Until then there is
// nothing to lose: SQLite writes it without flushing, and the finished file is flushed once.
std::optional<StoreError> PersistentContainer::create(const QString &path)
{
    const QString newStore = building(path);
    const QString connection = m_connectionName + u"-new"_s;
    std::optional<StoreError> error;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, connection);
        database.setDatabaseName(newStore);
        if (!database.open())
            error = errorOf(database.lastError(), newStore);
        if (!error)
            error = configureUnflushed(database, newStore);
        if (!error)
            error = migrate(database, newStore);
        database.close();
    }
    QSqlDatabase::removeDatabase(connection);
    return error ? error : moveIntoPlace(newStore, path);
}

bool PersistentContainer::adoptStore(const QString &filledStore) const
{
    const QString path = storePath();
    if (QFileInfo::exists(path) || !QDir().mkpath(defaultDirectory()))
        return false;
    QFile source(filledStore);
    if (!source.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = source.readAll();
    const QString copy = building(path);
    QFile target(copy);
    // Written rather than copied: a copy would take the source's read-only permissions.
    const bool written = !bytes.isEmpty() && target.open(QIODevice::WriteOnly) && target.write(bytes) == bytes.size();
    target.close();
    const bool placed = written && moveIntoPlace(copy, path) == std::nullopt;
    if (!placed)
        QFile::remove(copy);
    return placed;
}

// Where a new store is written before it is complete; whatever an interrupted start left there
// is removed.
QString PersistentContainer::building(const QString &path)
{
    const QString newStore = path + u".new"_s;
    for (const QString &suffix : {u""_s, u"-wal"_s, u"-shm"_s, u"-journal"_s})
        QFile::remove(newStore + suffix);
    return newStore;
}

std::optional<StoreError> PersistentContainer::moveIntoPlace(const QString &building, const QString &path)
{
    if (!flushToDisk(building))
        return StoreError{u"The new store could not be written to disk."_s, {{u"NSFilePath"_s, building}}};
    if (!QFile::rename(building, path))
        return StoreError{u"The new store could not be moved into place."_s, {{u"NSFilePath"_s, path}}};
    markSound(path); // written here, whole
    return std::nullopt;
}

std::optional<StoreError> PersistentContainer::refuseUnwritable(const QString &path)
{
    const QFileInfo file(path);
    if (file.size() == 0)
        return StoreError{u"The store file is empty."_s, {{u"NSFilePath"_s, path}}};
    // The owner's write bit counts even for a user who could write anyway.
    if (!file.isWritable() || !(file.permissions() & QFileDevice::WriteOwner))
        return StoreError{u"The store file is read-only."_s, {{u"NSFilePath"_s, path}}};
    return std::nullopt;
}

std::optional<StoreError> PersistentContainer::check(QSqlDatabase &database, const QString &path, bool readThrough)
{
    QSqlQuery query(database);
    if (!query.exec(u"PRAGMA busy_timeout = 5000"_s))
        return errorOf(query.lastError(), path);
    if (readThrough) {
        if (!query.exec(u"PRAGMA quick_check(1)"_s) || !query.next())
            return errorOf(query.lastError(), path);
        const QString verdict = query.value(0).toString();
        query.finish();
        if (verdict != u"ok"_s)
            return StoreError{u"The store file is damaged."_s, {{u"NSFilePath"_s, path}, {u"reason"_s, verdict}}};
    }
    if (!query.exec(u"PRAGMA user_version"_s) || !query.next())
        return errorOf(query.lastError(), path);
    const int version = query.value(0).toInt();
    query.finish();
    if (version > migrations.size())
        return StoreError{u"The store was written by a newer version of the application."_s,
                          {{u"NSFilePath"_s, path}, {u"version"_s, version}}};
    // Every column is there from the first version on; a store of none is still to be made.
    return version >= 1 ? matchModel(database, path) : std::nullopt;
}

std::optional<StoreError> PersistentContainer::configure(QSqlDatabase &database, const QString &path)
{
    // synchronous first: a new store's switch to WAL is then written with one disk flush fewer.
    return execAll(database, path, {u"PRAGMA synchronous = NORMAL"_s, u"PRAGMA journal_mode = WAL"_s,
                                    u"PRAGMA busy_timeout = 5000"_s});
}

std::optional<StoreError> PersistentContainer::configureUnflushed(QSqlDatabase &database, const QString &path)
{
    return execAll(database, path, {u"PRAGMA synchronous = OFF"_s, u"PRAGMA journal_mode = WAL"_s});
}

std::optional<StoreError> PersistentContainer::migrate(QSqlDatabase &database, const QString &path)
{
    QSqlQuery query(database);
    if (!query.exec(u"PRAGMA user_version"_s) || !query.next())
        return errorOf(query.lastError(), path);
    const int version = query.value(0).toInt();
    query.finish();
    for (int step = version; step < migrations.size(); ++step) {
        if (!database.transaction())
            return errorOf(database.lastError(), path);
        for (const QString &statement : migrations[step] + QStringList{u"PRAGMA user_version = %1"_s.arg(step + 1)}) {
            if (!query.exec(statement)) {
                const StoreError error = errorOf(query.lastError(), path);
                database.rollback();
                return error;
            }
        }
        if (!database.commit())
            return errorOf(database.lastError(), path);
    }
    return std::nullopt;
}

// A store with a table or a column missing (left so by another program, or by hand) is refused
// when it opens, not at the first fetch or save that reaches for it.
std::optional<StoreError> PersistentContainer::matchModel(QSqlDatabase &database, const QString &path)
{
    QSqlQuery query(database);
    if (!query.exec(u"SELECT t.name, c.name FROM sqlite_master AS t JOIN pragma_table_info(t.name) AS c "
                    "WHERE t.type = 'table'"_s))
        return errorOf(query.lastError(), path);
    QSet<QString> columns;
    while (query.next())
        columns.insert((query.value(0).toString() + u'.' + query.value(1).toString()).toLower()); // as SQLite reads names
    QStringList missing;
    for (const EntityDescription &entity : EntityDescription::model()) {
        for (const AttributeDescription &attribute : entity.attributes) {
            if (const QString column = entity.name + u'.' + attribute.name; !columns.contains(column.toLower()))
                missing << column;
        }
    }
    if (missing.isEmpty())
        return std::nullopt;
    return StoreError{u"The store does not match the book's model."_s,
                      {{u"NSFilePath"_s, path}, {u"missing"_s, missing.join(u", "_s)}}};
}
