#include "Clock.h"
#include "Navigator.h"
#include "PagePicture.h"
#include "PageRows.h"
#include "PreferenceKeys.h"
#include "Selection.h"
#include "Sharing.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QFont>
#include <QPointer>
#include <QQmlApplicationEngine>
#include <QAccessible>
#include <QQuickItem>
#include <QQuickTextDocument>
#include <QQuickWindow>
#include <QTest>
#include <QTextDocument>
#include <functional>

using namespace Qt::StringLiterals;

namespace {
const QString longPage = u"A line of the morning\n"_s.repeated(80) + u"Snowdrops in the lane"_s;
// January 1 and 2, morning and night; the night of the 1st and the morning of the 2nd are favourites.
const QStringList pages{u"January 1|AM|1|1|1|F|Frost on the gate"_s, u"January 1|PM|1|1|2|T|Lamps along the lane"_s,
                        u"January 2|AM|1|2|3|T|Bread rising"_s, u"January 2|PM|1|2|4|F|The owl at the window"_s,
                        u"February 3|AM|2|3|67|F|"_s + longPage};

// One touch screen for the whole run: Qt keeps every device registered until exit.
QPointingDevice *touchScreen()
{
    static QPointingDevice *screen = QTest::createTouchDevice();
    return screen;
}

// Left/right slide of a finger across the middle of the text.
void swipe(QQuickWindow *window, int direction)
{
    const QPoint middle(window->width() / 2, window->height() / 2);
    const int step = -direction * window->width() / 20;
    QTest::touchEvent(window, touchScreen()).press(0, middle, window);
    for (int i = 1; i <= 8; ++i) {
        QTest::touchEvent(window, touchScreen()).move(0, middle + QPoint(step * i, 0), window);
        QTest::qWait(10);
    }
    QTest::touchEvent(window, touchScreen()).release(0, middle + QPoint(step * 8, 0), window);
}

// Two fingers about the middle of the window spread from 80 to 160 pixels apart.
void spread(QQuickWindow *window)
{
    const QPoint middle(window->width() / 2, window->height() / 2);
    const auto apart = [](int i) { return QPoint(40 + 4 * i, 0); };
    QTest::touchEvent(window, touchScreen()).press(0, middle - apart(0), window).press(1, middle + apart(0), window);
    for (int i = 1; i <= 10; ++i) {
        QTest::touchEvent(window, touchScreen()).move(0, middle - apart(i), window).move(1, middle + apart(i), window);
        QTest::qWait(10);
    }
    QTest::touchEvent(window, touchScreen()).release(0, middle - apart(10), window).release(1, middle + apart(10), window);
}

void turn(QQuickWindow *window, const QString &how, int direction)
{
    if (how == u"button")
        click(window, findVisibleItem(window, direction < 0 ? u"PreviousPageButton"_s : u"NextPageButton"_s));
    else if (how == u"key")
        QTest::keyClick(window, direction < 0 ? Qt::Key_Left : Qt::Key_Right);
    else
        swipe(window, direction);
}

// The page selection as "dt|ampm|month|day|pagenum|favorite".
QString selectedPage()
{
    const Selection &selection = Selection::shared();
    return QStringList{selection.selectedDt(), selection.selectedAmpm(), QString::number(selection.selectedMonth()),
                       QString::number(selection.selectedDay()), QString::number(selection.selectedPagenum()),
                       selection.selectedFavorite()}
        .join(u'|');
}

qint64 reviewCount()
{
    return UserDefaults::standard().integerForKey(PreferenceKeys::reviewWorthyActionCount.name);
}

// The page list opened from the cover, in `segment` if any, then its page at `row` in the reader.
QQuickWindow *openReader(QQmlApplicationEngine &engine, const QString &coverButton, const QString &segment, int row)
{
    QQuickWindow *window = openFromCover(engine, coverButton, u"MainTableView"_s);
    if (window && !segment.isEmpty())
        click(window, waitForItem(window, segment));
    if (!window)
        return nullptr;
    click(window, waitForItem(window, u"row-%1"_s.arg(row)));
    return QTest::qWaitFor([&] { return topPage(window) == u"View"_s; }) ? window : nullptr;
}

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

// How far the reader's wallpaper reaches past the text's right edge, and stops short of its bottom.
QSizeF pictureOverhang(QQuickWindow *window)
{
    QQuickItem *surface = findVisibleItem(window, u"scroller"_s);
    QQuickItem *picture = findItem(surface, u"img"_s);
    return {picture->width() - surface->property("contentWidth").toDouble(),
            surface->property("contentHeight").toDouble() - picture->height()};
}

bool isA(QQuickItem *item, const char *qmlType)
{
    return QString::fromLatin1(item->metaObject()->className()).startsWith(QLatin1StringView(qmlType));
}
}

