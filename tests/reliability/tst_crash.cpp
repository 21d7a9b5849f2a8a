#include "AppDelegate.h"
#include "CrashValues.h"
#include "Entities.h"
#include "PageRows.h"
#include "PreferenceKeys.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>
#include <csignal>

using namespace Qt::StringLiterals;
using namespace CrashValues;

namespace {
constexpr int pageCount = 12;

// What the store and the preferences must hold, rebuilt from the worker's reports.
struct Expected {
    QHash<int, QString> favorite;   // page → "T" / "F"
    QHash<int, qint64> pageText;    // page → text number
    QMap<qint64, qint64> notes;     // note (subject number) → text number
    QHash<QString, QVariant> prefs; // key → value with its type

    void apply(const QString &line)
    {
        const QStringList f = line.split(u' ');
        if (f[1] == u"fav")
            favorite[f[2].toInt()] = f[3];
        else if (f[1] == u"page")
            pageText[f[2].toInt()] = f[3].toLongLong();
        else if (f[1] == u"note+")
            notes[f[2].toLongLong()] = f[2].toLongLong();
        else if (f[1] == u"note~")
            notes[f[2].toLongLong()] = f[3].toLongLong();
        else if (f[1] == u"note-")
            notes.remove(f[2].toLongLong());
        else if (f[1] == u"pref")
            prefs[f[2]] = typed(f[2], line.section(u' ', 3));
    }

    static QVariant typed(const QString &key, const QString &text)
    {
        if (key == PreferenceKeys::ReaderFontSize.name)
            return text.toDouble();
        if (key == PreferenceKeys::useWallpaper.name)
            return text.toLongLong();
        return text;
    }
};

// The expected texts, made once each.
const QString &cachedText(qint64 n)
{
    static QHash<qint64, QString> texts;
    auto it = texts.find(n);
    if (it == texts.end())
        it = texts.insert(n, text(n));
    return *it;
}

QString storeFile(const QString &directory)
{
    return QDir(directory).filePath(u"TheLarkwellsBook.sqlite"_s);
}

// Reads the store with a connection of its own, as another program would.
class StoreReader
{
public:
    explicit StoreReader(const QString &directory) : m_path(storeFile(directory))
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"reader"_s);
        database.setDatabaseName(m_path);
        database.open();
    }
    ~StoreReader() { QSqlDatabase::removeDatabase(u"reader"_s); }

    QStringList integrity() const { return sqlRun(m_path, {u"PRAGMA integrity_check"_s}); }

    // Where the store differs from `expected`, empty when it does not.
    QString difference(const Expected &expected) const
    {
        QSqlQuery query(QSqlDatabase::database(u"reader"_s));
        query.exec(u"SELECT dt, favorite, poemprayer FROM PoemPrayer ORDER BY id"_s);
        int k = 0;
        for (; query.next(); ++k) {
            if (query.value(0).toString() != pageDt(k) || query.value(1).toString() != expected.favorite.value(k, u"F"_s)
                || query.value(2).toString() != cachedText(expected.pageText.value(k, k)))
                return u"page %1"_s.arg(k);
        }
        if (k != pageCount)
            return u"%1 pages"_s.arg(k);
        query.exec(u"SELECT subject, notes, year, month, day, ampm, dt, dtstring FROM Notes ORDER BY id"_s);
        QSet<qint64> seen;
        while (query.next()) {
            const qint64 m = query.value(0).toString().mid(1).toLongLong();
            if (!expected.notes.contains(m) || seen.contains(m))
                return u"unexpected note "_s + query.value(0).toString();
            seen.insert(m);
            if (query.value(1).toString() != cachedText(expected.notes[m]) || query.value(2).toInt() != year(m)
                || query.value(3).toInt() != month(m) || query.value(4).toInt() != day(m) || query.value(5).toString() != ampm(m)
                || QDateTime::fromString(query.value(6).toString(), Qt::ISODate) != date(m)
                || query.value(7).toString() != u"D%1"_s.arg(m))
                return u"note %1"_s.arg(m);
        }
        if (seen.size() != expected.notes.size())
            return u"%1 notes instead of %2"_s.arg(seen.size()).arg(expected.notes.size());
        return {};
    }

private:
    QString m_path;
};

