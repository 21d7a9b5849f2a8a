#include "Alerts.h"
#include "AppDelegate.h"
#include "Clock.h"
#include "EditNotesViewController.h"
#include "Navigator.h"
#include "NotesTableViewController.h"
#include "Selection.h"
#include "TestSupport.h"

#include <QAbstractItemModelTester>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {
// A note as one line: "subject|notes|dtstring|dt|year|month|day|ampm", "-" for an unset value,
// dt as its calendar date.
const QStringList columns{u"subject"_s, u"notes"_s, u"dtstring"_s, u"dt"_s, u"year"_s, u"month"_s, u"day"_s, u"ampm"_s};

void insertNotes(const QStringList &rows)
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    for (const QString &row : rows) {
        Notes *note = context.insertNewObject<Notes>();
        const QStringList fields = row.split(u'|');
        for (qsizetype i = 0; i < fields.size(); ++i) {
            if (fields[i] != u"-")
                note->setValueForKey(columns[i], columns[i] == u"dt"_s
                                     ? QVariant(QDateTime(QDate::fromString(fields[i], Qt::ISODate), QTime(9, 30)))
                                     : QVariant(fields[i]));
        }
    }
    QVERIFY(!context.save());
}

QString lineOf(const Notes &note)
{
    QStringList fields;
    for (const QString &column : columns) {
        const QVariant value = note.valueForKey(column);
        fields.append(!value.isValid() ? u"-"_s
                      : column == u"dt"_s ? value.toDateTime().toLocalTime().date().toString(Qt::ISODate)
                                          : value.toString());
    }
    return fields.join(u'|');
}

// What a fresh open of the store holds, as after a restart.
QStringList storedNotes()
{
    auto container = loadedContainer();
    QStringList lines;
    for (const Notes *note : container->viewContext().fetch<Notes>(Notes::fetchRequest()))
        lines.append(lineOf(*note));
    lines.sort();
    return lines;
}

QStringList subjectsShown(NotesListModel &model)
{
    QStringList subjects;
    for (const Notes *note : model.notes())
        subjects.append(note->subject().value_or(u"(none)"_s));
    return subjects;
}

const QStringList someNotes{
    u"Team meeting|bring the minutes|Wednesday, March 3, 2027|2027-03-03|2027|3|3|AM"_s,
    u"apples|Zebra crossing|Monday, January 4, 2027|2027-01-04|2027|1|4|PM"_s,
    u"Budget|meet the bank|Friday, December 31, 2027|2027-12-31|2027|12|31|AM"_s,
    u"-|march on|-|-|-|5|6|AM"_s,
};
}