// The readers in the real window: turning pages in each list, the keyboard alone, a large list
// font, a special day, and a page shared as a picture.
class TestReaderPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }

    void turnInPageList_data()
    {
        QTest::addColumn<QString>("route"); // the cover's button, the list's segment, the row opened
        QTest::addColumn<QString>("how");
        QTest::addColumn<int>("direction");
        QTest::addColumn<QString>("page");    // the page turned to: dt|ampm|month|day|pagenum|favorite
        QTest::addColumn<int>("listRow");     // its row in the list, back there
        QTest::addColumn<QString>("arrows");  // enabled after the turn: "<" previous, ">" next
        QTest::newRow("today, to the night page by the arrow")
            << u"TodayButton - 0"_s << u"button"_s << 1 << u"January 1|PM|1|1|2|T"_s << 1 << u"<"_s;
        QTest::newRow("all, across a day by the key")
            << u"TodayButton segment-All 1"_s << u"key"_s << 1 << u"January 2|AM|1|2|3|T"_s << 2 << u"<>"_s;
        QTest::newRow("all, back to the first page by a swipe")
            << u"TodayButton segment-All 1"_s << u"swipe"_s << -1 << u"January 1|AM|1|1|1|F"_s << 0 << u">"_s;
        QTest::newRow("mornings skip the nights")
            << u"GoodMorningButton - 1"_s << u"key"_s << -1 << u"January 1|AM|1|1|1|F"_s << 0 << u">"_s;
        QTest::newRow("nights skip the mornings")
            << u"GoodNightButton - 0"_s << u"swipe"_s << 1 << u"January 2|PM|1|2|4|F"_s << 1 << u"<"_s;
        QTest::newRow("favourites only") << u"FavoritesButton - 0"_s << u"button"_s << 1 << u"January 2|AM|1|2|3|T"_s << 1 << u"<"_s;
    }

    void turnInPageList()
    {
        QFETCH(QString, route);
        QFETCH(QString, how);
        QFETCH(int, direction);
        QFETCH(QString, page);
        QFETCH(int, listRow);
        QFETCH(QString, arrows);
        TestEnvironment environment;
        Clock::set([] { return QDateTime(QDate(2026, 1, 1), QTime(21, 0)); });
        // A wallpaper drawn at random, so that a second draw would show.
        UserDefaults::standard().set(u"useWallpaper"_s, 1);
        for (int i = 1; i <= 35; ++i)
            UserDefaults::standard().set(u"Page%1"_s.arg(i), u"true"_s);
        insertPages(pages);
        QQmlApplicationEngine engine;
        const QStringList steps = route.split(u' ');
        QQuickWindow *window = openReader(engine, steps[0], steps[1] == u"-" ? QString() : steps[1], steps[2].toInt());
        QVERIFY(window);
        QQuickItem *text = waitForItem(window, u"PoemPrayerTextView"_s);
        const QUrl wallpaper = findVisibleItem(window, u"img"_s)->property("source").toUrl();
        const qint64 reviewsBefore = reviewCount();

        turn(window, how, direction);
        const QStringList expected = page.split(u'|');
        const QString composed = u"\nFrom The Larkwells\n %1\n\n%2\n\n%3"_s.arg(expected[1] == u"AM" ? u"Good Morning"_s : u"Good Night"_s,
                                                                               expected[0], pages.filter(page).first().section(u'|', 6));
        QTRY_COMPARE(text->property("text").toString(), composed);
        QCOMPARE(selectedPage(), page);
        QCOMPARE(Selection::shared().selectedPoemPrayer(), composed);
        QCOMPARE(reviewCount(), reviewsBefore + 1); // the review rule ran for the new page
        QCOMPARE(findVisibleItem(window, u"img"_s)->property("source").toUrl(), wallpaper);
        QTRY_COMPARE(findVisibleItem(window, u"FavoriteCheckBox"_s)->property("checkState").toInt(), expected[5] == u"T" ? 1 : 0);
        QCOMPARE(QString(findVisibleItem(window, u"PreviousPageButton"_s)->isEnabled() ? u"<"_s : u""_s)
                     + (findVisibleItem(window, u"NextPageButton"_s)->isEnabled() ? u">"_s : u""_s),
                 arrows);

        // At the end, neither the key nor a swipe goes further.
        if (arrows != u"<>") {
            const int beyond = arrows == u">" ? -1 : 1;
            QTest::keyClick(window, beyond < 0 ? Qt::Key_Left : Qt::Key_Right);
            swipe(window, beyond);
            QTest::qWait(100);
            QCOMPARE(selectedPage(), page);
        }
        QVERIFY(clickTo(window, u"backButton"_s, u"MainTableView"_s));
        QTRY_COMPARE(findVisibleItem(window, u"table"_s)->property("currentIndex").toInt(), listRow);
    }

    // Search, the marked result scrolled into sight, no turning to the other result, a favourite, and
    // back to the same search.
    void searchResultShowsItsOnePage()
    {
        TestEnvironment environment;
        insertPages(pages);
        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"SearchButton"_s, u"SearchTableView"_s);
        QVERIFY(window);
        QQuickItem *field = waitForItem(window, u"searchField"_s);
        QTRY_VERIFY(field->hasActiveFocus()); // the field takes the keyboard on opening
        click(window, waitForItem(window, u"segment-Poems/Prayers"_s));
        QTRY_COMPARE(field->property("placeholderText").toString(), u"Search for Poem/Prayer"_s);
        field->forceActiveFocus();
        for (const char letter : {'L', 'A', 'N', 'E'})
            QTest::keyClick(window, letter, Qt::ShiftModifier);
        QTRY_COMPARE(findVisibleItem(window, u"matchCount"_s)->property("text").toString(), u"2 pages match"_s);
        QVERIFY(clickTo(window, u"row-1"_s, u"SearchView"_s));

        // Its match far below the first screen.
        QCOMPARE(selectedPage(), u"February 3|AM|2|3|67|F"_s);
        QCOMPARE(Selection::shared().selectedSearchText(), u"LANE"_s);
        QCOMPARE(Selection::shared().selectedPoemPrayer(), u"\n\nFrom The Larkwells\n Good Morning\n\nFebruary 3\n\n"_s + longPage);
        QQuickItem *text = waitForItem(window, u"PoemPrayerTextView"_s);
        QTRY_COMPARE(markedFragments(*text->property("textDocument").value<QQuickTextDocument *>()->textDocument()),
                     QStringList{u"lane"_s});
        QTRY_VERIFY(findVisibleItem(window, u"scroller"_s)->property("contentY").toDouble() > 500);
        QCOMPARE(pictureOverhang(window), QSizeF(0, 25)); // framed as on a phone
        QVERIFY(!findVisibleItem(window, u"PreviousPageButton"_s) && !findVisibleItem(window, u"NextPageButton"_s));
        QTest::keyClick(window, Qt::Key_Left);
        QTest::qWait(100);
        QCOMPARE(selectedPage(), u"February 3|AM|2|3|67|F"_s);
        click(window, waitForItem(window, u"FavoriteCheckBox"_s));
        QTRY_COMPARE(storedRows<PoemPrayer>({u"favorite"_s}).last(), u"T"_s);

        QVERIFY(clickTo(window, u"backButton"_s, u"SearchTableView"_s));
        QTRY_COMPARE(findVisibleItem(window, u"table"_s)->property("currentIndex").toInt(), 1);
        QCOMPARE(field->property("text").toString(), u"LANE"_s);
        QTRY_VERIFY(findVisibleItem(window, u"row-1"_s)->property("favoriteChecked").toBool());
        // Escape empties the field first, then leaves the screen.
        field->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_COMPARE(field->property("text").toString(), QString());
        QCOMPARE(topPage(window), u"SearchTableView"_s);
        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_COMPARE(topPage(window), u"CoverView"_s);
    }

    // Spread fingers zoom the long page about the middle of the view; zoomed in, a sideways swipe
    // pans to the cut-off edge instead of turning the page.
    void pinchZoomsAndPans()
    {
        TestEnvironment environment;
        insertPages(pages);
        QQmlApplicationEngine engine;
        QQuickWindow *window = openReader(engine, u"TodayButton"_s, u"segment-All"_s, 4);
        QVERIFY(window);
        QQuickItem *surface = waitForItem(window, u"scroller"_s);
        const auto middle = [surface](const char *axis, const char *size) {
            return (surface->property(axis).toDouble() + surface->property(size).toDouble() / 2)
                / surface->property("contentWidth").toDouble() * surface->width();
        };
        surface->setProperty("contentY", 600);
        const double middleY = middle("contentY", "height");
        spread(window);
        QTRY_VERIFY(surface->property("contentWidth").toDouble() > 1.3 * surface->width());
        QVERIFY(std::abs(middle("contentX", "width") - surface->width() / 2) < 2);
        QVERIFY(std::abs(middle("contentY", "height") - middleY) < 2);

        const double panned = surface->property("contentX").toDouble();
        swipe(window, 1);
        QTRY_VERIFY(surface->property("contentX").toDouble() > panned + 20);
        QCOMPARE(selectedPage(), u"February 3|AM|2|3|67|F"_s);
    }

    // A favourite ticked in the reader shows in the list; typing changes the page: the caret keeps the
    // arrow keys, and the page stays until it is saved.
    void unsavedEditsKeepThePage()
    {
        TestEnvironment environment;
        insertPages(pages);
        QQmlApplicationEngine engine;
        QQuickWindow *window = openReader(engine, u"GoodMorningButton"_s, QString(), 0);
        QVERIFY(window);
        QQuickItem *text = waitForItem(window, u"PoemPrayerTextView"_s);
        QQuickItem *next = findVisibleItem(window, u"NextPageButton"_s);
        QTRY_VERIFY(next->isEnabled());
        click(window, waitForItem(window, u"FavoriteCheckBox"_s));
        QTRY_COMPARE(storedRows<PoemPrayer>({u"favorite"_s}).first(), u"T"_s);

        text->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_Right);
        QCOMPARE(Selection::shared().selectedDt(), u"January 1"_s); // the caret moved, the page did not
        QTest::keyClick(window, 'x');
        QTRY_VERIFY(!next->isEnabled());
        click(window, next);
        QCOMPARE(Selection::shared().selectedDt(), u"January 1"_s);

        click(window, findVisibleItem(window, u"SaveButton"_s));
        QTRY_VERIFY(next->isEnabled());
        click(window, next);
        QTRY_COMPARE(Selection::shared().selectedDt(), u"January 2"_s);
        QVERIFY(!text->hasActiveFocus());
        QVERIFY(clickTo(window, u"backButton"_s, u"MainTableView"_s));
        QTRY_VERIFY(findVisibleItem(window, u"row-0"_s)->property("favoriteChecked").toBool());
    }

    // The stepper starts at the stored size whatever the colour code, styled text or not, and one
    // step up stores one point more.
    void stepperStartsAtTheStoredSize_data()
    {
        QTest::addColumn<qint64>("textColor");
        QTest::newRow("styled colour") << qint64(2);
        QTest::newRow("colour code outside the four") << qint64(7);
    }

    void stepperStartsAtTheStoredSize()
    {
        QFETCH(qint64, textColor);
        TestEnvironment environment;
        UserDefaults::standard().set(u"textColor"_s, textColor);
        UserDefaults::standard().set(u"ReaderFontSize"_s, 20.0);
        Clock::set([] { return QDateTime(QDate(2026, 1, 1), QTime(9, 0)); });
        insertPages(pages);
        QQmlApplicationEngine engine;
        QQuickWindow *window = openReader(engine, u"TodayButton"_s, QString(), 0);
        QVERIFY(window);
        auto *stepper = waitForItem(window, u"FontSizeStepper"_s);
        QCOMPARE(stepper->property("value").toDouble(), 20.0);
        click(window, findItem(stepper, u"FontLargerButton"_s));
        QTRY_COMPARE(UserDefaults::standard().doubleForKey(u"ReaderFontSize"_s), 21.0);
    }

    // The list builds its reader before the tap: each one shows the page then chosen, counts one
    // page opening, and goes once it has left.
    void eachTapOpensAFreshReader()
    {
        TestEnvironment environment;
        Clock::set([] { return QDateTime(QDate(2026, 1, 1), QTime(9, 0)); });
        insertPages(pages);
        QQmlApplicationEngine engine;
        QQuickWindow *window = openReader(engine, u"TodayButton"_s, QString(), 0);
        QVERIFY(window);
        QPointer<QQuickItem> first = currentScreen(window);
        QCOMPARE(first->property("title").toString(), u"Good Morning"_s);
        QVERIFY(clickTo(window, u"backButton"_s, u"MainTableView"_s));
        QTRY_VERIFY(!first);

        // The next reader is built in the frames that follow; the tap takes that one.
        QTRY_VERIFY(window->property("aheadScreen").value<QQuickItem *>());
        QVERIFY(clickTo(window, u"row-1"_s, u"View"_s));
        QCOMPARE(currentScreen(window)->property("title").toString(), u"Good Night"_s);
        QCOMPARE(waitForItem(window, u"PoemPrayerTextView"_s)->property("text").toString(), Selection::shared().selectedPoemPrayer());
        QCOMPARE(reviewCount(), 2);
    }

    // The list and the reader without a mouse: the list keeps its place across a reading, the text
    // lets Tab go, Ctrl+plus/minus act as the stepper, Space marks a favourite, the arrows switch
    // segments, Escape and Alt+Left go back.
    void keyboardAlone()
    {
        TestEnvironment environment;
        QStringList pages;
        for (int i = 0; i < 60; ++i)
            pages << u"Day %1|AM|%2|%3|%4|F|Morning %4"_s.arg(i).arg(1 + i / 28).arg(1 + i % 28).arg(2 * i + 1);
        insertPages(pages);
        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"GoodMorningButton"_s, u"MainTableView"_s);
        QVERIFY(window);

        auto *table = findVisibleItem(window, u"table"_s);
        QVERIFY(tabUntil(window, [&](QQuickItem *item) { return table->isAncestorOf(item); }));
        for (int i = 0; i < 40; ++i)
            QTest::keyClick(window, Qt::Key_Down);
        QTRY_COMPARE(table->property("currentIndex").toInt(), 40);
        QTRY_VERIFY(table->property("contentY").toDouble() > 100);
        const auto topInList = [&](const QString &row) {
            QQuickItem *item = findVisibleItem(window, row);
            return item ? item->mapToItem(table, QPointF(0, 0)).y() : -1e9;
        };
        const double chosenTop = topInList(u"row-40"_s);

        QTest::keyClick(window, Qt::Key_Return);
        QTRY_COMPARE(topPage(window), u"View"_s);
        QQuickItem *text = waitForItem(window, u"PoemPrayerTextView"_s);
        QVERIFY(text->property("text").toString().contains(u"Morning 81"_s));
        // Heard as the eye reads it: the top bar first, the bottom bar last.
        QQuickItem *reader = currentScreen(window);
        QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(reader);
        QVERIFY(heard && heard->childCount() > 2);
        const auto inBar = [&](int child, const char *bar) {
            auto *item = qobject_cast<QQuickItem *>(heard->child(child)->object());
            auto *holder = reader->property(bar).value<QQuickItem *>();
            return item && holder && (item == holder || holder->isAncestorOf(item));
        };
        QVERIFY(inBar(0, "header"));
        QVERIFY(inBar(heard->childCount() - 1, "footer"));
        QVERIFY(tabUntil(window, [&](QQuickItem *item) { return item == text; }));
        QTest::keyClick(window, Qt::Key_Tab);
        QVERIFY(window->activeFocusItem() != text); // Tab is not typed into the text
        auto *stepper = findVisibleItem(window, u"FontSizeStepper"_s);
        const double size = stepper->property("value").toDouble();
        QTest::keyClick(window, Qt::Key_Plus, Qt::ControlModifier);
        QTRY_COMPARE(stepper->property("value").toDouble(), size + 1);
        QCOMPARE(UserDefaults::standard().doubleForKey(u"ReaderFontSize"_s), size + 1);
        QTest::keyClick(window, Qt::Key_Minus, Qt::ControlModifier);
        QTRY_COMPARE(stepper->property("value").toDouble(), size);

        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_COMPARE(topPage(window), u"MainTableView"_s);
        QTRY_COMPARE(topInList(u"row-40"_s), chosenTop); // where the reader left it
        auto *chosen = findVisibleItem(window, u"row-40"_s);
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

        auto *segments = findVisibleItem(window, u"segment"_s);
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
    void largeListFontFitsTheRows()
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
        QTRY_COMPARE(row->width(), findVisibleItem(window, u"table"_s)->width());
        for (const QString &name : {u"DateLabel"_s, u"PageWords"_s, u"FavoriteLabel"_s}) {
            QQuickItem *label = findVisibleItem(row, name);
            QVERIFY2(label, qPrintable(name));
            const QRectF inRow = label->mapRectToItem(row, label->boundingRect());
            QVERIFY2(inRow.top() >= 0 && inRow.bottom() <= row->height() && inRow.right() <= row->width(), qPrintable(name));
            QVERIFY2(!label->property("truncated").toBool(), qPrintable(name)); // every word kept
            QCOMPARE(label->property("font").value<QFont>().pixelSize(), 30); // every label in the list font
        }
    }

    // Cover → Special Days (first visit seeds) → a day → share → back, in the real pages.
    void specialDayListReaderAndBack()
    {
        TestEnvironment environment;
        environment.addBundleFile(u"SpecialDays.txt"_s,
                                  "[SPECIALDAYS]\r\nPM^Candlemas^Light kept@#@for the dark\r\nAM^Candlemas^Morning light\r\n");
        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"SpecialDaysButton"_s, u"SpecialDaysTableView"_s);
        QVERIFY(window);
        QQuickItem *nightRow = waitForItem(window, u"row-1"_s);
        QVERIFY(nightRow && waitForItem(window, u"section-Morning"_s) && waitForItem(window, u"section-Night"_s));
        QCOMPARE(nightRow->property("dayText").toString(), u"Good Night - Candlemas"_s);

        click(window, nightRow);
        QTRY_COMPARE(topPage(window), u"EditSpecialDaysView"_s);
        QQuickItem *text = waitForItem(window, u"PoemPrayerTextView"_s);
        QVERIFY(text);
        QCOMPARE(text->property("text").toString(), u"Good Night\n\nCandlemas\n\nLight kept\nfor the dark"_s);
        QCOMPARE(pictureOverhang(window), QSizeF(100, 25)); // framed as on a phone

        // Sharing hands over the text as it stands, edits included, with no text-message gate.
        Sharing::shared().setCanSendTextForTesting(false);
        text->setProperty("text", text->property("text").toString() + u"\nAmen"_s);
        click(window, waitForItem(window, u"ShareButton"_s));
        QTRY_VERIFY(Sharing::shared().showing());
        QCOMPARE(Sharing::shared().text(), u"Good Night\n\nCandlemas\n\nLight kept\nfor the dark\nAmen"_s);
        Sharing::shared().cancel();

        QVERIFY(clickTo(window, u"backButton"_s, u"SpecialDaysTableView"_s));
    }

    void shareSheetOffersThePicture()
    {
        TestEnvironment environment;
        QQmlApplicationEngine engine;
        QQuickWindow *window = loadLaunchedWindow(engine);
        QVERIFY(window);
        Selection::shared().setSelectedAmpm(u"AM"_s);
        Selection::shared().setSelectedDt(u"May 2"_s);
        Selection::shared().setSelectedPoemPrayer(u"Dew on the gate\nand on the grass,\nthe wren is up before the sun."_s);
        Navigator::shared().performSegue(u"ViewPoemSegue"_s);
        QTRY_COMPARE(topPage(window), u"View"_s);

        click(window, waitForItem(window, u"FacebookShareButton"_s));
        QQuickItem *picture = waitForItem(window, u"share-picture"_s);
        QVERIFY(picture);
        QCOMPARE(picture->property("text").toString(), u"Share as Picture"_s);
        environment.logLines.clear();
        click(window, picture);
        QTRY_VERIFY(Sharing::shared().sharesFile());
        QCOMPARE(Sharing::shared().fileName(), u"May 2 Good Morning.png"_s);
        QCOMPARE(environment.logLines.value(0), u"completed"_s);
        QVERIFY(waitForItem(window, u"share-savecopy"_s) && !findVisibleItem(window, u"share-picture"_s));
        const QImage shared(QDir::temp().filePath(Sharing::shared().fileName()));
        QCOMPARE(shared.width(), PagePicture::width);
        const int ink = countPixels(shared, [](QRgb p) { return qGray(p) < 60; }); // the text drawn in black
        QVERIFY2(ink > 5000, qPrintable(QString::number(ink)));
        Sharing::shared().cancel();
    }
};

QTEST_MAIN(TestReaderPages)
#include "tst_readerpages.moc"
