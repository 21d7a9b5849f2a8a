#include "Alerts.h"
#include "EditSpecialDaysViewController.h"
#include "Navigator.h"
#include "PagePicture.h"
#include "PageRows.h"
#include "SearchViewController.h"
#include "Selection.h"
#include "Sharing.h"
#include "TestSupport.h"
#include "UserDefaults.h"
#include "ViewController.h"
#include "Wallpapers.h"

#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {
void select(const QString &ampm, const QString &dt = u"May 1"_s, const QString &text = u"Body"_s, const QString &search = {})
{
    Selection &selection = Selection::shared();
    selection.setSelectedAmpm(ampm);
    selection.setSelectedDt(dt);
    selection.setSelectedPoemPrayer(text);
    selection.setSelectedSearchText(search);
    selection.setSelectedFavorite(u"F"_s);
}

// Where the ink of `color` lies in the picture: its bounding box and how many pixels carry it.
struct Ink {
    QRect box;
    int pixels = 0;
};
Ink inkOf(const QImage &picture, const QColor &color, int tolerance = 40)
{
    Ink ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb p = picture.pixel(x, y);
            if (std::max({std::abs(qRed(p) - color.red()), std::abs(qGreen(p) - color.green()), std::abs(qBlue(p) - color.blue())})
                <= tolerance)
                std::tie(ink.pixels, ink.box) = std::tuple(ink.pixels + 1, ink.box | QRect(x, y, 1, 1));
        }
    }
    return ink;
}

// The reader's picture of `text` under the stored settings.
QImage pictureOf(const QString &text)
{
    select(u"AM"_s, u"May 2"_s, text);
    ViewController reader;
    reader.viewDidLoad();
    return PagePicture::render(reader.PoemPrayerText(), *reader.appearance()).convertToFormat(QImage::Format_RGB32);
}

void selectSpecialDay(const QString &ampm, const QString &poem)
{
    Selection &selection = Selection::shared();
    selection.setSelectedSpecialAmpm(ampm);
    selection.setSelectedSpecialDayName(u"Easter"_s);
    selection.setSelectedSpecialPoem(poem);
}

// The look as "colour size wallpaper", or "plain" for the laid-out text view.
QString look(const ReaderAppearance &appearance)
{
    return appearance.styled() ? u"%1 %2 %3"_s.arg(appearance.shownTextColor().name()).arg(appearance.fontSize()).arg(appearance.wallpaper().fileName())
                               : u"plain"_s;
}
}

