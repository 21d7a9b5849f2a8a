#include "Alerts.h"
#include "PageRows.h"
#include "TestSupport.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickTextDocument>
#include <QQuickWindow>
#include <QTest>
#include <QTextDocument>

using namespace Qt::StringLiterals;

// Cover → Good Morning → a row → reader → favourite → back, in the real pages.
class TestJourney : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }
    void coverListReaderAndBack();
    void searchReadAndBack();
};

void TestJourney::coverListReaderAndBack()
{
    TestEnvironment environment;
    insertPages({u"January 1|AM|1|1|1|F|Snow on the sill\nand bread on the table"_s,
                 u"January 1|PM|1|1|2|F|Night one"_s, u"January 2|AM|1|2|3|F|Second morning"_s});
    QQmlApplicationEngine engine;
    QQuickWindow *window = openFromCover(engine, u"GoodMorningButton"_s, u"MainTableView"_s);
    QVERIFY(window);
    QVERIFY(!Alerts::shared().showing());
    QQuickItem *firstRow = waitForItem(window, u"row-0"_s);
    QVERIFY(firstRow);
    QCOMPARE(firstRow->property("dateText").toString(), u"January 1"_s);
    QCOMPARE(firstRow->property("pageText").toString(), u"Good Morning:   Page#  1"_s);
    QVERIFY(waitForItem(window, u"row-1"_s)); // the second morning page, not the night one
    QCOMPARE(findVisibleItem(window->contentItem(), u"row-1"_s)->property("dateText").toString(), u"January 2"_s);

    click(window, firstRow);
    QTRY_COMPARE(topPage(window), u"View"_s);
    QQuickItem *text = waitForItem(window, u"PoemPrayerTextView"_s);
    QVERIFY(text);
    QCOMPARE(text->property("text").toString(),
             u"\nFrom The Larkwells\n Good Morning\n\nJanuary 1\n\nSnow on the sill\nand bread on the table"_s);

    click(window, waitForItem(window, u"FavoriteCheckBox"_s));
    QTRY_COMPARE(loadedContainer()->viewContext().fetch<PoemPrayer>(PoemPrayer::fetchRequest()).first()->favorite(),
                 u"T"_s);

    click(window, waitForItem(window, u"backButton"_s));
    QTRY_COMPARE(topPage(window), u"MainTableView"_s);
    QTRY_VERIFY(findVisibleItem(window->contentItem(), u"row-0"_s)->property("favoriteChecked").toBool());
}

// Cover → Search → type → a row → the marked page → favourite → back to the same search.
void TestJourney::searchReadAndBack()
{
    TestEnvironment environment;
    // The match stands far below the first screen of its page.
    const QString longPage = u"A line of the morning\n"_s.repeated(80) + u"The lantern glows"_s;
    insertPages({u"January 1|AM|1|1|1|F|Snow on the sill"_s, u"January 1|PM|1|1|2|F|Night of lanterns"_s,
                 u"February 10|AM|2|10|41|F|"_s + longPage});
    QQmlApplicationEngine engine;
    QQuickWindow *window = openFromCover(engine, u"SearchButton"_s, u"SearchTableView"_s);
    QVERIFY(window);
    QQuickItem *field = waitForItem(window, u"searchField"_s);
    QTRY_VERIFY(field->hasActiveFocus());
    click(window, waitForItem(window, u"segment-Poems/Prayers"_s));
    QTRY_COMPARE(field->property("placeholderText").toString(), u"Search for Poem/Prayer"_s);
    field->forceActiveFocus();
    for (const char letter : "LANTERN")
        if (letter)
            QTest::keyClick(window, letter, Qt::ShiftModifier);
    QTRY_COMPARE(findVisibleItem(window->contentItem(), u"matchCount"_s)->property("text").toString(),
                 u"2 pages match"_s);

    click(window, waitForItem(window, u"row-1"_s));
    QTRY_COMPARE(topPage(window), u"SearchView"_s);
    QQuickItem *text = waitForItem(window, u"PoemPrayerTextView"_s);
    const QTextDocument *document = text->property("textDocument").value<QQuickTextDocument *>()->textDocument();
    QCOMPARE(markedFragments(*document), QStringList{u"lantern"_s});
    QVERIFY(document->toPlainText().endsWith(u"February 10\n\n"_s + longPage));
    QTRY_VERIFY(findVisibleItem(window->contentItem(), u"scroller"_s)->property("contentY").toDouble() > 500);

    click(window, waitForItem(window, u"FavoriteCheckBox"_s));
    QTRY_COMPARE(loadedContainer()->viewContext().fetch<PoemPrayer>(PoemPrayer::fetchRequest()).last()->favorite(),
                 u"T"_s);

    click(window, waitForItem(window, u"backButton"_s));
    QTRY_COMPARE(topPage(window), u"SearchTableView"_s);
    QCOMPARE(field->property("text").toString(), u"LANTERN"_s);
    QTRY_VERIFY(findVisibleItem(window->contentItem(), u"row-1"_s)->property("favoriteChecked").toBool());
    QVERIFY(!findVisibleItem(window->contentItem(), u"row-0"_s)->property("favoriteChecked").toBool());

    // Escape empties the field first, then leaves the screen.
    field->forceActiveFocus();
    QTest::keyClick(window, Qt::Key_Escape);
    QTRY_COMPARE(field->property("text").toString(), QString());
    QCOMPARE(topPage(window), u"SearchTableView"_s);
    QTest::keyClick(window, Qt::Key_Escape);
    QTRY_COMPARE(topPage(window), u"CoverView"_s);
}

QTEST_MAIN(TestJourney)
#include "tst_journey.moc"
