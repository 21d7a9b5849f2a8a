#include "PageRows.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
QStringList rowNames(QQuickWindow *window)
{
    QStringList names;
    for (int row = 0; QQuickItem *item = findVisibleItem(window->contentItem(), u"row-%1"_s.arg(row)); ++row)
        names.append(item->property("modelData").toString());
    return names;
}

void typeAtEnd(QQuickWindow *window, QQuickItem *field, const QString &text)
{
    QMetaObject::invokeMethod(field, "forceActiveFocus");
    QTest::keyClick(window, Qt::Key_End, Qt::ControlModifier);
    for (const QChar c : text)
        QTest::keyClick(window, c.toLatin1());
}
}

// The about list, an article and a new article in the real pages.
class TestAboutPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }
    void readResizeEditSaveAndWriteNew();
};

void TestAboutPages::readResizeEditSaveAndWriteNew()
{
    TestEnvironment environment;
    UserDefaults::standard().set(u"AboutHasBeenLaunchedBeforeFlag"_s, true);
    UserDefaults::standard().set(u"useWallpaper"_s, 1);
    insertAbouts({u"Good Night Preface|Rest now."_s, u"Good Morning Authors|We wrote it."_s});
    QQmlApplicationEngine engine;
    QQuickWindow *window = openFromCover(engine, u"AboutButton"_s, u"AboutTableView"_s);
    QVERIFY(window);
    QVERIFY(waitForItem(window, u"row-1"_s));
    QCOMPARE(rowNames(window), (QStringList{u"Good Morning Authors"_s, u"Good Night Preface"_s}));

    click(window, waitForItem(window, u"row-1"_s));
    QTRY_COMPARE(topPage(window), u"AboutEditView"_s);
    QQuickItem *text = waitForItem(window, u"AboutItemTextView"_s);
    QVERIFY(text);
    const QString shown = u"From The Larkwells\n Good Night \n\n Rest now."_s;
    QCOMPARE(text->property("text").toString(), shown);
    QCOMPARE(text->property("horizontalAlignment").toInt(), int(Qt::AlignHCenter));

    // Turning the screen back and forth lays nothing more beneath the text.
    QQuickItem *scroller = findItem(window->contentItem(), u"scroller"_s);
    auto *content = scroller->property("contentItem").value<QQuickItem *>();
    const qsizetype layers = content->childItems().size();
    for (int turn = 0; turn < 100; ++turn) {
        window->resize(turn % 2 ? QSize(420, 860) : QSize(860, 420));
        QCoreApplication::processEvents();
    }
    QCOMPARE(content->childItems().size(), layers);

    QTest::keyClick(window, Qt::Key_Equal, Qt::ControlModifier); // the reader's keyboard zoom
    QTRY_COMPARE(text->property("font").value<QFont>().pixelSize(), 16);
    QCOMPARE(UserDefaults::standard().typeOf(u"ReaderFontSize"_s), UserDefaults::Type::Double);
    QCOMPARE(UserDefaults::standard().doubleForKey(u"ReaderFontSize"_s), 16.0);

    typeAtEnd(window, text, u" Sleep."_s);
    click(window, waitForItem(window, u"SaveButton"_s));
    QTRY_COMPARE(topPage(window), u"AboutTableView"_s);
    QCOMPARE(storedAbouts().first(), u"Good Night Preface|"_s + shown + u" Sleep."_s);

    click(window, waitForItem(window, u"NewArticleButton"_s));
    QTRY_COMPARE(topPage(window), u"AboutNewView"_s);
    typeAtEnd(window, waitForItem(window, u"NameTextField"_s), u"Good Morning Acknowledgements"_s);
    typeAtEnd(window, waitForItem(window, u"AboutItemTextView"_s), u"Thanks."_s);
    click(window, waitForItem(window, u"SaveButton"_s));
    QTRY_COMPARE(topPage(window), u"AboutTableView"_s);
    QTRY_COMPARE(rowNames(window), (QStringList{u"Good Morning Acknowledgements"_s, u"Good Morning Authors"_s,
                                                u"Good Night Preface"_s}));

    click(window, waitForItem(window, u"row-1"_s));
    QTRY_COMPARE(topPage(window), u"AboutEditView"_s);
    text = waitForItem(window, u"AboutItemTextView"_s);
    QCOMPARE(text->property("text").toString(), u"From The Larkwells\nGood Morning Authors\n\nWe wrote it."_s);
    QCOMPARE(text->property("horizontalAlignment").toInt(), int(Qt::AlignLeft));
    QTest::keyClick(window, Qt::Key_Escape);
    QTRY_COMPARE(topPage(window), u"AboutTableView"_s);
}

QTEST_MAIN(TestAboutPages)
#include "tst_aboutpages.moc"