class TestNotes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

    void sortsAndSearchesBySegment_data()
    {
        QTest::addColumn<int>("segment");
        QTest::addColumn<QStringList>("steps"); // search texts; "edit", "add" or "delete:N" for a change to the list
        QTest::addColumn<QStringList>("subjects");

        const QStringList all{QString()};
        QTest::newRow("subject, descending") << 0 << all << QStringList{u"apples"_s, u"Team meeting"_s, u"Budget"_s, u"(none)"_s};
        QTest::newRow("MEET finds Team meeting") << 0 << QStringList{u"MEET"_s} << QStringList{u"Team meeting"_s};
        QTest::newRow("date, descending") << 1 << all << QStringList{u"Budget"_s, u"Team meeting"_s, u"apples"_s, u"(none)"_s};
        QTest::newRow("a month name in the date text") << 1 << QStringList{u"march"_s} << QStringList{u"Team meeting"_s};
        QTest::newRow("digits as the date text has them") << 1 << QStringList{u"31, 2"_s} << QStringList{u"Budget"_s};
        QTest::newRow("note text, descending") << 2 << all << QStringList{u"Budget"_s, u"(none)"_s, u"Team meeting"_s, u"apples"_s};
        QTest::newRow("MEET in the note text") << 2 << QStringList{u"MEET"_s} << QStringList{u"Budget"_s};
        QTest::newRow("no trimming") << 0 << QStringList{u" apples"_s} << QStringList();
        QTest::newRow("an edited subject, after the unwind") << 0 << QStringList{u"edit"_s, u"ORCH"_s} << QStringList{u"Orchard"_s};
        QTest::newRow("a new note, after the unwind") << 0 << QStringList{u"add"_s, u"gar"_s} << QStringList{u"Garage"_s};
        QTest::newRow("typing on") << 0 << QStringList{u"e"_s, u"ee"_s, u"eet"_s} << QStringList{u"Team meeting"_s};
        QTest::newRow("back to a shorter text") << 0 << QStringList{u"e"_s, u"ee"_s, u"e"_s}
                                               << QStringList{u"apples"_s, u"Team meeting"_s, u"Budget"_s};
        QTest::newRow("a text holding the last one") << 0 << QStringList{u"g"_s, u"dg"_s} << QStringList{u"Budget"_s};
        QTest::newRow("a row deleted from the whole list")
            << 0 << QStringList{u"e"_s, QString(), u"delete:0"_s, u"e"_s} << QStringList{u"Team meeting"_s, u"Budget"_s};
    }

    void sortsAndSearchesBySegment()
    {
        QFETCH(int, segment);
        QFETCH(QStringList, steps);
        QFETCH(QStringList, subjects);
        TestEnvironment environment;
        insertNotes(someNotes);
        NotesTableViewController controller;
        QAbstractItemModelTester tester(controller.rows(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        controller.viewWillAppear();
        // The searched field and list are those of the search's own moment, never of an earlier keystroke.
        controller.updateSearchResults(u"a"_s);
        controller.segmentedControlAction(segment);
        for (const QString &step : std::as_const(steps)) {
            if (step == u"edit"_s) {
                AppDelegate::shared().viewContext().fetch<Notes>(Notes::fetchRequest()).constFirst()->setSubject(u"Orchard"_s);
                QVERIFY(!AppDelegate::shared().viewContext().save());
                controller.unwindToNotesSegue();
            } else if (step == u"add"_s) {
                insertNotes({u"Garage|oil|-|-|-|6|1|AM"_s});
                controller.unwindToNotesSegue();
            } else if (step.startsWith(u"delete:"_s)) {
                controller.deleteRow(step.mid(7).toInt());
            } else {
                controller.updateSearchResults(step);
            }
        }

        QCOMPARE(subjectsShown(*controller.rows()), subjects);
        const QStringList placeholders{u"Search Notes by Subject"_s, u"Search Notes by Date"_s, u"Search Notes by Note"_s};
        QCOMPARE(controller.placeholder(), placeholders[segment]);
        if (const int row = int(subjects.indexOf(u"(none)"_s)); row >= 0) {
            const QModelIndex undated = controller.rows()->index(row);
            QCOMPARE(undated.data(NotesListModel::MainTextRole).toString(), u"  Subject: "_s);
            QCOMPARE(undated.data(NotesListModel::DetailTextRole).toString(), u"march on"_s);
        }
    }

    void deletingDuringASearchAndUndo()
    {
        TestEnvironment environment;
        insertNotes(someNotes);
        NotesTableViewController controller;
        QAbstractItemModelTester tester(controller.rows(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        controller.viewWillAppear();
        controller.updateSearchResults(u"e"_s); // apples, Team meeting, Budget
        const QStringList before = storedNotes();

        controller.deleteRow(1);
        QCOMPARE(subjectsShown(*controller.rows()), (QStringList{u"apples"_s, u"Budget"_s}));
        QCOMPARE(storedNotes().size(), 3);
        QCOMPARE(storedNotes().filter(u"Team meeting"_s), QStringList());
        QVERIFY(controller.canUndoDelete());

        // The whole list keeps the note until the next fetch.
        controller.updateSearchResults(QString());
        QCOMPARE(controller.rows()->rowCount(), 4);

        controller.undoDelete();
        QCOMPARE(storedNotes(), before);
        QVERIFY(!controller.canUndoDelete());
        QCOMPARE(subjectsShown(*controller.rows()).count(u"Team meeting"_s), 1);
    }

    void appearanceClearsTheChoice()
    {
        TestEnvironment environment;
        insertNotes({someNotes.first()});
        NotesTableViewController controller;
        controller.viewWillAppear();
        controller.didSelectRowAt(0);
        controller.viewWillAppear();
        const Selection &selection = Selection::shared();
        QCOMPARE((QStringList{selection.editNoteSubject(), selection.editNoteText(), selection.editNoteDtstring(),
                              QString::number(selection.editNoteMonth()), QString::number(selection.editNoteDay()),
                              QString::number(selection.editNoteYear())}),
                 (QStringList{QString(), QString(), QString(), u"0"_s, u"0"_s, u"2027"_s})); // the year is not cleared
        QVERIFY(!selection.editNoteDate().isValid());
    }

    void saveOutcomes_data()
    {
        QTest::addColumn<QStringList>("stored");
        QTest::addColumn<bool>("chooseFirst"); // open the first stored note, else a new one
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("new note: the page's day, no date fields") << QStringList() << false
            << QStringList{u"Walk|by the river|-|-|0|3|3|AM"_s};
        QTest::newRow("edited note found by its key") << QStringList{u"Walk|old|Sunday, March 3, 2024|2024-03-03|2024|3|3|AM"_s} << true
            << QStringList{u"Walk|by the river|Monday, April 5, 2027|2027-04-05|2027|4|5|AM"_s};
        QTest::newRow("first edit of a note saved without date") << QStringList{u"Walk|old|-|-|0|3|3|AM"_s} << true
            << QStringList{u"Walk|by the river|Monday, April 5, 2027|2027-04-05|2027|4|5|AM"_s};
        QTest::newRow("other time of day: saved as a new note") << QStringList{u"Walk|old|-|-|2024|3|3|PM"_s} << true
            << QStringList{u"Walk|by the river|-|-|0|3|3|AM"_s, u"Walk|old|-|-|2024|3|3|PM"_s};
        QTest::newRow("two matches: nothing written")
            << QStringList{u"Walk|one|-|-|2024|3|3|AM"_s, u"Walk|two|-|-|2024|3|3|AM"_s} << true
            << QStringList{u"Walk|one|-|-|2024|3|3|AM"_s, u"Walk|two|-|-|2024|3|3|AM"_s};
    }

    void saveOutcomes()
    {
        QFETCH(QStringList, stored);
        QFETCH(bool, chooseFirst);
        QFETCH(QStringList, expected);
        TestEnvironment environment;
        Clock::set([] { return QDateTime(QDate(2027, 1, 9), QTime(8, 0)); });
        insertNotes(stored);
        Selection::shared().setSelectedMonth(3);
        Selection::shared().setSelectedDay(3);
        Selection::shared().setSelectedAmpm(u"AM"_s);
        NotesTableViewController list;
        list.viewWillAppear();
        if (chooseFirst)
            list.didSelectRowAt(0);

        EditNotesViewController editor;
        editor.viewDidLoad();
        editor.setSubjectTextField(u"Walk"_s);
        editor.setNotesTextView(u"by the river"_s);
        editor.DateEntered();
        editor.doneClick(2027, 4, 5);
        QSignalSpy unwinds(&Navigator::shared(), &Navigator::unwindRequested);
        editor.SaveButtonClicked();

        QCOMPARE(storedNotes(), expected);
        QCOMPARE(unwinds.size(), 1);
        QCOMPARE(unwinds.first().first().toString(), u"unwindToNotesSegue"_s);
    }

    void newNotesBeforeAnyPageIsOpenedStayApart()
    {
        // Before a page is opened a new note is of day 0 of month 0, as the editor's empty key is.
        TestEnvironment environment;
        for (const QString &text : {u"one"_s, u"two"_s}) {
            NotesTableViewController list;
            list.viewWillAppear();
            list.AddButtonClicked();
            EditNotesViewController editor;
            editor.viewDidLoad();
            editor.setNotesTextView(text);
            editor.SaveButtonClicked();
        }
        QCOMPARE(storedNotes(), (QStringList{u"|one|-|-|0|0|0|"_s, u"|two|-|-|0|0|0|"_s}));
    }

    void aNoteKeepsItsDayInTheEvening()
    {
        // An evening in New York is already the next day in UTC, where the store keeps its times.
        const QByteArray zone = qgetenv("TZ");
        qputenv("TZ", "America/New_York");
        tzset();
        const auto restore = qScopeGuard([&] {
            zone.isNull() ? qunsetenv("TZ") : qputenv("TZ", zone);
            tzset();
        });
        TestEnvironment environment;
        Clock::set([] { return QDateTime(QDate(2026, 11, 23), QTime(20, 7)); });
        Selection::shared().setSelectedMonth(11);
        Selection::shared().setSelectedDay(23);
        Selection::shared().setSelectedAmpm(u"PM"_s);
        insertNotes({u"Walk|by the river|-|-|0|11|23|PM"_s});
        // Opened and saved untouched twice: the first save gives it a date, the second reads it back.
        for (int visit = 0; visit < 2; ++visit) {
            NotesTableViewController list;
            list.viewWillAppear();
            list.didSelectRowAt(0);
            EditNotesViewController editor;
            editor.viewDidLoad();
            QCOMPARE(editor.DateTextField(), u"Monday, November 23, 2026"_s);
            editor.DateEntered();
            editor.SaveButtonClicked();
        }
        QCOMPARE(storedNotes(), QStringList{u"Walk|by the river|Monday, November 23, 2026|2026-11-23|2026|11|23|PM"_s});
    }

    void dateTextFollowsTheLocale_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("today");
        QTest::addColumn<QString>("picked");
        QTest::newRow("English") << QLocale(QLocale::English, QLocale::UnitedStates) << u"Wednesday, March 3, 2027"_s
                                 << u"Monday, January 4, 2027"_s;
        QTest::newRow("German") << QLocale(QLocale::German, QLocale::Germany) << u"Mittwoch, 3. März 2027"_s
                                << u"Montag, 4. Januar 2027"_s;
    }

    void dateTextFollowsTheLocale()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, today);
        QFETCH(QString, picked);
        TestEnvironment environment;
        QLocale::setDefault(locale);
        Clock::set([] { return QDateTime(QDate(2027, 3, 3), QTime(23, 30)); });
        EditNotesViewController editor;
        editor.viewDidLoad();
        QCOMPARE(editor.DateTextField(), today);

        editor.dateChanged(2027, 1, 4);
        QCOMPARE(editor.DateTextField(), picked);
        QCOMPARE(editor.NoteDate().date(), QDate(2027, 1, 4));

        // "Today" writes today's text but keeps the picker's date for saving.
        editor.todayClick();
        QCOMPARE(editor.DateTextField(), today);
        QCOMPARE(editor.NoteDate().date(), QDate(2027, 1, 4));
    }

    void failedSaveKeepsTheText()
    {
        TestEnvironment environment;
        AppDelegate::shared().viewContext();
        const QString store = AppDelegate::shared().persistentContainer().storePath();
        QCOMPARE(sqlRun(store, {u"CREATE TRIGGER refuse BEFORE INSERT ON Notes BEGIN SELECT RAISE(ABORT, 'disk full'); END"_s}),
                 QStringList());
        EditNotesViewController editor;
        editor.viewDidLoad();
        editor.setSubjectTextField(u"Keep me"_s);
        editor.setNotesTextView(u"every word"_s);
        QSignalSpy unwinds(&Navigator::shared(), &Navigator::unwindRequested);
        editor.SaveButtonClicked();

        QVERIFY(!Alerts::shared().showing());
        QCOMPARE(unwinds.size(), 0);
        QCOMPARE(editor.NotesTextView(), u"every word"_s);
        QVERIFY(storedNotes().isEmpty());
        QVERIFY(!environment.logLines.isEmpty());

        QCOMPARE(sqlRun(store, {u"DROP TRIGGER refuse"_s}), QStringList());
        editor.SaveButtonClicked();
        QCOMPARE(unwinds.size(), 1);
        QCOMPARE(storedNotes(), QStringList{u"Keep me|every word|-|-|0|0|0|"_s});
    }

    void backAsksOnlyWhenSomethingChanged()
    {
        TestEnvironment environment;
        EditNotesViewController editor;
        editor.viewDidLoad();
        QSignalSpy dismissals(&editor, &EditNotesViewController::dismissRequested);
        editor.BackButtonClicked();
        QCOMPARE(dismissals.size(), 1);
        QVERIFY(!Alerts::shared().showing());

        editor.setNotesTextView(u"half a thought"_s);
        editor.BackButtonClicked();
        QCOMPARE(Alerts::shared().title(), u"Discard changes?"_s);
        QCOMPARE(Alerts::shared().buttons(), (QStringList{u"Discard"_s, u"Keep Editing"_s}));
        Alerts::shared().dismiss(1);
        QCOMPARE(dismissals.size(), 1);
        QCOMPARE(editor.NotesTextView(), u"half a thought"_s);

        editor.BackButtonClicked();
        Alerts::shared().dismiss(0);
        QCOMPARE(dismissals.size(), 2);
    }
};

QTEST_MAIN(TestNotes)
#include "tst_notes.moc"
