#include "Alerts.h"
#include "MainTableViewController.h"
#include "Navigator.h"
#include "PageRows.h"
#include "Selection.h"
#include "TestSupport.h"

#include <QAccessible>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTest>
#include <memory>

using namespace Qt::StringLiterals;

namespace {
// A pixel of slack: anti-aliased borders and rounded positions touch without overlapping.
constexpr qreal tolerance = 1.5;

struct Control
{
    QQuickItem *item;
    QRectF scene;   // where the control is laid out
    QRectF visible; // the part not clipped away by a scrolling parent
};

bool isControlRole(QAccessible::Role role)
{
    using enum QAccessible::Role;
    static const QList<QAccessible::Role> roles{Button,   CheckBox,   RadioButton, ComboBox,       SpinBox, Slider,  Dial,
                                                EditableText, PageTab, ButtonMenu, ButtonDropDown, Link,    ListItem};
    return roles.contains(role);
}

bool shown(const QQuickItem *item)
{
    for (const QQuickItem *it = item; it; it = it->parentItem()) {
        if (it->opacity() <= 0.01)
            return false;
    }
    return item->isVisible() && item->isEnabled();
}

bool isControl(QQuickItem *item)
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
    return accessible && isControlRole(accessible->role());
}

QString nameOf(QQuickItem *item)
{
    if (!item->objectName().isEmpty())
        return item->objectName();
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
    const QString name = accessible ? accessible->text(QAccessible::Name) : QString();
    return name.isEmpty() ? u"<unnamed %1>"_s.arg(QString::fromLatin1(item->metaObject()->className())) : u"\"%1\""_s.arg(name);
}