QString preferencesDifference(const QString &directory, const Expected &expected)
{
    QFile file(QDir(directory).filePath(u"UserDefaults.json"_s));
    if (!file.open(QIODevice::ReadOnly))
        return expected.prefs.isEmpty() ? QString() : u"no preferences file"_s;
    const auto contents = UserDefaults::parse(file.readAll());
    if (!contents || !contents->malformedKeys.isEmpty())
        return u"preferences file damaged"_s;
    for (auto it = expected.prefs.begin(); it != expected.prefs.end(); ++it) {
        const QVariant stored = contents->values.value(it.key());
        if (stored.typeId() != it.value().typeId() || stored != it.value())
            return u"preference "_s + it.key();
    }
    return {};
}

struct Report {
    QStringList acknowledged; // "begin" lines of saves that returned
    QStringList pending;      // "begin" lines of a save that had started, not returned
    int saves = 0;            // saves that returned
};

Report readReport(const QByteArray &output)
{
    Report report;
    QStringList begun;
    bool saving = false;
    for (const QString &line : QString::fromUtf8(output).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u"begin "))
            begun.append(line);
        else if (line == u"save")
            saving = true;
        else if (line == u"ack") {
            report.acknowledged += begun;
            begun.clear();
            ++report.saves;
            saving = false;
        }
    }
    if (saving)
        report.pending = begun;
    return report;
}

bool startWorker(QProcess &worker, const QStringList &arguments)
{
    worker.start(QStringLiteral(STORE_WORKER_PATH), arguments);
    while (worker.waitForReadyRead(30000)) {
        if (worker.peek(6) == "ready\n") {
            worker.read(6);
            return true;
        }
    }
    return false;
}

void seedPages()
{
    QStringList pages;
    for (int k = 0; k < pageCount; ++k)
        pages << pageDt(k) + u"|AM|-|-|-|F|"_s + text(k);
    insertPages(pages);
    AppDelegate::shared().reset();
}

// Reads the worker's output into `seen` until it holds a whole line starting with `prefix`;
// that line, or nothing after 30 s.
QByteArray waitForLine(QProcess &worker, QByteArray &seen, const QByteArray &prefix)
{
    const QDeadlineTimer deadline(30000);
    for (;;) {
        const qsizetype at = ('\n' + seen).indexOf('\n' + prefix); // where that line starts in `seen`
        const qsizetype end = at < 0 ? -1 : seen.indexOf('\n', at);
        if (end >= 0)
            return seen.mid(at, end - at);
        if (!worker.waitForReadyRead(int(deadline.remainingTime())))
            return {};
        seen += worker.readAllStandardOutput();
    }
}
}