// The page, search-result and special-day readers, and the picture of a page.
class TestReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { dismissAlerts(); }

    void composesAndStylesFromPreferences_data()
    {
        QTest::addColumn<QString>("ampm");
        QTest::addColumn<QVariantMap>("preferences");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("shown"); // the look and the text, or the fatal stop's message
        const QString morning = u"\nFrom The Larkwells\n Good Morning\n\nMay 1\n\nBody"_s;
        QTest::newRow("morning") << u"AM"_s << QVariantMap() << u"Good Morning"_s << u"#000000 15 |"_s + morning;
        QTest::newRow("night, blue, larger, with wallpaper")
            << u"PM"_s
            << QVariantMap{{u"textColor"_s, 3}, {u"ReaderFontSize"_s, 21.0}, {u"useWallpaper"_s, 1}, {u"FontName"_s, u"EB Garamond"_s}}
            << u"Good Night"_s << u"#0000ff 21 Page1.jpg|\nFrom The Larkwells\n Good Night\n\nMay 1\n\nBody"_s; // no wallpaper keys yet: the first one
        QTest::newRow("neither: the text alone") << u"am"_s << QVariantMap() << u"View Poems/Prayers"_s << u"#000000 15 |Body"_s;
        QTest::newRow("whole size stored as integer") << u"AM"_s << QVariantMap{{u"ReaderFontSize"_s, 17}} << u"Good Morning"_s
                                                      << u"#000000 17 |"_s + morning;
        QTest::newRow("colour code 7 keeps the laid-out text view") << u"AM"_s << QVariantMap{{u"textColor"_s, 7}}
                                                                    << u"Good Morning"_s << u"plain|"_s + morning;
        QTest::newRow("unknown font") << u"AM"_s << QVariantMap{{u"FontName"_s, u"Nowhere Sans Imaginary"_s}} << QString()
                                      << u"Fatal error: the font \"Nowhere Sans Imaginary\" is not known on this system"_s;
        QTest::newRow("colour stored as text") << u"AM"_s << QVariantMap{{u"textColor"_s, u"2"_s}} << QString()
                                               << u"Fatal error: the setting \"textColor\" holds a value that is not an integer"_s;
    }

    void composesAndStylesFromPreferences()
    {
        QFETCH(QString, ampm);
        QFETCH(QVariantMap, preferences);
        QFETCH(QString, title);
        QFETCH(QString, shown);
        TestEnvironment environment;
        setPreferences(preferences);
        select(ampm);
        ViewController controller;
        const QString stop = fatalStop([&] { controller.viewDidLoad(); });
        QCOMPARE(stop.isEmpty() ? look(*controller.appearance()) + u'|' + Selection::shared().selectedPoemPrayer() : stop, shown);
        // Nothing is laid out in the styled view for the plain look, nor after a stop.
        QCOMPARE(controller.PoemPrayerText(), stop.isEmpty() && !shown.startsWith(u"plain") ? shown.section(u'|', 1) : QString());
        if (stop.isEmpty())
            QCOMPARE(controller.title(), title);
    }

    void favouriteSavesExactlyOnePage_data()
    {
        QTest::addColumn<QStringList>("pages");
        QTest::addColumn<qint64>("textColor");
        QTest::addColumn<QStringList>("stored");
        QTest::newRow("one match: favourite and shown text written")
            << QStringList{u"May 1|AM|5|1|241|F|Body"_s, u"May 1|PM|5|1|242|F|Night"_s} << qint64(0)
            << QStringList{u"T|\nFrom The Larkwells\n Good Morning\n\nMay 1\n\nBody"_s, u"F|Night"_s};
        QTest::newRow("no match writes nothing") << QStringList{u"May 2|AM|5|2|243|F|Body"_s} << qint64(0)
                                                 << QStringList{u"F|Body"_s};
        QTest::newRow("two morning pages share the date: nothing written")
            << QStringList{u"May 1|AM|5|1|241|F|Body"_s, u"May 1|AM|5|1|241|F|Copy"_s} << qint64(0)
            << QStringList{u"F|Body"_s, u"F|Copy"_s};
        // The text view shows no page then: its emptiness is not written over the page's text.
        QTest::newRow("colour code 7: favourite written, text kept") << QStringList{u"May 1|AM|5|1|241|F|Body"_s}
                                                                     << qint64(7) << QStringList{u"T|Body"_s};
    }

    void favouriteSavesExactlyOnePage()
    {
        QFETCH(QStringList, pages);
        QFETCH(qint64, textColor);
        QFETCH(QStringList, stored);
        TestEnvironment environment;
        UserDefaults::standard().set(u"textColor"_s, textColor);
        insertPages(pages);
        select(u"AM"_s);
        ViewController controller;
        QSignalSpy favourite(&controller, &ViewController::favoriteCheckStateRequested);
        controller.viewDidLoad();
        QCOMPARE(favourite.value(0), (QVariantList{0, false}));
        controller.CheckBoxChecked(1);
        QCOMPARE(Selection::shared().selectedFavorite(), u"T"_s);
        QCOMPARE(storedRows<PoemPrayer>({u"favorite"_s, u"poemprayer"_s}), stored);
    }

    // The stepper's value is stored as it comes, but the text moves one point whatever the step.
    void stepperMovesOnePoint()
    {
        TestEnvironment environment;
        select(u"PM"_s);
        ViewController controller;
        controller.viewDidLoad();
        QList<double> shown;
        for (const double value : {16.0, 26.0, 20.0, 20.0}) {
            controller.ChangeFontSize(value);
            shown.append(controller.appearance()->fontSize());
        }
        QCOMPARE(shown, (QList<double>{16, 17, 16, 16}));
        QCOMPARE(UserDefaults::standard().doubleForKey(u"ReaderFontSize"_s), 20.0);
    }

    void share_data()
    {
        QTest::addColumn<bool>("search"); // the search-result reader, else the page reader
        QTest::addColumn<bool>("canSendText");
        QTest::addColumn<QString>("ampm");
        QTest::addColumn<QString>("shared");
        QTest::addColumn<QString>("alert"); // title, message, buttons
        const QString title = u"Can't Send Text Message|Your Device is not able to send text messages"_s;
        QTest::newRow("page: no text messages") << false << false << u"AM"_s << QString() << title + u".|OK"_s;
        QTest::newRow("page: the text as it stands") << false << true << u"PM"_s << u"edited, not saved"_s << QString();
        QTest::newRow("page: neither morning nor night") << false << true << u"x"_s << QString() << QString();
        QTest::newRow("search: no text messages") << true << false << u"AM"_s << QString() << title + u"|"_s;
        QTest::newRow("search: a heading before the text") << true << true << u"AM"_s
            << u"From The Larkwells \r\n Good Morning \r\n \r\nMay 1\r\n \r\n\n\nFrom The Larkwells\n Good Morning\n\nMay 1\n\nBody"_s
            << QString();
        QTest::newRow("search: neither morning nor night") << true << true << u"x"_s << QString() << QString();
    }

    void share()
    {
        QFETCH(bool, search);
        QFETCH(bool, canSendText);
        QFETCH(QString, ampm);
        QFETCH(QString, shared);
        QFETCH(QString, alert);
        TestEnvironment environment;
        Sharing::shared().setCanSendTextForTesting(canSendText);
        select(ampm);
        std::unique_ptr<QObject> reader;
        if (search) {
            auto *controller = new SearchViewController;
            reader.reset(controller);
            controller->viewDidLoad();
            controller->ShareButtonClicked();
        } else {
            auto *controller = new ViewController;
            reader.reset(controller);
            controller->viewDidLoad();
            controller->setPoemPrayerText(u"edited, not saved"_s);
            controller->SharePoem();
        }
        QTRY_COMPARE(Alerts::shared().showing(), !alert.isEmpty());
        if (!alert.isEmpty()) {
            QCOMPARE((QStringList{Alerts::shared().title(), Alerts::shared().message(), Alerts::shared().buttons().join(u',')}),
                     alert.split(u'|'));
            Alerts::shared().dismiss(0);
        }
        QCOMPARE(Sharing::shared().showing() ? Sharing::shared().text() : QString(), shared);
        Sharing::shared().cancel();
    }

    void searchComposesAndMarks_data()
    {
        QTest::addColumn<QString>("ampm");
        QTest::addColumn<QString>("search");
        QTest::addColumn<int>("colour");
        QTest::addColumn<QString>("heading"); // before the text
        QTest::addColumn<QStringList>("marked");
        QTest::addColumn<QString>("look");
        const QString morning = u"\n\nFrom The Larkwells\n Good Morning\n\nJanuary 1\n\n"_s;
        QTest::newRow("no search: red, nothing marked") << u"AM"_s << QString() << 2 << morning << QStringList() << u"#ff0000 15 "_s;
        QTest::newRow("every case marked, black over red") << u"AM"_s << u"snow"_s << 2 << morning
                                                           << QStringList{u"Snow"_s, u"SNOW"_s} << u"#000000 15 "_s;
        QTest::newRow("heading and date line marked") << u"PM"_s << u"n"_s << 0
                                                      << u"\n\nFrom The Larkwells\n Good Night\n\nJanuary 1\n\n"_s
                                                      << QStringList{u"N"_s, u"n"_s, u"n"_s, u"n"_s, u"N"_s} << u"#000000 15 "_s;
        QTest::newRow("markup characters are text") << u"AM"_s << u"<bread>"_s << 0 << morning << QStringList{u"<bread>"_s}
                                                    << u"#000000 15 "_s;
        QTest::newRow("no match: the plain style") << u"AM"_s << u"zebra"_s << 3 << morning << QStringList() << u"plain"_s;
        QTest::newRow("colour code 7, match: shown black") << u"AM"_s << u"sill"_s << 7 << morning << QStringList{u"sill"_s}
                                                           << u"#000000 15 "_s;
        QTest::newRow("colour code 7, no search: nothing shown") << u"AM"_s << QString() << 7 << u"-"_s << QStringList()
                                                                 << u"plain"_s;
        QTest::newRow("neither morning nor night: the text alone") << u"am"_s << u"bread"_s << 0 << QString()
                                                                   << QStringList{u"bread"_s} << u"#000000 15 "_s;
    }

    void searchComposesAndMarks()
    {
        QFETCH(QString, ampm);
        QFETCH(QString, search);
        QFETCH(int, colour);
        QFETCH(QString, heading);
        QFETCH(QStringList, marked);
        QFETCH(QString, look);
        const QString body = u"Snow on the sill,  SNOW & <bread>"_s;
        const QString shown = heading == u"-" ? QString() : heading + body;
        TestEnvironment environment;
        UserDefaults::standard().set(u"textColor"_s, colour);
        select(ampm, u"January 1"_s, body, search);
        SearchViewController controller;
        controller.viewDidLoad();
        QCOMPARE(controller.title(), u"Search Poems/Prayers"_s);
        QCOMPARE(Selection::shared().selectedPoemPrayer(), controller.CombinedText());
        QCOMPARE(controller.shownText(), shown);
        QTextDocument document;
        document.setHtml(controller.PoemPrayerText());
        QCOMPARE(document.toPlainText(), shown);
        QCOMPARE(markedFragments(document), marked);
        QCOMPARE(::look(*controller.appearance()), look);
    }

    void searchInvalidPatternStops()
    {
        TestEnvironment environment;
        select(u"AM"_s, u"January 1"_s, u"Snow"_s, u"(snow"_s);
        SearchViewController controller;
        const QString stop = fatalStop([&] { controller.viewDidLoad(); });
        QVERIFY2(stop.contains(u"\"(snow\" is not a valid pattern"_s), qPrintable(stop));
    }

    void searchFavouriteSavesTheFirstPage_data()
    {
        QTest::addColumn<QString>("dt");
        QTest::addColumn<QString>("ampm");
        QTest::addColumn<int>("checkState");
        QTest::addColumn<QString>("stored"); // the marks of the three pages
        QTest::newRow("ticked") << u"May 1"_s << u"PM"_s << 1 << u"T T T"_s;
        QTest::newRow("cleared: the first of two") << u"May 2"_s << u"AM"_s << 0 << u"F F T"_s;
        QTest::newRow("no such page") << u"May 9"_s << u"AM"_s << 1 << u"F T T"_s;
    }

    void searchFavouriteSavesTheFirstPage()
    {
        QFETCH(QString, dt);
        QFETCH(QString, ampm);
        QFETCH(int, checkState);
        QFETCH(QString, stored);
        TestEnvironment environment;
        insertPages({u"May 1|PM|5|1|1|F|a"_s, u"May 2|AM|5|2|2|T|b"_s, u"May 2|AM|5|2|3|T|c"_s});
        select(ampm, dt, u"a"_s);
        SearchViewController controller;
        controller.viewDidLoad();
        controller.FavoriteCheckBoxChecked(checkState);
        QCOMPARE(Selection::shared().selectedFavorite(), checkState == 1 ? u"T"_s : u"F"_s);
        QCOMPARE(storedRows<PoemPrayer>({u"favorite"_s}).join(u' '), stored);
    }

    void specialDayComposesAndStyles_data()
    {
        QTest::addColumn<QString>("ampm");
        QTest::addColumn<QVariantMap>("preferences");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("look"); // colour, size, wallpaper
        QTest::newRow("morning: a blank before the name; 17 points")
            << u"AM"_s << QVariantMap() << u"Good Morning\n\n Easter\n\nRisen\nindeed"_s << u"#000000 17 "_s;
        QTest::newRow("night: no blank; stored size, red, wallpaper")
            << u"PM"_s << QVariantMap{{u"ReaderFontSize"_s, 22.0}, {u"textColor"_s, 2}, {u"useWallpaper"_s, 1}}
            << u"Good Night\n\nEaster\n\nRisen\nindeed"_s << u"#ff0000 22 Page1.jpg"_s;
        QTest::newRow("neither: the poem alone; colour code 7 shows it in black")
            << u"pm"_s << QVariantMap{{u"textColor"_s, 7}} << u"Risen\nindeed"_s << u"#000000 17 "_s;
    }

    void specialDayComposesAndStyles()
    {
        QFETCH(QString, ampm);
        QFETCH(QVariantMap, preferences);
        QFETCH(QString, text);
        QFETCH(QString, look);
        TestEnvironment environment;
        setPreferences(preferences);
        selectSpecialDay(ampm, u"Risen\nindeed"_s);
        EditSpecialDaysViewController controller;
        controller.viewDidLoad();
        QCOMPARE(controller.PoemPrayerText(), text);
        QCOMPARE(Selection::shared().selectedSpecialPoem(), text);
        QCOMPARE(controller.title(), u"Easter"_s);
        const ReaderAppearance &shown = *controller.appearance();
        QVERIFY(shown.styled());
        QCOMPARE(::look(shown), look);

        // The keyboard steps the shown size within the stepper's range and stores nothing.
        for (int i = 0; i < 40; ++i)
            controller.StepFontSize(1);
        QCOMPARE(shown.fontSize(), 48.0);
        QCOMPARE(UserDefaults::standard().object(u"ReaderFontSize"_s), preferences.value(u"ReaderFontSize"_s));
    }

    void specialDaySaveWritesOnlyForHeadingWords_data()
    {
        QTest::addColumn<QString>("ampm");
        QTest::addColumn<QString>("night"); // the night poem stored after the save
        QTest::newRow("the list's AM writes nothing") << u"AM"_s << u"old night"_s;
        QTest::newRow("the list's PM writes nothing") << u"PM"_s << u"old night"_s;
        QTest::newRow("Good Night writes the night poem") << u"Good Night"_s << u"edited"_s;
    }

    void specialDaySaveWritesOnlyForHeadingWords()
    {
        QFETCH(QString, ampm);
        QFETCH(QString, night);
        TestEnvironment environment;
        insertSpecialDays({u"AM|Easter|old"_s, u"PM|Easter|old night"_s});
        selectSpecialDay(ampm, u"old"_s);
        EditSpecialDaysViewController controller;
        controller.viewDidLoad();
        controller.setPoemPrayerText(u"edited"_s);
        environment.logLines.clear();
        QSignalSpy unwinds(&Navigator::shared(), &Navigator::unwindRequested);
        controller.SaveSpecialDays();
        QCOMPARE(storedRows<SpecialDay>({u"ampm"_s, u"poemprayer"_s}), (QStringList{u"AM|old"_s, u"PM|"_s + night}));
        QCOMPARE(environment.logLines, QStringList{u"Back button Clicked"_s});
        QCOMPARE(unwinds.value(0), QVariantList{u"unwindToSpecialDaysSegue"_s});
    }

    void pictureDrawsThePageAsTheReaderShowsIt_data()
    {
        QTest::addColumn<qint64>("textColor");
        QTest::addColumn<qint64>("useWallpaper");
        QTest::newRow("magenta, no wallpaper") << qint64(1) << qint64(0);
        QTest::newRow("red over a wallpaper") << qint64(2) << qint64(1);
    }

    void pictureDrawsThePageAsTheReaderShowsIt()
    {
        const QString page = u"Dew on the gate\nand on the grass,\nthe wren is up before the sun."_s;
        QFETCH(qint64, textColor);
        QFETCH(qint64, useWallpaper);
        TestEnvironment environment;
        UserDefaults::standard().set(u"textColor"_s, textColor);
        UserDefaults::standard().set(u"useWallpaper"_s, useWallpaper);
        UserDefaults::standard().set(u"ReaderFontSize"_s, 18.0);
        for (const QString &name : Wallpapers::ViewerWallpaper()) // one wallpaper, so every draw gives it
            UserDefaults::standard().set(name, name == u"Page3"_s ? u"true"_s : u"false"_s);
        const QColor ink = textColorFor(textColor).value_or(QColor(Qt::black));

        const QImage picture = pictureOf(page);
        QCOMPARE(picture.width(), PagePicture::width);
        // The same number of lines without a word: the same size, the same wallpaper, no text.
        const QImage blank = pictureOf(QString(page).replace(QRegularExpression(u"\\S"_s), u" "_s));
        QCOMPARE(blank.size(), picture.size());
        const Ink written = inkOf(picture, ink);
        const Ink background = inkOf(blank, ink);
        QVERIFY2(written.pixels > background.pixels + 5000, qPrintable(u"%1 against %2"_s.arg(written.pixels).arg(background.pixels)));

        // Behind the text (and the heading, which stays): the wallpaper when it is on, else the
        // reader's plain grey.
        const int grey = inkOf(blank, QColor(0xd3, 0xd3, 0xd3), 0).pixels;
        QCOMPARE(grey > blank.width() * blank.height() * 9 / 10, useWallpaper == 0);
        if (useWallpaper == 0) { // the reader centres its lines
            const int middle = (written.box.left() + written.box.right()) / 2;
            QVERIFY2(std::abs(middle - PagePicture::width / 2) < 40, qPrintable(QString::number(middle)));
        }

        // A larger size makes a taller picture, still as wide.
        UserDefaults::standard().set(u"ReaderFontSize"_s, 30.0);
        const QImage larger = pictureOf(page);
        QVERIFY(larger.width() == PagePicture::width && larger.height() > picture.height());
    }
};

QTEST_MAIN(TestReader)
#include "tst_reader.moc"
