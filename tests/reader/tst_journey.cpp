#include "Alerts.h"
#include "PageRows.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
QQuickItem *waitForItem(QQuickWindow *window, const QString &name)
{
    QQuickItem *item = nullptr;
    const bool shown = QTest::qWaitFor([&] {
        item = findVisibleItem(window->contentItem(), name);
        return item && item->width() > 0 && item->height() > 20; // slid open, laid out
    }, 15000);
    return shown ? item : nullptr;
}

void click(QQuickWindow *window, QQuickItem *item)
{
    QVERIFY(item);
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(window, Qt::LeftButton, {}, centre.toPoint());
}

// The screen on top, once the stack has finished moving.
QString topPage(QQuickWindow *window)
{
    auto *stack = findItem(window->contentItem(), u"stack"_s);
    if (!stack || stack->property("busy").toBool())
        return QString();
    return stack->property("currentItem").value<QQuickItem *>()->objectName();
}
}

// Cover → Good Morning → a row → reader → favourite → back, in the real pages.
class TestJourney : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }
    void coverListReaderAndBack();
};

void TestJourney::coverListReaderAndBack()
{
    TestEnvironment environment;
    UserDefaults::standard().set(u"hasBeenLaunchedBeforeFlag"_s, true);
    insertPages({u"January 1|AM|1|1|1|F|Snow on the sill@#@and bread on the table"_s.replace(u"@#@"_s, u"\n"_s),
                 u"January 1|PM|1|1|2|F|Night one"_s, u"January 2|AM|1|2|3|F|Second morning"_s});
    importLarkwellsModule();
    QQmlApplicationEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    engine.load(QUrl(u"qrc:/qt/qml/Larkwells/app/Main.qml"_s));
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    QVERIFY(window && QTest::qWaitForWindowExposed(window));
    QVERIFY(!Alerts::shared().showing());

    click(window, waitForItem(window, u"ControlButton"_s));
    click(window, waitForItem(window, u"GoodMorningButton"_s));
    QTRY_COMPARE(topPage(window), u"MainTableView"_s);
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

QTEST_MAIN(TestJourney)
#include "tst_journey.moc"