class TestCrash : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // LARKWELLS_CRASH_KILLS sets the number of kills (a longer run than the suite's).
    void killedWorkerLosesNoAcknowledgedSave()
    {
        TestEnvironment environment;
        const QString directory = environment.dataDirectory();
        seedPages();
        const int kills = qEnvironmentVariableIsSet("LARKWELLS_CRASH_KILLS") ? qEnvironmentVariableIntValue("LARKWELLS_CRASH_KILLS") : 200;
        QRandomGenerator random(QRandomGenerator::global()->generate());
        QProcess worker;
        worker.start(QStringLiteral(STORE_WORKER_PATH), {u"random"_s, directory});
        Expected expected;
        int acknowledged = 0, inFlight = 0, landed = 0;
        for (int kill = 0; kill < kills; ++kill) {
            worker.write(u"run %1 %2\n"_s.arg(random.generate()).arg(qint64(kill + 1) * 1000000).toUtf8());
            QByteArray seen; // each run reports from its "ready" line to "gone"
            const QByteArray ready = waitForLine(worker, seen, "ready ");
            QVERIFY2(!ready.isEmpty(), worker.readAllStandardError().constData());
            QTest::qSleep(int(random.bounded(20)));
            QCOMPARE(::kill(pid_t(ready.mid(6).toLongLong()), SIGKILL), 0);
            QVERIFY(!waitForLine(worker, seen, "gone").isEmpty());

            const Report report = readReport(seen);
            acknowledged += report.saves;
            for (const QString &line : report.acknowledged)
                expected.apply(line);
            Expected withPending = expected;
            for (const QString &line : report.pending)
                withPending.apply(line);
            inFlight += !report.pending.isEmpty();

            const StoreReader store(directory);
            QCOMPARE(store.integrity(), QStringList{u"ok"_s});
            const QString before = store.difference(expected) + preferencesDifference(directory, expected);
            if (before.isEmpty())
                continue;
            // Then the save in flight must have landed whole.
            const QString after = store.difference(withPending) + preferencesDifference(directory, withPending);
            QVERIFY2(after.isEmpty(), qPrintable(u"after kill %1: %2 / %3"_s.arg(kill).arg(before, after)));
            expected = withPending;
            ++landed;
        }
        worker.closeWriteChannel();
        QVERIFY(worker.waitForFinished(30000));
        qInfo("%d kills survived; saves acknowledged: %d; kills during a save: %d, of which the save had landed: %d",
              kills, acknowledged, inFlight, landed);
    }

    void terminationSignalsFinishTheSave_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
    }

    // Every note the worker began is in the store after the signal: the save in progress returns,
    // and the termination path saves the note left unsaved.
    void terminationSignalsFinishTheSave()
    {
        QFETCH(int, signal);
        TestEnvironment environment;
        const QString directory = environment.dataDirectory();
        seedPages();
        Expected expected;
        for (int round = 0; round < 5; ++round) {
            QProcess worker;
            QVERIFY(startWorker(worker, {u"term"_s, directory, QString::number((round + 1) * 1000000)}));
            QVERIFY(!worker.waitForFinished(int(QRandomGenerator::global()->bounded(5, 80))));
            ::kill(pid_t(worker.processId()), signal);
            QVERIFY(worker.waitForFinished(30000));
            QCOMPARE(worker.exitStatus(), QProcess::NormalExit);
            QCOMPARE(worker.exitCode(), 0);
            for (const QString &line : QString::fromUtf8(worker.readAllStandardOutput()).split(u'\n')) {
                if (line.startsWith(u"begin "))
                    expected.apply(line);
            }
            const StoreReader store(directory);
            QCOMPARE(store.integrity(), QStringList{u"ok"_s});
            QCOMPARE(store.difference(expected), QString());
        }
        QVERIFY(expected.notes.size() > 5);
    }

    void fullDiskFailsTheSaveAndKeepsEarlierData_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<QString>("failure");
        QTest::newRow("store") << u"full"_s << u"Unresolved error "_s;
        QTest::newRow("preferences") << u"fullpref"_s << u"Fatal error: cannot write the preferences file "_s;
    }

    void fullDiskFailsTheSaveAndKeepsEarlierData()
    {
        QFETCH(QString, mode);
        QFETCH(QString, failure);
        TestEnvironment environment;
        const QString directory = environment.dataDirectory();
        seedPages();
        Expected expected;
        expected.apply(u"begin note+ 7"_s);
        expected.apply(u"begin pref FontName Before"_s);
        fillNote(AppDelegate::shared().viewContext().insertNewObject<Notes>(), 7);
        QVERIFY(!AppDelegate::shared().viewContext().save());
        Preferences::write(PreferenceKeys::FontName, u"Before"_s);
        AppDelegate::shared().reset();

        QProcess worker;
        const qint64 limit = QFileInfo(storeFile(directory)).size() + 65536;
        QVERIFY(startWorker(worker, {mode, directory, QString::number(limit)}));
        QVERIFY(worker.waitForFinished(30000));
        const QString error = QString::fromUtf8(worker.readAllStandardError());
        QCOMPARE(worker.exitStatus(), QProcess::NormalExit);
        QCOMPARE(worker.exitCode(), EXIT_FAILURE);
        QVERIFY2(error.startsWith(failure), qPrintable(error));
        QVERIFY2(error.contains(directory), qPrintable(error));
        QVERIFY(!worker.readAllStandardOutput().contains("survived"));

        // The next start opens normally and finds what was there before.
        QCOMPARE(AppDelegate::shared().viewContext().fetch<Notes>(Notes::fetchRequest()).size(), 1);
        AppDelegate::shared().reset();
        const StoreReader store(directory);
        QCOMPARE(store.integrity(), QStringList{u"ok"_s});
        QCOMPARE(store.difference(expected), QString());
        QCOMPARE(preferencesDifference(directory, expected), QString());
        QCOMPARE(QDir(directory).entryList({u"UserDefaults*"_s}, QDir::Files), QStringList{u"UserDefaults.json"_s});
    }
};

QTEST_GUILESS_MAIN(TestCrash)
#include "tst_crash.moc"
