// Update-file benchmark: the page export from the press to the text being built, for the 732
// pages of the built-in book and for a store of 10,000 pages, against two floors in the same
// run that write the same bytes: a bare SQL query feeding a plain append loop, and the plain
// loop alone over rows already in memory. Then the file shown in the export screen's text view,
// from the press to the first frame showing it, against the same press on an empty table.
// Prints medians and ratios; nothing is asserted.
#include "AppDelegate.h"
#include "BenchData.h"
#include "BenchTable.h"
#include "Bundle.h"
#include "Entities.h"
#include "ExportViewController.h"
#include "Log.h"
#include "PageFile.h"
#include "PersistentContainer.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <map>

Q_IMPORT_QML_PLUGIN(LarkwellsPlugin)

using namespace Qt::StringLiterals;

namespace {
using Clock = std::chrono::steady_clock;

// A data folder whose store holds `count` pages, the book's pages over and over.
class Store
{
public:
    explicit Store(int count)
    {
        PersistentContainer::setDefaultDirectory(m_data.path());
        AppDelegate::shared().reset();
        const auto text = PageFile::read(Bundle::main().pathForResource({}, u"txt"_s), u"Book.txt"_s);
        const QStringList lines = PageFile::lines(std::get<QString>(text));
        ManagedObjectContext &context = AppDelegate::shared().viewContext();
        for (int i = 0; i < count; ++i) {
            PoemPrayer *page = context.insertNewObject<PoemPrayer>();
            const auto parsed = PageFile::assignments(PageFile::pieces(lines[i % lines.size()]), PageFile::columns);
            for (const PageFile::Assignment &assignment : std::get<QList<PageFile::Assignment>>(parsed))
                page->setValueForKey(assignment.column, assignment.value);
        }
        context.save();
        AppDelegate::shared().reset(); // the press finds the pages not yet loaded
    }

private:
    QTemporaryDir m_data;
};

struct PlainRow {
    QString dt, ampm, favorite, poemprayer;
    int month, day, pagenum;
};

QString plainLoop(const std::vector<PlainRow> &rows)
{
    QString text = u"[POEMPRAYER]\n"_s;
    for (const PlainRow &row : rows) {
        text += row.dt + u'^' + row.ampm + u'^' + QString::number(row.month) + u'^' + QString::number(row.day) + u'^'
              + QString::number(row.pagenum) + u'^' + row.favorite + u'^' + row.poemprayer + u'\n';
    }
    return text;
}

std::vector<PlainRow> bareQuery()
{
    QSqlQuery query(QSqlDatabase::database(u"bench"_s));
    query.setForwardOnly(true);
    query.exec(u"SELECT dt, ampm, month, day, pagenum, favorite, poemprayer FROM PoemPrayer ORDER BY id"_s);
    std::vector<PlainRow> rows;
    while (query.next()) {
        rows.push_back({query.value(0).toString(), query.value(1).toString(), query.value(5).toString(),
                        query.value(6).toString(), query.value(2).toInt(), query.value(3).toInt(), query.value(4).toInt()});
    }
    return rows;
}

void BM_PageExport(benchmark::State &state)
{
    Store store(int(state.range(0)));
    for (auto _ : state) {
        AppDelegate::shared().persistentContainer(); // the store is open when the screen is
        const auto start = Clock::now();
        ExportViewController controller;
        benchmark::DoNotOptimize(controller.updateFileText());
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        AppDelegate::shared().reset();
    }
}

void withBenchConnection(const std::function<void()> &work)
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"bench"_s);
        database.setDatabaseName(PersistentContainer::defaultDirectory() + u"/TheLarkwellsBook.sqlite"_s);
        database.open();
        work();
    }
    QSqlDatabase::removeDatabase(u"bench"_s);
}

void BM_BareQueryAndLoop(benchmark::State &state)
{
    Store store(int(state.range(0)));
    withBenchConnection([&state] {
        for (auto _ : state) {
            const auto start = Clock::now();
            benchmark::DoNotOptimize(plainLoop(bareQuery()));
            state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
        }
    });
}

