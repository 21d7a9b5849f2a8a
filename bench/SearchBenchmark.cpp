// Search benchmark: the search list's filter, keystroke by keystroke, over the 732 pages of the
// built-in book, in both scopes: a word typed letter by letter, then cleared. Against a floor in
// the same run: a plain substring scan over the same fields lowered beforehand, collecting the
// matching pages. Prints the median time a keystroke of each and their ratio; nothing is asserted.
#include "AppDelegate.h"
#include "BenchData.h"
#include "BenchTable.h"
#include "Log.h"
#include "PageFile.h"
#include "PageSeeding.h"
#include "PersistentContainer.h"
#include "SearchTableViewController.h"
#include "UserDefaults.h"

#include <QGuiApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {
using Clock = std::chrono::steady_clock;

constexpr int rounds = 200;


double medianMs(QList<double> samples)
{
    std::sort(samples.begin(), samples.end());
    return samples[samples.size() / 2];
}

// Milliseconds a keystroke, one sample a round.
QList<double> timeController(SearchTableViewController &controller, const QStringList &texts)
{
    QList<double> samples;
    for (int round = 0; round < rounds; ++round) {
        const auto start = Clock::now();
        for (const QString &text : texts)
            controller.setSearchText(text);
        samples.append(std::chrono::duration<double, std::milli>(Clock::now() - start).count() / texts.size());
    }
    return samples;
}

QList<double> timeFloor(const QList<PoemPrayer *> &pages, int scope, const QStringList &texts)
{
    QStringList lowered;
    for (const PoemPrayer *page : pages)
        lowered.append((scope == 0 ? page->dt() : page->poemprayer()).value_or(QString()).toLower());
    QList<double> samples;
    qsizetype kept = 0;
    for (int round = 0; round < rounds; ++round) {
        const auto start = Clock::now();
        for (const QString &text : texts) {
            QList<PoemPrayer *> found;
            for (qsizetype i = 0; i < lowered.size(); ++i) {
                if (lowered.at(i).contains(text))
                    found.append(pages.at(i));
            }
            kept += found.size();
        }
        samples.append(std::chrono::duration<double, std::milli>(Clock::now() - start).count() / texts.size());
    }
    if (kept < 0)
        std::puts(""); // keeps the scan from being optimised away
    return samples;
}
}

int main(int argc, char **argv)
{
    useOffscreenUnlessTold();
    QGuiApplication app(argc, argv);
    const BenchData data;
    PageSeeding seeding;
    seeding.loadPoemPrayers(PageFile::columns);

    SearchTableViewController controller;
    controller.viewDidLoad();
    std::printf("%lld pages\n", static_cast<long long>(controller.PoemList().size()));
    const struct {
        int scope;
        QString word;
    } cases[] = {{0, u"september 2"_s}, {1, u"lantern"_s}, {1, u"the"_s}};
    double worst = 0, worstFloor = 1;
    for (const auto &[scope, word] : cases) {
        controller.segmentedControlAction(scope);
        const QStringList texts = keystrokes(word);
        const double ours = medianMs(timeController(controller, texts));
        const double floor = medianMs(timeFloor(controller.PoemList(), scope, texts));
        std::printf("%-14s \"%s\": %.4f ms a keystroke, floor %.4f ms, ratio %.2f\n",
                    scope == 0 ? "Dates" : "Poems/Prayers", qPrintable(word), ours, floor, ours / floor);
        if (ours / floor > worst / worstFloor) {
            worst = ours;
            worstFloor = floor;
        }
    }
    printTableRow({"search, a keystroke, 732 pages (worst word)", "pre-lowered plain scan", worst, worstFloor, "ms", 2, 0.2});
    AppDelegate::shared().reset(); // the store closes while Qt is still up
    return 0;
}
