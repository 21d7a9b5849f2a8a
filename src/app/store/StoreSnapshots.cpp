#include "StoreSnapshots.h"

#include "AppDelegate.h"
#include "Entities.h"
#include "Log.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

namespace {
const QString storeFileName = u"TheLarkwellsBook.sqlite"_s;

// A connection of its own for the duration of one job, closed and removed after it.
class Connection
{
public:
    explicit Connection(const QString &path)
        : m_name(u"snapshot-"_s + QString::number(++serial))
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_name);
        database.setDatabaseName(path);
        m_open = database.open();
    }
    ~Connection()
    {
        QSqlDatabase::database(m_name, false).close();
        QSqlDatabase::removeDatabase(m_name);
    }
    bool isOpen() const { return m_open; }
    QSqlDatabase database() const { return QSqlDatabase::database(m_name, false); }

private:
    static inline int serial = 0;
    QString m_name;
    bool m_open = false;
};

// Snapshot files are "<number>-<reason>.sqlite"; the number grows with each copy.
int numberOf(const QString &fileName)
{
    return fileName.section(u'-', 0, 0).toInt();
}

// A NULL column is an absent value.
QVariant orAbsent(const QVariant &value)
{
    return value.isNull() ? QVariant() : value;
}

void prune()
{
    const QStringList files = StoreSnapshots::all();
    for (qsizetype i = 0; i < files.size() - StoreSnapshots::kept; ++i)
        QFile::remove(files[i]);
}
}

QString StoreSnapshots::directory()
{
    return QDir(PersistentContainer::defaultDirectory()).filePath(u"snapshots"_s);
}

QStringList StoreSnapshots::all()
{
    QStringList names = QDir(directory()).entryList({u"*.sqlite"_s}, QDir::Files);
    std::sort(names.begin(), names.end(), [](const QString &a, const QString &b) { return numberOf(a) < numberOf(b); });
    for (QString &name : names)
        name = QDir(directory()).filePath(name);
    return names;
}

std::optional<QString> StoreSnapshots::take(const QString &reason)
{
    const QString store = QDir(PersistentContainer::defaultDirectory()).filePath(storeFileName);
    if (!QFileInfo::exists(store) || !QDir().mkpath(directory()))
        return std::nullopt;
    const QStringList existing = all();
    const int number = existing.isEmpty() ? 1 : numberOf(QFileInfo(existing.last()).fileName()) + 1;
    const QString target = QDir(directory()).filePath(u"%1-%2.sqlite"_s.arg(number, 6, 10, QChar(u'0')).arg(reason));
    Connection connection(store);
    QSqlQuery query(connection.database());
    // VACUUM INTO copies a consistent state of the store, write-ahead log included.
    query.prepare(u"VACUUM INTO ?"_s);
    query.addBindValue(target);
    if (!connection.isOpen() || !query.exec()) {
        Log::line(u"The store could not be copied before \"%1\": %2"_s.arg(reason, query.lastError().text()));
        return std::nullopt;
    }
    query.finish();
    prune();
    return target;
}

QString StoreSnapshots::latest(const QString &reason)
{
    QString newest;
    for (const QString &file : all()) {
        if (file.endsWith(u'-' + reason + u".sqlite"_s))
            newest = file;
    }
    return newest;
}

bool StoreSnapshots::restoreArticles(const QString &snapshot)
{
    if (snapshot.isEmpty() || !QFileInfo::exists(snapshot))
        return false;
    QList<std::pair<QVariant, QVariant>> articles;
    {
        Connection connection(snapshot);
        QSqlQuery query(connection.database());
        if (!connection.isOpen() || !query.exec(u"SELECT name, aboutText FROM About ORDER BY id"_s))
            return false;
        while (query.next())
            articles.append({orAbsent(query.value(0)), orAbsent(query.value(1))});
    }
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    for (About *article : context.fetch<About>(About::fetchRequest()))
        context.deleteObject(article);
    for (const auto &[name, text] : std::as_const(articles)) {
        About *article = context.insertNewObject<About>();
        article->setValueForKey(u"name"_s, name);
        article->setValueForKey(u"aboutText"_s, text);
    }
    if (const auto error = context.save()) {
        Log::line(error->unresolvedMessage());
        return false;
    }
    return true;
}
