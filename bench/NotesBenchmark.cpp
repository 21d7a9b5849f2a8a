// Notes benchmark: the notes list over a store of 10,000 notes (made here, never shipped).
//
//   open       the list's first fetch on a store not yet loaded, against a bare SQLite
//              connection opening the same file and reading the same rows in the same order
//   keystroke  the search in the "Notes" segment, a word typed letter by letter and cleared,
//              against a plain substring scan over the same texts lowered beforehand
//
// Rounds alternate the list and its floor; medians are printed. Nothing is asserted.
#include "AppDelegate.h"
#include "BenchData.h"
#include "BenchTable.h"
#include "Entities.h"
#include "Log.h"
#include "NotesTableViewController.h"
#include "PersistentContainer.h"
#include "UserDefaults.h"

#include <QGuiApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {
using Clock = std::chrono::steady_clock;

constexpr int noteCount = 10000;
constexpr int rounds = 15;

double msSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Notes of a few hundred characters each, with words that vary from note to note.
void makeNotes()
{
    static const QStringList words{u"garden"_s, u"lantern"_s, u"morning"_s, u"river"_s,  u"quiet"_s,
                                   u"thanks"_s, u"bread"_s,   u"window"_s,  u"friend"_s, u"evening"_s};
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    const QDateTime start(QDate(2020, 1, 1), QTime(8, 0), Qt::UTC);
    for (int i = 0; i < noteCount; ++i) {
        QString text;
        for (int w = 0; w < 60; ++w)
            text += words[(i * 7 + w * 3) % words.size()] + (w % 12 == 11 ? u".\n"_s : u" "_s);
        const QDateTime when = start.addSecs(qint64(i) * 3600 * 7);
        Notes *note = context.insertNewObject<Notes>();
        note->setSubject(u"Note %1 on %2"_s.arg(i).arg(words[i % words.size()]));
        note->setNotes(text);
        note->setDt(when);
        note->setDtstring(when.toString(u"MMMM d, yyyy"_s));
        note->setMonth(qint16(when.date().month()));
        note->setDay(qint16(when.date().day()));
        note->setYear(qint16(when.date().year()));
        note->setAmpm(when.time().hour() < 12 ? u"AM"_s : u"PM"_s);
    }
    if (context.save())
        qFatal("the notes could not be saved");
    AppDelegate::shared().reset();
}

double openList()
{
    AppDelegate::shared().reset(); // the list's fetch opens the store, as on the first visit
    const auto start = Clock::now();
    NotesTableViewController controller;
    controller.viewWillAppear();
    const double elapsed = msSince(start);
    if (controller.rows()->rowCount() != noteCount)
        qFatal("the list shows %d notes", controller.rows()->rowCount());
    return elapsed;
}

struct BareNote {
    QString subject, notes, dtstring, dt;
};

double openBare()
{
    const auto start = Clock::now();
    std::vector<BareNote> notes;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"bare"_s);
        database.setDatabaseName(PersistentContainer::defaultDirectory() + u"/TheLarkwellsBook.sqlite"_s);
        database.open();
        QSqlQuery query(database);
        query.setForwardOnly(true);
        query.exec(u"SELECT subject, notes, dtstring, dt FROM Notes ORDER BY subject DESC, id ASC"_s);
        while (query.next())
            notes.push_back({query.value(0).toString(), query.value(1).toString(), query.value(2).toString(),
                             query.value(3).toString()});
    }
    QSqlDatabase::removeDatabase(u"bare"_s);
    const double elapsed = msSince(start);
    if (notes.size() != noteCount)
        qFatal("the bare fetch read %zu notes", notes.size());
    return elapsed;
}
}

int main(int argc, char **argv)
{
    useOffscreenUnlessTold();
    QGuiApplication app(argc, argv);
    const BenchData data;
    makeNotes();

    std::vector<double> opened, bare;
    for (int round = 0; round <= rounds; ++round) {
        const double list = openList(), floor = openBare();
        if (round > 0) { // round 0 warms the file cache
            opened.push_back(list);
            bare.push_back(floor);
        }
    }

    NotesTableViewController controller;
    controller.viewWillAppear();
    controller.segmentedControlAction(2);
    QStringList lowered;
    for (const Notes *note : controller.NotesList())
        lowered.append(note->notes().value_or(QString()).toLower());
    const QStringList texts = keystrokes(u"lantern window"_s);
    std::vector<double> typed, scanned;
    qsizetype kept = 0;
    for (int round = 0; round < rounds; ++round) {
        auto start = Clock::now();
        for (const QString &text : texts)
            controller.updateSearchResults(text);
        typed.push_back(msSince(start) / double(texts.size()));
        start = Clock::now();
        for (const QString &text : texts) {
            QList<const Notes *> found;
            for (qsizetype i = 0; i < lowered.size(); ++i) {
                if (lowered.at(i).contains(text))
                    found.append(controller.NotesList().at(i));
            }
            kept += found.size();
        }
        scanned.push_back(msSince(start) / double(texts.size()));
    }
    std::printf("notes list, %d notes: open %.1f ms (bare SQLite %.1f ms); a keystroke %.3f ms (plain scan %.3f ms)%s\n",
                noteCount, median(opened), median(bare), median(typed), median(scanned), kept < 0 ? "!" : "");
    printTableRow({"notes list of 10,000: open", "bare SQLite fetch", median(opened), median(bare), "ms", 0, 100});
    printTableRow({"notes list of 10,000: a keystroke", "pre-lowered plain scan", median(typed), median(scanned), "ms", 0, 5});
    AppDelegate::shared().reset();
    return 0;
}