QString describe(const Control &control)
{
    const QRect r = control.scene.toRect();
    return u"%1 [%2,%3 %4x%5]"_s.arg(nameOf(control.item)).arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

QRectF sceneRect(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

bool fits(const QRectF &inner, const QRectF &outer)
{
    return outer.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(inner);
}

void collect(QQuickItem *item, QRectF clip, QList<Control> &controls)
{
    if (!shown(item))
        return;
    if (item->clip())
        clip &= sceneRect(item);
    if (isControl(item))
        controls.append({item, sceneRect(item), sceneRect(item) & clip});
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        collect(child, clip, controls);
}

// Whether the rectangle `scene` of `item` can be brought inside the window: it already is, or it lies
// within what a flickable scrolls through and that flickable can itself be reached.
bool reachable(const QQuickItem *item, const QRectF &scene, const QRectF &window)
{
    if (fits(scene, window))
        return true;
    QQuickItem *flickable = item->parentItem();
    while (flickable && !flickable->inherits("QQuickFlickable"))
        flickable = flickable->parentItem();
    if (!flickable)
        return false;
    auto *content = flickable->property("contentItem").value<QQuickItem *>();
    const QRectF inContent = content->mapRectFromScene(scene);
    const QRectF range(flickable->property("originX").toReal(), flickable->property("originY").toReal(),
                       std::max(flickable->property("contentWidth").toReal(), flickable->width()),
                       std::max(flickable->property("contentHeight").toReal(), flickable->height()));
    return fits(inContent, range) && reachable(flickable, sceneRect(flickable), window);
}

// The popup (dialog, sheet, picker) holding `item`, or null for the screen itself. A popup
// covers the screen on purpose, so only controls of the same layer can collide.
const QQuickItem *layerOf(const QQuickItem *item)
{
    for (const QQuickItem *it = item; it->parentItem(); it = it->parentItem()) {
        if (it->parentItem()->inherits("QQuickOverlay"))
            return it;
    }
    return nullptr;
}

// What a user cannot reach or tell apart on the window as it stands: every visible, enabled
// control (anything a screen reader presents as a button, field, check box, tab, stepper...)
// that lies outside the window where no flickable can scroll it into view, and every pair of
// such controls that overlap (a control and its own parts are one). One line per fault,
// naming the controls by object name or accessible name.
QStringList layoutFaults(QQuickWindow *window)
{
    // Stock controls tell their role only to an active screen reader.
    QAccessible::setActive(true);
    const QRectF bounds(0, 0, window->width(), window->height());
    QList<Control> controls;
    collect(window->contentItem(), bounds, controls);
    QStringList faults;
    for (const Control &control : controls) {
        if (!reachable(control.item, control.scene, bounds))
            faults.append(u"out of reach: "_s + describe(control));
    }
    for (qsizetype i = 0; i < controls.size(); ++i) {
        for (qsizetype j = i + 1; j < controls.size(); ++j) {
            const QRectF both = controls[i].visible & controls[j].visible;
            if (both.width() > tolerance && both.height() > tolerance && !controls[i].item->isAncestorOf(controls[j].item)
                && !controls[j].item->isAncestorOf(controls[i].item)
                && layerOf(controls[i].item) == layerOf(controls[j].item))
                faults.append(u"overlap: %1 and %2"_s.arg(describe(controls[i]), describe(controls[j])));
        }
    }
    return faults;
}

const QString cover = u"Cover with its menu"_s;
// Screens in a second state that adds controls: the typing reader's Done button, the note's
// date picker. Each opens by its segue, then takes one step.
const QString typing = u" while typing"_s;
const QString picking = u" picking a date"_s;
const QStringList states{u"ViewPoemSegue"_s + typing, u"SpecialDayReaderSegue"_s + typing, u"AboutEditSegue"_s + typing,
                         u"EditNotesSegue"_s + picking};

// A few notes of our own, so the notes list has rows and the editor has text.
void insertNotes()
{
    const QStringList subjects{u"Walk by the river"_s, u"A long subject line that runs well past the width of a phone"_s,
                               u"Bread"_s};
    QStringList rows;
    for (int i = 0; i < subjects.size(); ++i)
        rows << u"%1|%2|2026-03-%3T07:30:00Z|March %4, 2026|2026|3|%4"_s.arg(
            subjects[i], u"Thought of the morning page while the kettle sang.\n"_s.repeated(i * 20 + 1))
                    .arg(4 + i, 2, 10, QChar(u'0')).arg(4 + i);
    insertRows<Notes>({u"subject"_s, u"notes"_s, u"dt"_s, u"dtstring"_s, u"year"_s, u"month"_s, u"day"_s}, rows);
}

// The first row of each table, chosen as its list would choose it.
void selectFirstRows()
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    Selection &selection = Selection::shared();
    selection.setSelectedList(u"AM"_s);
    selection.setSelectedSearchText(u"light"_s);
    const PoemPrayer *page = context.fetch<PoemPrayer>(PoemPrayer::fetchRequest()).value(0);
    QVERIFY(page);
    MainTableViewController::selectPage(*page);
    const SpecialDay *day = context.fetch<SpecialDay>(SpecialDay::fetchRequest()).value(0);
    QVERIFY(day);
    selection.setSelectedSpecialPoem(day->poemprayer().value_or(QString()));
    selection.setSelectedSpecialDayName(day->dayname().value_or(QString()));
    selection.setSelectedSpecialAmpm(day->ampm().value_or(QString()));
    const About *article = context.fetch<About>(About::fetchRequest()).value(0);
    QVERIFY(article);
    selection.setSelectedAboutName(article->name().value_or(QString()));
    selection.setSelectedAboutText(article->aboutText().value_or(QString()));
    const Notes *note = context.fetch<Notes>(Notes::fetchRequest()).value(1);
    QVERIFY(note);
    selection.setEditNoteSubject(note->subject().value_or(QString()));
    selection.setEditNoteText(note->notes().value_or(QString()));
    selection.setEditNoteDate(note->dt().value_or(QDateTime()));
    selection.setEditNoteDtstring(note->dtstring().value_or(QString()));
    selection.setEditNoteYear(note->year());
    selection.setEditNoteMonth(note->month());
    selection.setEditNoteDay(note->day());
}
}

