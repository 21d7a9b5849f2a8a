#include "Alerts.h"
#include "Clock.h"
#include "CoverViewController.h"
#include "Navigator.h"
#include "PageRows.h"
#include "ReviewPrompt.h"
#include "Selection.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QAccessible>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// Presses as a screen reader does; false when the item offers no press at all.
bool pressAsScreenReader(QQuickItem *item)
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
    if (!accessible || !accessible->actionInterface())
        return false;
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    return true;
}
}

class TestCover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }

    // The flip itself is checked in the window; leaving the cover closes the menu, never opens it.
    void leavingClosesTheMenuComingBackClearsTheList()
    {
        TestEnvironment environment;
        Selection::shared().setSelectedList(u"FAV"_s);
        CoverViewController cover;
        cover.viewWillDisappear();
        QVERIFY(!cover.menuOpen());
        cover.HandleSelection();
        cover.viewWillDisappear();
        QVERIFY(!cover.menuOpen());
        cover.viewWillAppear();
        QCOMPARE(Selection::shared().selectedList(), QString());
    }

    void reviewPromptCountsPageOpenings_data()
    {
        QTest::addColumn<QStringList>("versions"); // the version at each page opening ("-" for none)
        QTest::addColumn<QList<qint64>>("counts"); // the counter after each opening
        QTest::addColumn<QString>("lastVersion");  // "-" when absent at the end
        QTest::newRow("third opening asks, later ones in the same version do not")
            << QStringList{u"1.0"_s, u"1.0"_s, u"1.0"_s, u"1.0"_s, u"1.0"_s, u"1.0"_s}
            << QList<qint64>{1, 2, 0, 1, 2, 3} << u"1.0"_s;
        QTest::newRow("a new version asks again after three more")
            << QStringList{u"1.0"_s, u"1.0"_s, u"1.0"_s, u"1.1"_s, u"1.1"_s, u"1.1"_s}
            << QList<qint64>{1, 2, 0, 1, 2, 0} << u"1.1"_s;
        QTest::newRow("no version: asks every third time and stores none")
            << QStringList{u"-"_s, u"-"_s, u"-"_s, u"-"_s, u"-"_s, u"-"_s}
            << QList<qint64>{1, 2, 0, 1, 2, 0} << u"-"_s;
    }

    void reviewPromptCountsPageOpenings()
    {
        QFETCH(QStringList, versions);
        QFETCH(QList<qint64>, counts);
        QFETCH(QString, lastVersion);
        TestEnvironment environment;
        for (qsizetype i = 0; i < versions.size(); ++i) {
            ReviewPrompt::run(versions[i] == u"-"_s ? std::nullopt : std::optional(versions[i]));
            QCOMPARE(UserDefaults::standard().integerForKey(u"reviewWorthyActionCount"_s), counts[i]);
        }
        QCOMPARE(UserDefaults::standard().stringForKey(u"lastReviewRequestAppVersion"_s).value_or(u"-"_s), lastVersion);
    }

    // On the page list a screen reader's press marks the row's favourite and switches the segment.
    void screenReaderOnThePageList()
    {
        TestEnvironment environment;
        Clock::set([] { return QDateTime(QDate(2027, 6, 2), QTime(8, 0)); });
        insertPages({u"May 1|AM|5|1|1|F|Dew on the gate"_s});
        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"GoodMorningButton"_s, u"MainTableView"_s);
        QVERIFY(window);
        QQuickItem *row = waitForItem(window, u"row-0"_s);
        QVERIFY(row);
        QQuickItem *favorite = findItem(row, u"FavoriteCheckBox"_s)->parentItem()->parentItem(); // the whole mark
        QAccessibleInterface *box = QAccessible::queryAccessibleInterface(favorite);
        QCOMPARE(box->role(), QAccessible::CheckBox);
        QCOMPARE(box->text(QAccessible::Name), u"Favorite"_s);
        QVERIFY(pressAsScreenReader(favorite));
        QTRY_VERIFY(box->state().checked);
        QCOMPARE(storedRows<PoemPrayer>({u"favorite"_s}), QStringList{u"T"_s});

        QQuickItem *today = waitForItem(window, u"segment-Today"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(today)->role(), QAccessible::PageTab);
        QVERIFY(pressAsScreenReader(today));
        QTRY_VERIFY(QAccessible::queryAccessibleInterface(today)->state().selected);
        QTRY_COMPARE(waitForItem(window, u"table"_s)->property("count").toInt(), 0); // no page for June 2
    }

    void keyboardOpensTheMenuAndAPage_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter") << int(Qt::Key_Enter);
        QTest::newRow("Space") << int(Qt::Key_Space);
    }

    void keyboardOpensTheMenuAndAPage()
    {
        QFETCH(int, key);
        TestEnvironment environment;
        QQmlApplicationEngine engine;
        QQuickWindow *window = loadLaunchedWindow(engine);
        QVERIFY(window);
        QQuickItem *control = waitForItem(window, u"ControlButton"_s);
        QTest::keyClick(window, Qt::Key_Tab);
        QTRY_VERIFY(control->property("visualFocus").toBool());
        QTest::keyClick(window, Qt::Key(key));
        QQuickItem *today = waitForItem(window, u"TodayButton"_s);
        QVERIFY(today);
        QTRY_VERIFY(today->isVisible());
        today->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(window, Qt::Key(key));
        QTRY_COMPARE(topPage(window), u"MainTableView"_s);
    }

    void segueWithoutScreenStopsNamingIt()
    {
        TestEnvironment environment;
        QCOMPARE(fatalStop([] { Navigator::shared().performSegue(u"ImportExportSegue"_s); }),
                 u"Fatal error: no screen for the segue \"ImportExportSegue\""_s);
    }
};

QTEST_MAIN(TestCover)
#include "tst_cover.moc"
