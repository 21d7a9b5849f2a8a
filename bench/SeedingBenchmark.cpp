// Seeding benchmark: the page seeding (clear every page, then load the 732 pages of the built-in
// book: a duplicate check a page, all saved in one transaction), which the build runs once and a
// first launch runs when the seeded book does not apply (another bundle), against a floor
// in the same run, a bare SQLite loop through Qt SQL: a prepared check and insert a page inside
// one transaction, on a freshly created store with the same schema and settings.
// Prints both and their ratio; nothing is asserted.
#include "AppDelegate.h"
#include "Bundle.h"
#include "Log.h"
#include "PageFile.h"
#include "PageSeeding.h"
#include "PersistentContainer.h"

#include <QCoreApplication>
#include <QDir>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <map>

using namespace Qt::StringLiterals;

namespace {
using Clock = std::chrono::steady_clock;

// The seeding exactly as a first launch runs it, into a fresh data folder.
void BM_Seeding(benchmark::State &state)
{
    for (auto _ : state) {
        QTemporaryDir data;
        PersistentContainer::setDefaultDirectory(data.path());
        AppDelegate::shared().reset();
        const auto start = Clock::now();
        PageSeeding seeding;
        seeding.clearPoemPrayers();
        seeding.loadPoemPrayers(PageFile::columns);
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        AppDelegate::shared().reset();
    }
}

// The pages of the built-in book as (month, day, ampm, values in column order), parsed once.
struct Row {
    QVariant month, day, ampm;
    QVariantList values;
};

QList<Row> bookRows()
{
    const auto text = PageFile::read(Bundle::main().pathForResource({}, u"txt"_s), u"Book.txt"_s);
    QList<Row> rows;
    for (const QString &line : PageFile::lines(std::get<QString>(text))) {
        const QStringList pieces = PageFile::pieces(line);
        QVariantList values(PageFile::columns.size());
        const auto parsed = PageFile::assignments(pieces, PageFile::columns);
        for (const PageFile::Assignment &assignment : std::get<QList<PageFile::Assignment>>(parsed))
            values[PageFile::columns.indexOf(assignment.column)] = assignment.value;
        rows.append({pieces.value(2).toInt(), pieces.value(3).toInt(), pieces.value(1), values});
    }
    return rows;
}

// The floor: open, create the table and index, BEGIN, per page a check and an INSERT, COMMIT.
void BM_BareSqliteLoop(benchmark::State &state)
{
    static const QList<Row> rows = bookRows();
    for (auto _ : state) {
        QTemporaryDir data;
        const auto start = Clock::now();
        {
            QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"floor"_s);
            database.setDatabaseName(QDir(data.path()).filePath(u"floor.sqlite"_s));
            database.open();
            QSqlQuery setup(database);
            setup.exec(u"PRAGMA journal_mode = WAL"_s);
            setup.exec(u"PRAGMA synchronous = NORMAL"_s);
            setup.exec(u"CREATE TABLE \"PoemPrayer\" (id INTEGER PRIMARY KEY, \"ampm\" TEXT, \"day\" INTEGER, "
                       "\"dt\" TEXT, \"favorite\" TEXT, \"month\" INTEGER, \"pagenum\" INTEGER, \"poemprayer\" TEXT)"_s);
            setup.exec(u"CREATE INDEX PoemPrayerDay ON \"PoemPrayer\" (\"month\", \"day\", \"ampm\")"_s);
            QSqlQuery check(database), insert(database);
            check.prepare(u"SELECT id FROM \"PoemPrayer\" WHERE month = ? AND day = ? AND ampm = ?"_s);
            setup.exec(u"BEGIN"_s);
            insert.prepare(u"INSERT INTO \"PoemPrayer\" (\"dt\", \"ampm\", \"month\", \"day\", \"pagenum\", "
                           "\"favorite\", \"poemprayer\") VALUES (?, ?, ?, ?, ?, ?, ?)"_s);
            for (const Row &row : rows) {
                check.bindValue(0, row.month);
                check.bindValue(1, row.day);
                check.bindValue(2, row.ampm);
                check.exec();
                const bool exists = check.next();
                check.finish();
                if (exists)
                    continue;
                for (qsizetype i = 0; i < row.values.size(); ++i)
                    insert.bindValue(int(i), row.values[i]);
                insert.exec();
            }
            setup.exec(u"COMMIT"_s);
        }
        QSqlDatabase::removeDatabase(u"floor"_s);
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    }
}

BENCHMARK(BM_Seeding)->UseManualTime()->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_BareSqliteLoop)->UseManualTime()->Unit(benchmark::kMillisecond)->Repetitions(5);

// Keeps each benchmark's median, for the ratio printed at the end.
class MedianReporter : public benchmark::ConsoleReporter
{
public:
    MedianReporter() : ConsoleReporter(OO_Tabular) {} // plain text, for logs
    std::map<std::string, double> medians;
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.aggregate_name == "median")
                medians[run.run_name.function_name] = run.GetAdjustedRealTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }
};
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    Log::setSink([](const QString &) {});
    benchmark::Initialize(&argc, argv);
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    const double seeding = reporter.medians["BM_Seeding"];
    const double floor = reporter.medians["BM_BareSqliteLoop"];
    if (seeding > 0 && floor > 0)
        std::printf("\nseeding / bare SQLite loop (medians) = %.1f ms / %.1f ms = %.2f\n", seeding, floor, seeding / floor);
    return 0;
}