// Every screen, filled with the seeded book, at phone and tablet sizes: no control may sit
// outside the window beyond scrolling, nor on top of another control.
class TestLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_environment = std::make_unique<TestEnvironment>();
        QQuickStyle::setStyle(u"Material"_s); // as the application draws itself
        m_engine = std::make_unique<QQmlApplicationEngine>();
        m_window = loadMainWindow(*m_engine); // a first launch: the book is seeded
        QVERIFY(m_window);
        QTRY_VERIFY(Alerts::shared().showing());
        dismissAlerts();
        // The special days and the articles are seeded on the first visit of their lists.
        for (const QString &list : {u"SpecialDaysSegue"_s, u"AboutSegue"_s}) {
            Navigator::shared().performSegue(list);
            QTRY_VERIFY(!topPage(m_window).isEmpty() && topPage(m_window) != u"CoverView"_s);
            dismissAlerts();
            Navigator::shared().popToRoot();
            QTRY_COMPARE(topPage(m_window), u"CoverView"_s);
        }
        insertNotes();
    }
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }

    void cleanupTestCase()
    {
        m_engine.reset();
        m_environment.reset();
    }

    // The checker itself, on small windows of stock controls: what it must flag. What it must let be
    // shows as a failure of the screens below.
    void checkerSeesFaults_data()
    {
        QTest::addColumn<QString>("body");
        QTest::addColumn<QStringList>("expected"); // the start of each fault, in order

        const QString button = u"Button { objectName: \"%1\"; x: %2; y: %3; width: 90; height: 40 }"_s;
        QTest::newRow("overlapping buttons") << button.arg(u"a"_s).arg(0).arg(0) + button.arg(u"b"_s).arg(60).arg(0)
                                             << QStringList{u"overlap: a [0,0 90x40] and b"_s};
        QTest::newRow("a field under a button")
            << u"TextField { objectName: \"f\"; width: 150 }"_s + button.arg(u"b"_s).arg(100).arg(0)
            << QStringList{u"overlap: f"_s};
        QTest::newRow("below the window") << button.arg(u"low"_s).arg(0).arg(250) << QStringList{u"out of reach: low"_s};
        QTest::newRow("beyond what the view scrolls")
            << u"Flickable { anchors.fill: parent; contentHeight: 200; clip: true; %1 }"_s.arg(button.arg(u"low"_s).arg(0).arg(300))
            << QStringList{u"out of reach: low"_s};
    }

    void checkerSeesFaults()
    {
        QFETCH(QString, body);
        QFETCH(QStringList, expected);
        const auto window = qmlWindow(*m_engine, u"Window { width: 200; height: 200; visible: true\n%1\n}"_s.arg(body));
        QVERIFY(window);
        const QStringList faults = layoutFaults(window.get());
        QCOMPARE(faults.size(), expected.size());
        for (qsizetype i = 0; i < faults.size(); ++i)
            QVERIFY2(faults[i].startsWith(expected[i]), qPrintable(faults[i]));
    }

    void everyScreenFits_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QSize>("size");
        const QStringList screens = QStringList{cover} + Navigator::shared().segues() + states;
        for (const QSize size : {QSize(360, 640), QSize(412, 915), QSize(768, 1024), QSize(1024, 768)}) {
            for (const QString &screen : screens) {
                const QString row = u"%1 %2x%3"_s.arg(screen).arg(size.width()).arg(size.height());
                QTest::newRow(qPrintable(row)) << screen << size;
            }
        }
    }

    void everyScreenFits()
    {
        QFETCH(QString, screen);
        QFETCH(QSize, size);
        Navigator::shared().popToRoot();
        QTRY_COMPARE(topPage(m_window), u"CoverView"_s);
        m_window->resize(size);
        QTRY_COMPARE(m_window->contentItem()->size(), QSizeF(size));
        showScreen(screen);
        if (QTest::currentTestFailed())
            return;
        QTest::qWait(800); // opening pickers and late layouts settle
        dismissAlerts();
        // A list still placing its rows overlaps them for a frame or two; a real fault stays.
        QStringList faults;
        const bool fits = QTest::qWaitFor([&] { return (faults = layoutFaults(m_window)).isEmpty(); }, 3000);
        QVERIFY2(fits, qPrintable(u"%1 at %2x%3:\n  "_s.arg(screen).arg(size.width()).arg(size.height())
                                              + faults.join(u"\n  "_s)));
    }

private:
    void showScreen(const QString &screen)
    {
        if (screen == cover) {
            click(m_window, waitForItem(m_window, u"ControlButton"_s));
            QVERIFY(waitForItem(m_window, u"TodayButton"_s));
            return;
        }
        selectFirstRows();
        Navigator::shared().performSegue(screen.section(u' ', 0, 0));
        QTRY_VERIFY(!topPage(m_window).isEmpty() && topPage(m_window) != u"CoverView"_s);
        dismissAlerts();
        if (screen.endsWith(typing)) {
            QQuickItem *surface = waitForItem(m_window, u"scroller"_s);
            QVERIFY(surface);
            surface->property("textView").value<QQuickItem *>()->forceActiveFocus();
            QVERIFY(waitForItem(m_window, u"DoneButton"_s));
        } else if (screen.endsWith(picking)) {
            QQuickItem *field = waitForItem(m_window, u"DateTextField"_s);
            QVERIFY(field);
            field->forceActiveFocus();
            QTest::keyClick(m_window, Qt::Key_Space);
            QVERIFY(waitForItem(m_window, u"monthWheel"_s));
        }
    }
    std::unique_ptr<TestEnvironment> m_environment;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QQuickWindow *m_window = nullptr;
};

QTEST_MAIN(TestLayout)
#include "tst_layout.moc"
