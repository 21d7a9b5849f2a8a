#include "Alerts.h"
#include "Appearance.h"
#include "DefaultsViewController.h"
#include "ListWallpaperTableViewController.h"
#include "Mail.h"
#include "Navigator.h"
#include "Selection.h"
#include "SettingsViewController.h"
#include "Sharing.h"
#include "TestSupport.h"
#include "UserDefaults.h"
#include "ViewerWallpaperTableViewController.h"
#include "Wallpapers.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using Type = UserDefaults::Type;

namespace {
// The stored value and its type, as "integer 17", "double 18", "string true" or "absent".
QString stored(const QString &key)
{
    const auto type = UserDefaults::standard().typeOf(key);
    if (!type)
        return u"absent"_s;
    static const QStringList names{u"bool"_s, u"integer"_s, u"double"_s, u"string"_s};
    return names[int(*type)] + u' ' + UserDefaults::standard().object(key).toString();
}

void setAll(const QStringList &names, const QString &value)
{
    for (const QString &name : names)
        UserDefaults::standard().set(name, value);
}

// A scripted random source for the wallpaper draw.
Wallpapers::Uniform scripted(QList<int> &draws, QList<int> &bounds)
{
    return [&](int bound) { bounds.append(bound); return draws.takeFirst(); };
}

// The text of the named item once it has settled.
QString text(QQuickWindow *window, const QString &name)
{
    QQuickItem *item = waitForItem(window, name);
    return item ? item->property("text").toString() : u"(missing)"_s;
}
}

