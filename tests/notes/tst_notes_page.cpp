#include "Alerts.h"
#include "AppDelegate.h"
#include "Clock.h"
#include "Entities.h"
#include "Navigator.h"
#include "PageRows.h"
#include "TestSupport.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
void typeInto(QQuickWindow *window, QQuickItem *field, const QString &text)
{
    click(window, field);
    QTRY_VERIFY(field->hasActiveFocus());
    typeText(window, text);
}

QStringList storedSubjects()
{
    return storedRows<Notes>({u"subject"_s, u"notes"_s});
}
}

// Write a note, find it, edit it, delete it, in the real pages.
class TestNotesPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }

    void writeFindEditDelete()
    {
        TestEnvironment environment;
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
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
        QCOMPARE(storedSubjects(), QStringList{u"Picnic|bring plums"_s});

        typeInto(window, waitForItem(window, u"searchField"_s), u"PICN"_s);
        QQuickItem *row = waitForItem(window, u"row-0"_s);
        QVERIFY(row);
        QCOMPARE(row->property("mainText").toString(), u"  Subject: Picnic"_s);
        click(window, row);
        QTRY_COMPARE(topPage(window), u"EditNotesView"_s);
        QQuickItem *text = waitForItem(window, u"NotesTextView"_s);
        QCOMPARE(text->property("text").toString(), u"bring plums"_s);
        typeInto(window, text, u" and pears"_s);
        QVERIFY(clickTo(window, u"SaveButton"_s, u"NotesTableView"_s));
        QCOMPARE(storedSubjects(), QStringList{u"Picnic|bring plums and pears"_s});

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
        QTRY_VERIFY(storedSubjects().isEmpty());
        QVERIFY(waitForItem(window, u"UndoButton"_s));
        QVERIFY(!Alerts::shared().showing());
        QVERIFY(clickTo(window, u"backButton"_s, u"CoverView"_s));
    }
};

QTEST_MAIN(TestNotesPage)
#include "tst_notes_page.moc"
