#include "Alerts.h"
#include "Appearance.h"
#include "Mail.h"
#include "Navigator.h"
#include "PageRows.h"
#include "Selection.h"
#include "TestSupport.h"
#include "UserDefaults.h"
#include "Wallpapers.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
QString text(QQuickWindow *window, const QString &name)
{
    QQuickItem *item = waitForItem(window, name);
    return item ? item->property("text").toString() : u"(missing)"_s;
}
}

class TestSettingsPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }

    void defaultsReachTheNextReader()
    {
        TestEnvironment environment;
        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"UserDefaultsButton"_s, u"DefaultsView"_s);
        QVERIFY(window);
        QCOMPARE(text(window, u"ReaderFontSizeTextField"_s), u"17"_s);
        QCOMPARE(text(window, u"FontListTextField"_s), u"Arial"_s);

        click(window, waitForItem(window, u"segment-Red"_s));
        click(window, findItem(waitForItem(window, u"ReaderStepper"_s), u"FontLargerButton"_s));
        QCOMPARE(text(window, u"ReaderFontSizeTextField"_s), u"18.0"_s);
        waitForItem(window, u"PoemViewerWallpaperSwitch"_s)->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(window, Qt::Key_Space);
        QTRY_COMPARE(UserDefaults::standard().integerForKey(u"useWallpaper"_s), 1);

        // The reader font by keyboard: filter, down into the list, Enter.
        click(window, waitForItem(window, u"FontListTextField"_s));
        QTRY_VERIFY(waitForItem(window, u"FontFilterField"_s) && waitForItem(window, u"FontFilterField"_s)->hasActiveFocus());
        typeText(window, u"serif"_s);
        QTest::keyClick(window, Qt::Key_Down);
        QTest::keyClick(window, Qt::Key_Return);
        QTRY_VERIFY(!findVisibleItem(window, u"FontFilterField"_s));
        const QString font = text(window, u"FontListTextField"_s);
        QVERIFY2(font.contains(u"serif"_s, Qt::CaseInsensitive), qPrintable(font));

        // Escape leaves the picker, not the screen; the list font stays as it was.
        click(window, waitForItem(window, u"ListFontTextField"_s));
        QTRY_VERIFY(waitForItem(window, u"FontFilterField"_s));
        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_VERIFY(!findVisibleItem(window, u"FontFilterField"_s));
        QCOMPARE(topPage(window), u"DefaultsView"_s);
        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_COMPARE(topPage(window), u"CoverView"_s);

        // Read back from the file, as after a restart.
        UserDefaults::setStandardDirectory(environment.dataDirectory());
        QCOMPARE(UserDefaults::standard().integerForKey(u"textColor"_s), 2);
        QCOMPARE(UserDefaults::standard().typeOf(u"ReaderFontSize"_s), UserDefaults::Type::Double);
        QCOMPARE(UserDefaults::standard().stringForKey(u"FontName"_s), font);
        QCOMPARE(UserDefaults::standard().stringForKey(u"ListFontName"_s), u"Arial"_s);

        Selection::shared().setSelectedAmpm(u"AM"_s);
        Selection::shared().setSelectedDt(u"May 1"_s);
        Navigator::shared().performSegue(u"ViewPoemSegue"_s);
        QTRY_COMPARE(topPage(window), u"View"_s);
        QQuickItem *page = waitForItem(window, u"PoemPrayerTextView"_s);
        QCOMPARE(page->property("color").value<QColor>(), *textColorFor(2));
        QCOMPARE(page->property("font").value<QFont>().pixelSize(), 18);
        QCOMPARE(page->property("font").value<QFont>().family(), font);
        QVERIFY(!findItem(waitForItem(window, u"scroller"_s), u"img"_s)->property("source").toUrl().isEmpty()); // the switch
    }

    void wallpaperRowsToggleByTouchAndKeyboard()
    {
        TestEnvironment environment;
        for (const QString &name : Wallpapers::PMWallpaper())
            UserDefaults::standard().set(name, u"false"_s);
        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"UserDefaultsButton"_s, u"DefaultsView"_s);
        QVERIFY(window);
        QVERIFY(clickTo(window, u"AvailableWallpaperButton"_s, u"ViewerWallpaperTableView"_s));
        QVERIFY(!findVisibleItem(window, u"NoneInUseLabel"_s));
        QQuickItem *row = waitForItem(window, u"row-0"_s);
        QCOMPARE(text(window, u"UseLabel"_s), u"Used"_s);
        QVERIFY(findItem(row, u"ViewerImageView"_s)->height() >= 160);
        click(window, row);
        QTRY_COMPARE(findItem(row, u"UseLabel"_s)->property("text").toString(), u"Not Used"_s);
        QCOMPARE(UserDefaults::standard().stringForKey(u"Page1"_s), u"false"_s);
        waitForItem(window, u"table"_s)->forceActiveFocus(Qt::TabFocusReason); // the first row becomes current
        QTest::keyClick(window, Qt::Key_Space);
        QTRY_COMPARE(UserDefaults::standard().stringForKey(u"Page1"_s).value_or(u"absent"_s), u"true"_s);
        QCOMPARE(findItem(row, u"ViewerCheckBox"_s)->property("checkState").toInt(), 1);

        QTest::keyClick(window, Qt::Key_Escape);
        QTRY_COMPARE(topPage(window), u"DefaultsView"_s);
        QVERIFY(clickTo(window, u"ListWallpaperButton"_s, u"ListWallpaperTableView"_s));
        QVERIFY(waitForItem(window, u"NoneInUseLabel"_s));
        QCOMPARE(text(window, u"NoneInUseLabel"_s), u"No wallpaper of this set is in use"_s);
        // A band is drawn as wide as its row shows it, not whole.
        QQuickItem *band = findItem(waitForItem(window, u"row-0"_s), u"ListImageView"_s);
        QTRY_COMPARE(band->property("status").toInt(), 1); // Image.Ready
        QCOMPARE(qRound(band->implicitWidth()), qRound(band->width()));
        QCOMPARE(qRound(band->implicitHeight()), qRound(band->height()));
        click(window, waitForItem(window, u"ListCheckBox"_s));
        QTRY_VERIFY(!findVisibleItem(window, u"NoneInUseLabel"_s));
        QCOMPARE(UserDefaults::standard().stringForKey(u"AM-36"_s), u"true"_s);
    }

    void settingsRowsActInTheWindow()
    {
        TestEnvironment environment;
        Mail::shared().setCanSendMailForTesting(false);
        QQmlApplicationEngine engine;
        QQuickWindow *window = openFromCover(engine, u"RateShareButton"_s, u"SettingsView"_s);
        QVERIFY(window);
        QCOMPARE(text(window, u"row-2"_s), u"Share The Web Site"_s);

        click(window, waitForItem(window, u"row-4"_s));
        QTRY_VERIFY(Alerts::shared().showing());
        QCOMPARE(Alerts::shared().title(), u"Can't Send Email"_s);
        Alerts::shared().dismiss(0);
    }
};

QTEST_MAIN(TestSettingsPages)
#include "tst_settings_pages.moc"