void BM_PlainLoop(benchmark::State &state)
{
    Store store(int(state.range(0)));
    std::vector<PlainRow> rows;
    withBenchConnection([&rows] { rows = bareQuery(); });
    {
        ExportViewController controller; // the floors write the very same bytes
        if (controller.updateFileText() != plainLoop(rows))
            state.SkipWithError("the plain loop writes other bytes than the export");
        AppDelegate::shared().reset();
    }
    for (auto _ : state) {
        const auto start = Clock::now();
        benchmark::DoNotOptimize(plainLoop(rows));
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    }
}

// From the export button's press to the first frame drawn with the text in the text view.
double pressToShown(int pages)
{
    Store store(pages);
    QQmlApplicationEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    engine.loadData("import QtQuick\nimport QtQuick.Controls\nimport Larkwells\n"
                    "ApplicationWindow { width: 412; height: 915; visible: true; ExportView { anchors.fill: parent } }");
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window)
        qFatal("the export screen did not load");
    auto *page = window->findChild<QQuickItem *>(u"ExportView"_s);
    auto *area = page->findChild<QQuickItem *>(u"ExportTextView"_s);
    QObject *controller = page->property("controller").value<QObject *>();
    QElapsedTimer settle;
    settle.start();
    while (settle.elapsed() < 300)
        QCoreApplication::processEvents();

    QElapsedTimer timer;
    bool shown = false;
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [&] {
        if (!area->property("text").toString().isEmpty())
            shown = true;
    });
    timer.start();
    QMetaObject::invokeMethod(controller, "CreateUpdateFile");
    window->requestUpdate();
    while (!shown)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double elapsed = timer.nsecsElapsed() / 1e6;
    AppDelegate::shared().reset();
    return elapsed;
}

BENCHMARK(BM_PageExport)->Arg(732)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_BareQueryAndLoop)->Arg(732)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond)->Repetitions(5);
BENCHMARK(BM_PlainLoop)->Arg(732)->Arg(10000)->UseManualTime()->Unit(benchmark::kMillisecond)->Repetitions(5);

class MedianReporter : public benchmark::ConsoleReporter
{
public:
    MedianReporter() : ConsoleReporter(OO_Tabular) {}
    std::map<std::string, double> medians;
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.aggregate_name == "median")
                medians[run.run_name.function_name + "/" + run.run_name.args] = run.GetAdjustedRealTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }
};

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}
}

int main(int argc, char **argv)
{
    useOffscreenUnlessTold();
    QGuiApplication app(argc, argv);
    Log::setSink([](const QString &) {});
    useTheApplicationsStyle();
    benchmark::Initialize(&argc, argv);
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    for (const char *pages : {"732", "10000"}) {
        const double exported = reporter.medians[std::string("BM_PageExport/") + pages];
        const double bare = reporter.medians[std::string("BM_BareQueryAndLoop/") + pages];
        const double plain = reporter.medians[std::string("BM_PlainLoop/") + pages];
        if (exported > 0 && bare > 0 && plain > 0)
            std::printf("%5s pages: export %.2f ms; / bare query + loop %.2f ms = %.2f; / plain loop %.2f ms = %.2f\n",
                        pages, exported, bare, exported / bare, plain, exported / plain);
        const std::string measure = std::string("page export, ") + pages + " pages";
        printTableRow({measure.c_str(), "bare query + plain loop", exported, bare, "ms", 2, 50});
        printTableRow({(measure + " (loop only)").c_str(), "plain loop over rows in memory", exported, plain, "ms", 2, 50});
    }
    QList<double> full, empty;
    for (int i = 0; i < 5; ++i) {
        full.append(pressToShown(732));
        empty.append(pressToShown(0));
    }
    std::printf("press to shown (medians of 5): 732 pages %.1f ms; empty table %.1f ms; ratio %.2f\n",
                median(full), median(empty), median(full) / median(empty));
    printTableRow({"export press to text shown, 732 pages", "the same press, empty table", median(full), median(empty),
                   "ms", 0, 100});
    return 0;
}