class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".*qml.*"_s)); }

    void firstVisitWritesOnlyWhatIsMissing_data()
    {
        QTest::addColumn<QVariantMap>("before");
        QTest::addColumn<QStringList>("after"); // sizes, colour, switches as stored
        QTest::addColumn<QStringList>("shown"); // list size, reader size, reader font, list font, colour segment, swatch
        QTest::newRow("fresh install")
            << QVariantMap()
            << QStringList{u"integer 17"_s, u"integer 17"_s, u"integer 0"_s, u"integer 0"_s, u"integer 0"_s}
            << QStringList{u"17"_s, u"17"_s, u"Arial"_s, u"Arial"_s, u"0"_s, u"#000000"_s};
        QTest::newRow("stored values are shown as stored")
            << QVariantMap{{u"ListFontSize"_s, 18.0}, {u"ReaderFontSize"_s, 22.5}, {u"textColor"_s, 2},
                           {u"useWallpaper"_s, 1}, {u"ListWallpaperVisible"_s, 1}, {u"FontName"_s, u"DejaVu Serif"_s},
                           {u"ListFontName"_s, u"DejaVu Sans"_s}}
            << QStringList{u"double 18"_s, u"double 22.5"_s, u"integer 2"_s, u"integer 1"_s, u"integer 1"_s}
            << QStringList{u"18.0"_s, u"22.5"_s, u"DejaVu Serif"_s, u"DejaVu Sans"_s, u"2"_s, textColorFor(2)->name()};
        QTest::newRow("a whole size stored by a first visit reads back whole; blue")
            << QVariantMap{{u"ListFontSize"_s, 17}, {u"ReaderFontSize"_s, 30}, {u"textColor"_s, 3}}
            << QStringList{u"integer 17"_s, u"integer 30"_s, u"integer 3"_s, u"integer 0"_s, u"integer 0"_s}
            << QStringList{u"17"_s, u"30"_s, u"Arial"_s, u"Arial"_s, u"3"_s, u"#0000ff"_s};
        for (const int unknown : {7, -1})
            QTest::addRow("colour code %d selects black", unknown)
                << QVariantMap{{u"textColor"_s, unknown}}
                << QStringList{u"integer 17"_s, u"integer 17"_s, u"integer %1"_s.arg(unknown), u"integer 0"_s, u"integer 0"_s}
                << QStringList{u"17"_s, u"17"_s, u"Arial"_s, u"Arial"_s, u"0"_s, u"#000000"_s};
    }

    void firstVisitWritesOnlyWhatIsMissing()
    {
        QFETCH(QVariantMap, before);
        QFETCH(QStringList, after);
        QFETCH(QStringList, shown);
        TestEnvironment environment;
        setPreferences(before);
        DefaultsViewController controller;
        controller.viewDidLoad();
        QCOMPARE((QStringList{stored(u"ListFontSize"_s), stored(u"ReaderFontSize"_s), stored(u"textColor"_s),
                              stored(u"useWallpaper"_s), stored(u"ListWallpaperVisible"_s)}),
                 after);
        QCOMPARE((QStringList{controller.ListFontSizeText(), controller.ReaderFontSizeText(), controller.FontListText(),
                              controller.ListFontText(), QString::number(controller.colorSegmentIndex()),
                              controller.ColorLabelColor().name()}),
                 shown);
        QCOMPARE(controller.ReaderFontSize(), shown[1].toDouble()); // the stepper starts from the shown size
        QCOMPARE(stored(u"FontName"_s), before.contains(u"FontName"_s) ? u"string DejaVu Serif"_s : u"absent"_s);
        QCOMPARE(controller.useWallpaper() == 1, before.contains(u"useWallpaper"_s));
    }

    void fontPickerWritesTheEditedField_data()
    {
        using Field = DefaultsViewController::Field;
        QTest::addColumn<QList<Field>>("edits"); // each field edited in turn, picking the first filtered row
        QTest::addColumn<bool>("readerStored");
        QTest::addColumn<bool>("listStored");
        QTest::newRow("list font field") << QList<Field>{Field::ListFontTextField} << false << true;
        QTest::newRow("moving to the other field ends the first")
            << QList<Field>{Field::ListFontTextField, Field::FontListTextField} << true << true;
    }

    void fontPickerWritesTheEditedField()
    {
        QFETCH(QList<DefaultsViewController::Field>, edits);
        QFETCH(bool, readerStored);
        QFETCH(bool, listStored);
        TestEnvironment environment;
        DefaultsViewController controller;
        controller.viewDidLoad();
        controller.setFontFilter(u"  SANS "_s);
        QVERIFY(!controller.FontPickerRows().isEmpty());
        for (const QString &family : controller.FontPickerRows())
            QVERIFY2(family.contains(u"sans"_s, Qt::CaseInsensitive), qPrintable(family));
        const QString picked = controller.FontPickerRows().constFirst();

        for (const auto field : edits) {
            controller.beginEditing(field);
            controller.didSelectRow(0);
        }
        controller.dismissKeyboard();

        QCOMPARE(stored(u"FontName"_s), readerStored ? u"string "_s + picked : u"absent"_s);
        QCOMPARE(stored(u"ListFontName"_s), listStored ? u"string "_s + picked : u"absent"_s);
        QCOMPARE(controller.FontName(), readerStored ? picked : u"Arial"_s);
        QCOMPARE(controller.ListFontName(), listStored ? picked : u"Arial"_s);
    }

    // The reader's stepper and switch are driven in the window.
    void listStepperAndSwitchesStoreTypedValues()
    {
        TestEnvironment environment;
        UserDefaults::standard().set(u"useWallpaper"_s, 1);
        DefaultsViewController controller;
        controller.viewDidLoad();
        controller.ListStepperChanged(8.0);
        controller.PoemViewSwitchChanged(false);
        controller.ListViewerSwitchChanged(true);
        QCOMPARE(controller.ListFontSizeText(), u"8.0"_s);
        QCOMPARE(controller.ReaderFontSizeText(), u"17"_s);
        QCOMPARE((QStringList{stored(u"ListFontSize"_s), stored(u"useWallpaper"_s), stored(u"ListWallpaperVisible"_s)}),
                 (QStringList{u"double 8"_s, u"integer 0"_s, u"integer 1"_s}));
    }

    // A row shown writes "true" unless a text is stored; any stored text other than "false" shows as
    // used. Unticked or mixed, the row is not used.
    void wallpaperRowShownAndChanged_data()
    {
        QTest::addColumn<QVariant>("before");
        QTest::addColumn<QString>("storedWhenShown");
        QTest::addColumn<int>("changeTo");
        QTest::newRow("never shown, then unticked") << QVariant() << u"string true"_s << 0;
        QTest::newRow("any other text, then mixed") << QVariant(u"yes"_s) << u"string yes"_s << 2;
    }

    void wallpaperRowShownAndChanged()
    {
        QFETCH(QVariant, before);
        QFETCH(QString, storedWhenShown);
        QFETCH(int, changeTo);
        TestEnvironment environment;
        if (before.isValid())
            UserDefaults::standard().set(u"AM-40"_s, before);
        ListWallpaperTableViewController controller;
        controller.viewDidLoad();
        WallpaperListModel &rows = *controller.WallpaperList();
        const QModelIndex row = rows.index(4);
        QCOMPARE(rows.data(row, WallpaperListModel::ImageNameRole).toString(), u"AM-40"_s);
        QCOMPARE(stored(u"AM-41"_s), u"absent"_s); // only rows shown are written
        QCOMPARE(rows.data(row, WallpaperListModel::CheckStateRole).toInt(), 1);
        QCOMPARE(rows.data(row, WallpaperListModel::UseLabelRole).toString(), u"Used"_s);
        QCOMPARE(stored(u"AM-40"_s), storedWhenShown);

        QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
        controller.CheckBoxChanged(4, changeTo);
        QCOMPARE(stored(u"AM-40"_s), u"string false"_s);
        QCOMPARE(rows.data(row, WallpaperListModel::UseLabelRole).toString(), u"Not Used"_s);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.first().at(0).toModelIndex().row(), 4);
    }

    // Drawing stops once every wallpaper has been missed, and never spins when none is in use.
    void wallpaperDrawEndsWhenNothingIsInUse_data()
    {
        QTest::addColumn<QStringList>("used"); // all other names "false"
        QTest::addColumn<int>("draw");
        QTest::newRow("nothing in use") << QStringList() << 7;
        QTest::newRow("only the last, missed: redraws can never reach it") << QStringList{u"Page35"_s} << 3;
    }

    void wallpaperDrawEndsWhenNothingIsInUse()
    {
        QFETCH(QStringList, used);
        QFETCH(int, draw);
        TestEnvironment environment;
        setAll(Wallpapers::ViewerWallpaper(), u"false"_s);
        setAll(used, u"true"_s);
        QList<int> draws{draw};
        QList<int> bounds;
        QCOMPARE(Wallpapers::draw(Wallpapers::ViewerWallpaper(), 35, 0, scripted(draws, bounds)), -1);
        QCOMPARE(bounds, QList<int>{35}); // one draw only
        ViewerWallpaperTableViewController screen;
        screen.viewDidLoad();
        QCOMPARE(screen.noneInUse(), used.isEmpty());
        QCOMPARE(screen.lastAloneInUse(), !used.isEmpty());
        if (used.isEmpty()) { // a reader opened now shows none, and does not hang
            UserDefaults::standard().set(u"useWallpaper"_s, 1);
            ReaderAppearance reader;
            reader.drawWallpaper(35);
            reader.read();
            QVERIFY(reader.wallpaper().isEmpty());
        }
    }

    void settingsRows_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("canSend"); // text messages, and mail
        QTest::addColumn<QString>("outcome"); // what the desktop was asked to do, one line each
        const QString text = u"alert Can't Send Text Message|Your Device is not able to send text messages."_s;
        QTest::newRow("0 rate") << 0 << true << u"open https://larkwells.org/app?action=write-review"_s;
        QTest::newRow("1 share the app") << 1 << true << u"share https://larkwells.org/app"_s;
        QTest::newRow("1 share the app, no text messages") << 1 << false << text;
        QTest::newRow("2 share the site") << 2 << true
            << u"share Click the following link to visit the Larkwells Books App website\nhttps://larkwells.org/"_s;
        QTest::newRow("2 share the site, no text messages") << 2 << false << text;
        QTest::newRow("3 visit the site") << 3 << false << u"open https://larkwells.org/"_s;
        QTest::newRow("4 feedback") << 4 << true
            << u"mail xdg-email|--utf8|--body|Enter your comments below: |feedback@larkwells.org"_s;
        QTest::newRow("4 feedback, no mail") << 4 << false << u"alert Can't Send Email|Your Device is not able to send Email."_s;
        QTest::newRow("5 nothing") << 5 << true << QString();
    }

    void settingsRows()
    {
        QFETCH(int, row);
        QFETCH(bool, canSend);
        QFETCH(QString, outcome);
        TestEnvironment environment;
        OpenedUrls urls({u"https"_s, u"http"_s});
        QStringList mailed;
        Sharing::shared().setCanSendTextForTesting(canSend);
        Mail::shared().setCanSendMailForTesting(canSend);
        Mail::shared().setLauncherForTesting([&](const QString &program, const QStringList &arguments) {
            mailed = QStringList{program} + arguments;
            return true;
        });
        QSignalSpy alerts(&Alerts::shared(), &Alerts::presented);

        SettingsViewController controller;
        controller.didSelectRowAt(row);

        QStringList asked;
        for (const QUrl &url : std::as_const(urls.urls))
            asked << u"open "_s + url.toString();
        if (Sharing::shared().showing())
            asked << u"share "_s + Sharing::shared().text();
        for (const QList<QVariant> &alert : std::as_const(alerts))
            asked << u"alert "_s + alert.at(0).toString() + u'|' + alert.at(1).toString();
        if (!mailed.isEmpty())
            asked << u"mail "_s + mailed.join(u'|');
        QCOMPARE(asked.join(u'\n'), outcome);
        if (!alerts.isEmpty()) {
            QCOMPARE(Alerts::shared().buttons(), QStringList{u"OK"_s});
            Alerts::shared().dismiss(0);
        }
        Sharing::shared().cancel();
    }

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

    // The handle shows off and on, on a renderer without shaders too: the reader sees the state,
    // not only the track's colour.
    void switchHandleShows()
    {
        QQmlEngine engine;
        const auto window = qmlWindow(engine, u"Window { width: 200; height: 60; visible: true; color: \"white\"\n"
                                              "SettingSwitch { objectName: \"toggle\"; text: \"Night Reading\" } }"_s);
        QVERIFY(window);
        QQuickItem *toggle = findItem(window->contentItem(), u"toggle"_s);
        QVERIFY(toggle);
        const auto *indicator = toggle->property("indicator").value<QQuickItem *>();
        QVERIFY(indicator);
        for (const bool checked : {false, true}) {
            toggle->setProperty("checked", checked);
            // The handle's middle, 10 pixels in from the end it rests at, once it has slid there.
            const QPointF rest = indicator->mapToScene(QPointF(checked ? indicator->width() - 10 : 10, indicator->height() / 2));
            const QPointF track = indicator->mapToScene(QPointF(checked ? 3 : indicator->width() - 3, indicator->height() / 2));
            const auto handleShows = [&] {
                const QImage shot = window->grabWindow();
                return shot.pixel(rest.toPoint()) != shot.pixel(track.toPoint());
            };
            QTRY_VERIFY2(handleShows(), checked ? "on" : "off");
        }
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

QTEST_MAIN(TestSettings)
#include "tst_settings.moc"
