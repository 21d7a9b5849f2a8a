#include "Alerts.h"
#include "AppDelegate.h"
#include "Clock.h"
#include "EditNotesViewController.h"
#include "Navigator.h"
#include "NotesTableViewController.h"
#include "PageRows.h"
#include "Selection.h"
#include "TestSupport.h"

#include <QAbstractItemModelTester>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {
// A note as one line: "subject|notes|dtstring|dt|year|month|day|ampm", "-" for an unset value,
// dt as its calendar date (written as local midnight).
const QStringList columns{u"subject"_s, u"notes"_s, u"dtstring"_s, u"dt"_s, u"year"_s, u"month"_s, u"day"_s, u"ampm"_s};

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

void typeInto(QQuickWindow *window, QQuickItem *field, const QString &text)
{
    click(window, field);
    QTRY_VERIFY(field->hasActiveFocus());
    typeText(window, text);
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
    void init()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        QTest::failOnWarning(QRegularExpression(u".*qml.*"_s));
    }

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
        insertRows<Notes>(columns, someNotes);
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
                insertRows<Notes>(columns, {u"Garage|oil|-|-|-|6|1|AM"_s});
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
        insertRows<Notes>(columns, someNotes);
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

    void saveOutcomes_data()
    {
        QTest::addColumn<QStringList>("stored");
        QTest::addColumn<bool>("chooseFirst"); // open the first stored note, else a new one
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("new note: the page's day, no year or date fields") << QStringList() << false
            << QStringList{u"Walk|by the river|-|-|-|3|3|AM"_s};
        QTest::newRow("edited note found by its key") << QStringList{u"Walk|old|Sunday, March 3, 2024|2024-03-03|2024|3|3|AM"_s} << true
            << QStringList{u"Walk|by the river|Monday, April 5, 2027|2027-04-05|2027|4|5|AM"_s};
        QTest::newRow("first edit of a note saved without year") << QStringList{u"Walk|old|-|-|-|3|3|AM"_s} << true
            << QStringList{u"Walk|by the river|Monday, April 5, 2027|2027-04-05|2027|4|5|AM"_s};
        QTest::newRow("first edit of a note stored with year 0") << QStringList{u"Walk|old|-|-|0|3|3|AM"_s} << true
            << QStringList{u"Walk|by the river|Monday, April 5, 2027|2027-04-05|2027|4|5|AM"_s};
        QTest::newRow("other time of day: saved as a new note") << QStringList{u"Walk|old|-|-|2024|3|3|PM"_s} << true
            << QStringList{u"Walk|by the river|-|-|-|3|3|AM"_s, u"Walk|old|-|-|2024|3|3|PM"_s};
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
        insertRows<Notes>(columns, stored);
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
        QCOMPARE(storedNotes(), (QStringList{u"|one|-|-|-|0|0|"_s, u"|two|-|-|-|0|0|"_s}));
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
        insertRows<Notes>(columns, {u"Walk|by the river|-|-|0|11|23|PM"_s});
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

    // A failed save is logged and the editor returns to the list, leaving nothing half-saved
    // behind for a later save to write.
    void failedSaveIsLoggedAndReturns_data()
    {
        QTest::addColumn<bool>("existing");
        QTest::newRow("new note") << false;
        QTest::newRow("edited note") << true;
    }

    void failedSaveIsLoggedAndReturns()
    {
        QFETCH(bool, existing);
        TestEnvironment environment;
        const QStringList stored = existing ? QStringList{u"Kept|as it was|-|-|-|0|0|"_s} : QStringList();
        insertRows<Notes>(columns, stored);
        const QString store = AppDelegate::shared().persistentContainer().storePath();
        QCOMPARE(sqlRun(store, {u"CREATE TRIGGER refuseInsert BEFORE INSERT ON Notes BEGIN SELECT RAISE(ABORT, 'disk full'); END"_s,
                                u"CREATE TRIGGER refuseUpdate BEFORE UPDATE ON Notes BEGIN SELECT RAISE(ABORT, 'disk full'); END"_s}),
                 QStringList());
        NotesTableViewController list;
        list.viewWillAppear();
        if (existing)
            list.didSelectRowAt(0);
        const QList<Notes *> shown = AppDelegate::shared().viewContext().fetch<Notes>(Notes::fetchRequest());
        EditNotesViewController editor;
        editor.viewDidLoad();
        editor.setSubjectTextField(u"Changed"_s);
        editor.setNotesTextView(u"every word"_s);
        QSignalSpy unwinds(&Navigator::shared(), &Navigator::unwindRequested);
        editor.SaveButtonClicked();

        QVERIFY(!Alerts::shared().showing());
        QCOMPARE(unwinds.size(), 1);
        QVERIFY(!environment.logLines.isEmpty());
        if (existing)
            QCOMPARE(lineOf(*shown.constFirst()), stored.constFirst()); // as kept, before any fetch
        QVERIFY(!AppDelegate::shared().viewContext().hasChanges());
        QCOMPARE(storedNotes(), stored);
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

    // The keyboard starts on "Keep Editing": Return and Escape keep the note. Discard is taken
    // only once the reader has moved to it, and the move stands when the alert takes the
    // keyboard again (as it does when it finishes opening or a button is made).
    void discardAskedByKeyboard_data()
    {
        QTest::addColumn<bool>("moveToDiscard");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("page");
        QTest::newRow("Return keeps editing") << false << int(Qt::Key_Return) << u"EditNotesView"_s;
        QTest::newRow("Escape keeps editing") << false << int(Qt::Key_Escape) << u"EditNotesView"_s;
        QTest::newRow("moved to Discard, Return discards") << true << int(Qt::Key_Return) << u"NotesTableView"_s;
    }

    void discardAskedByKeyboard()
    {
        QFETCH(bool, moveToDiscard);
        QFETCH(int, key);
        QFETCH(QString, page);
        TestEnvironment environment;
        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"NotesButton"_s, u"NotesTableView"_s);
        QVERIFY(window);
        QVERIFY(clickTo(window, u"AddButton"_s, u"EditNotesView"_s));
        QQuickItem *text = waitForItem(window, u"NotesTextView"_s);
        typeInto(window, text, u"half a thought"_s);
        QTest::keyClick(window, Qt::Key_Escape);
        const auto focused = [window] {
            QQuickItem *item = window->activeFocusItem();
            return item ? item->objectName() : u"nothing"_s;
        };
        QTRY_VERIFY2(Alerts::shared().showing() && findVisibleItem(window, u"alertButton-Discard"_s)
                         && focused() == u"alertButton-Keep Editing"_s,
                     qPrintable(u"the keyboard is on "_s + focused()));
        if (moveToDiscard) {
            findVisibleItem(window, u"alertButton-Discard"_s)->forceActiveFocus(Qt::TabFocusReason);
            QVERIFY(QMetaObject::invokeMethod(window->findChild<QObject *>(u"alertDialog"_s), "takeKeyboard"));
            QCOMPARE(focused(), u"alertButton-Discard"_s);
        }
        QTest::keyClick(window, Qt::Key(key));
        QTRY_VERIFY(!Alerts::shared().showing());
        QTRY_COMPARE(topPage(window), page);
        if (page == u"EditNotesView"_s)
            QCOMPARE(text->property("text").toString(), u"half a thought"_s);
    }

    // Write a note, find it, edit it, delete it, in the real pages.
    void writeFindEditDelete()
    {
        TestEnvironment environment;
        Clock::set([] { return QDateTime(QDate(2027, 3, 3), QTime(12, 0)); });
        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"NotesButton"_s, u"NotesTableView"_s);
        QVERIFY(window);
        QVERIFY(clickTo(window, u"AddButton"_s, u"EditNotesView"_s));
        QCOMPARE(waitForItem(window, u"DateTextField"_s)->property("text").toString(), u"Wednesday, March 3, 2027"_s);
        typeInto(window, waitForItem(window, u"SubjectTextField"_s), u"Picnic"_s);
        // The date picker by keyboard: a month on, then Enter.
        click(window, waitForItem(window, u"DateTextField"_s));
        QTRY_VERIFY(waitForItem(window, u"monthWheel"_s) && waitForItem(window, u"monthWheel"_s)->hasActiveFocus());
        QTest::keyClick(window, Qt::Key_Down);
        QTest::keyClick(window, Qt::Key_Return);
        QTRY_COMPARE(findItem(window->contentItem(), u"DateTextField"_s)->property("text").toString(),
                     u"Saturday, April 3, 2027"_s);
        QTRY_VERIFY(!findVisibleItem(window, u"monthWheel"_s));
        typeInto(window, waitForItem(window, u"NotesTextView"_s), u"bring plums"_s);
        QVERIFY(clickTo(window, u"SaveButton"_s, u"NotesTableView"_s));
        QCOMPARE(storedRows<Notes>({u"subject"_s, u"notes"_s}), QStringList{u"Picnic|bring plums"_s});

        typeInto(window, waitForItem(window, u"searchField"_s), u"PICN"_s);
        QQuickItem *row = waitForItem(window, u"row-0"_s);
        QVERIFY(row);
        QCOMPARE(row->property("mainText").toString(), u"  Subject: Picnic"_s);
        click(window, row);
        QTRY_COMPARE(topPage(window), u"EditNotesView"_s);
        QQuickItem *text = waitForItem(window, u"NotesTextView"_s);
        QCOMPARE(text->property("text").toString(), u"bring plums"_s);
        typeInto(window, text, u" and pears"_s);
        // Save, tapped while the picker is still up, saves at once with the date it shows.
        click(window, waitForItem(window, u"DateTextField"_s));
        QTRY_VERIFY(waitForItem(window, u"monthWheel"_s) && waitForItem(window, u"monthWheel"_s)->hasActiveFocus());
        QTest::keyClick(window, Qt::Key_Down);
        QVERIFY(clickTo(window, u"SaveButton"_s, u"NotesTableView"_s));
        QCOMPARE(storedRows<Notes>({u"subject"_s, u"notes"_s, u"dtstring"_s}),
                 QStringList{u"Picnic|bring plums and pears|Saturday, April 3, 2027"_s});

        // Swiped left, the row offers "delete".
        row = waitForItem(window, u"row-0"_s);
        const QPoint start = row->mapToScene(QPointF(row->width() - 20, row->height() / 2)).toPoint();
        QTest::mousePress(window, Qt::LeftButton, {}, start);
        for (int step = 1; step <= 10; ++step)
            QTest::mouseMove(window, start - QPoint(step * 20, 0), 10);
        QTest::mouseRelease(window, Qt::LeftButton, {}, start - QPoint(200, 0));
        QQuickItem *deleteAction = waitForItem(window, u"deleteAction"_s);
        QVERIFY(deleteAction);
        QCOMPARE(deleteAction->property("text").toString(), u"delete"_s);
        click(window, deleteAction);
        QTRY_VERIFY(storedRows<Notes>({u"subject"_s, u"notes"_s}).isEmpty());
        QVERIFY(waitForItem(window, u"UndoButton"_s));
        QVERIFY(!Alerts::shared().showing());
        QVERIFY(clickTo(window, u"backButton"_s, u"CoverView"_s));
    }
};

QTEST_MAIN(TestNotes)
#include "tst_notes.moc"
