#include "PageRows.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <functional>

using namespace Qt::StringLiterals;

namespace {
// Presses Tab until `reached` holds for the focused item; false after a lap of the window.
bool tabUntil(QQuickWindow *window, const std::function<bool(QQuickItem *)> &reached)
{
    for (int i = 0; i < 40; ++i) {
        if (window->activeFocusItem() && reached(window->activeFocusItem()))
            return true;
        QTest::keyClick(window, Qt::Key_Tab);
    }
    return false;
}

bool isA(QQuickItem *item, const char *qmlType)
{
    return QString::fromLatin1(item->metaObject()->className()).startsWith(QLatin1StringView(qmlType));
}
}

// The page list and the reader as someone without a mouse, or with a large font, meets them.
class TestKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }
    void keyboardAlone();
    void largeListFontFitsTheRows();
};

// The list and the reader without a mouse: the list keeps its place across a reading, the text
// lets Tab go, Ctrl+plus/minus act as the stepper, Space marks a favourite, the arrows switch
// segments, Escape and Alt+Left go back.
void TestKeyboard::keyboardAlone()
{
    TestEnvironment environment;
    QStringList pages;
    for (int i = 0; i < 60; ++i)
        pages << u"Day %1|AM|%2|%3|%4|F|Morning %4"_s.arg(i).arg(1 + i / 28).arg(1 + i % 28).arg(2 * i + 1);
    insertPages(pages);
    QQmlApplicationEngine engine;
    QQuickWindow *window = openFromCover(engine, u"GoodMorningButton"_s, u"MainTableView"_s);
    QVERIFY(window);

    auto *table = findVisibleItem(window->contentItem(), u"table"_s);
    QVERIFY(tabUntil(window, [&](QQuickItem *item) { return table->isAncestorOf(item); }));
    for (int i = 0; i < 40; ++i)
        QTest::keyClick(window, Qt::Key_Down);
    QTRY_COMPARE(table->property("currentIndex").toInt(), 40);
    QTRY_VERIFY(table->property("contentY").toDouble() > 100);
    const auto topInList = [&](const QString &row) {
        QQuickItem *item = findVisibleItem(window->contentItem(), row);
        return item ? item->mapToItem(table, QPointF(0, 0)).y() : -1e9;
    };
    const double chosenTop = topInList(u"row-40"_s);

    QTest::keyClick(window, Qt::Key_Return);
    QTRY_COMPARE(topPage(window), u"View"_s);
    QQuickItem *text = waitForItem(window, u"PoemPrayerTextView"_s);
    QVERIFY(text->property("text").toString().contains(u"Morning 81"_s));
    QVERIFY(tabUntil(window, [&](QQuickItem *item) { return item == text; }));
    QTest::keyClick(window, Qt::Key_Tab);
    QVERIFY(window->activeFocusItem() != text); // Tab is not typed into the text
    auto *stepper = findVisibleItem(window->contentItem(), u"FontSizeStepper"_s);
    const double size = stepper->property("value").toDouble();
    QTest::keyClick(window, Qt::Key_Plus, Qt::ControlModifier);
    QTRY_COMPARE(stepper->property("value").toDouble(), size + 1);
    QCOMPARE(UserDefaults::standard().doubleForKey(u"ReaderFontSize"_s), size + 1);
    QTest::keyClick(window, Qt::Key_Minus, Qt::ControlModifier);
    QTRY_COMPARE(stepper->property("value").toDouble(), size);

    QTest::keyClick(window, Qt::Key_Escape);
    QTRY_COMPARE(topPage(window), u"MainTableView"_s);
    QTRY_COMPARE(topInList(u"row-40"_s), chosenTop); // where the reader left it
    auto *chosen = findVisibleItem(window->contentItem(), u"row-40"_s);
    QVERIFY(chosen);
    const QRectF shown = chosen->mapRectToItem(table, chosen->boundingRect());
    QVERIFY(shown.top() >= 0 && shown.bottom() <= table->height());

    QVERIFY(tabUntil(window, [](QQuickItem *item) { return isA(item, "FavoriteBox"); }));
    QQuickItem *box = window->activeFocusItem();
    QVERIFY(chosen->isAncestorOf(box)); // the chosen row's own box, not the first row's
    QTest::keyClick(window, Qt::Key_Space);
    QTRY_COMPARE(box->property("checkState").toInt(), 1);
    FetchRequest favorites = PoemPrayer::fetchRequest();
    favorites.predicate = Predicate::equals(u"favorite"_s, u"T"_s);
    QTRY_COMPARE(loadedContainer()->viewContext().fetch<PoemPrayer>(favorites).size(), 1);

    auto *segments = findVisibleItem(window->contentItem(), u"segment"_s);
    const int segment = segments->property("currentIndex").toInt();
    const int rows = table->property("count").toInt();
    QVERIFY(tabUntil(window, [&](QQuickItem *item) { return item == segments; }));
    QTest::keyClick(window, Qt::Key_Right); // AM to PM: no night pages here
    QTRY_COMPARE(segments->property("currentIndex").toInt(), segment + 1);
    QTRY_VERIFY(table->property("count").toInt() != rows);

    QTest::keyClick(window, Qt::Key_Left, Qt::AltModifier);
    QTRY_COMPARE(topPage(window), u"CoverView"_s);
}

// The largest list font on a small phone: the rows grow to hold their labels.
void TestKeyboard::largeListFontFitsTheRows()
{
    TestEnvironment environment;
    UserDefaults::standard().set(u"ListFontSize"_s, 30.0);
    insertPages({u"September 30|AM|9|30|547|F|Morning"_s});
    QQmlApplicationEngine engine;
    QQuickWindow *window = openFromCover(engine, u"GoodMorningButton"_s, u"MainTableView"_s);
    QVERIFY(window);
    window->resize(360, 640);
    QQuickItem *row = waitForItem(window, u"row-0"_s);
    QVERIFY(row);
    QTRY_COMPARE(row->width(), findVisibleItem(window->contentItem(), u"table"_s)->width());
    for (const QString &name : {u"DateLabel"_s, u"PageWords"_s}) {
        QQuickItem *label = findVisibleItem(row, name);
        QVERIFY2(label, qPrintable(name));
        const QRectF inRow = label->mapRectToItem(row, label->boundingRect());
        QVERIFY2(inRow.top() >= 0 && inRow.bottom() <= row->height() && inRow.right() <= row->width(), qPrintable(name));
        QVERIFY2(!label->property("truncated").toBool(), qPrintable(name)); // every word kept
    }
}

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
