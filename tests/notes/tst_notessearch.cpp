#include "AppDelegate.h"
#include "Entities.h"
#include "NotesTableViewController.h"
#include "TestSupport.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {
void insertNote(const QString &subject, const QString &text, const QString &dtstring)
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    Notes *note = context.insertNewObject<Notes>();
    note->setSubject(subject);
    note->setNotes(text);
    note->setDtstring(dtstring);
    QVERIFY(!context.save());
}

QStringList subjectsShown(const NotesTableViewController &controller)
{
    QStringList subjects;
    for (const Notes *note : controller.FilteredNotesList())
        subjects.append(note->subject().value_or(QString()));
    return subjects;
}
}

// The search's matches after the list changes under it: another segment, an edited note, a new
// note. The searched field must follow each change, never the one seen at an earlier keystroke.
class TestNotesSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matchesFollowTheList_data();
    void matchesFollowTheList();
};

void TestNotesSearch::matchesFollowTheList_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("search");
    QTest::addColumn<QStringList>("subjects");

    // Subjects "Garden", "Bank"; texts "visit the bank", "rake the garden"; dates in March, May.
    QTest::newRow("the same segment again") << u"none"_s << u"GARD"_s << QStringList{u"Garden"_s};
    QTest::newRow("the note segment searches the texts") << u"segment 2"_s << u"GARD"_s << QStringList{u"Bank"_s};
    QTest::newRow("the date segment searches the dates") << u"segment 1"_s << u"may"_s << QStringList{u"Bank"_s};
    QTest::newRow("an edited subject, after the unwind") << u"edit"_s << u"orchard"_s << QStringList{u"Orchard"_s};
    QTest::newRow("a new note, after the unwind") << u"add"_s << u"gar"_s << QStringList{u"Garden"_s, u"Garage"_s};
}

void TestNotesSearch::matchesFollowTheList()
{
    QFETCH(QString, change);
    QFETCH(QString, search);
    QFETCH(QStringList, subjects);
    TestEnvironment environment;
    insertNote(u"Garden"_s, u"visit the bank"_s, u"March 3, 2027"_s);
    insertNote(u"Bank"_s, u"rake the garden"_s, u"May 5, 2027"_s);
    NotesTableViewController controller;
    controller.viewWillAppear();
    controller.updateSearchResults(u"a"_s); // the searched field is read at this keystroke

    if (change.startsWith(u"segment"_s)) {
        controller.segmentedControlAction(change.back().digitValue());
    } else if (change == u"edit"_s) {
        AppDelegate::shared().viewContext().fetch<Notes>(Notes::fetchRequest()).constFirst()->setSubject(u"Orchard"_s);
        QVERIFY(!AppDelegate::shared().viewContext().save());
        controller.unwindToNotesSegue();
    } else if (change == u"add"_s) {
        insertNote(u"Garage"_s, u"oil"_s, u"June 1, 2027"_s);
        controller.unwindToNotesSegue();
    }
    controller.updateSearchResults(search);
    QCOMPARE(subjectsShown(controller), subjects);
}

QTEST_MAIN(TestNotesSearch)
#include "tst_notessearch.moc"
