#include "Navigator.h"
#include "PageRows.h"
#include "Selection.h"
#include "SpecialDayFile.h"
#include "SpecialDaysTableViewController.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
const QString flag = u"SpecialDayshasBeenLaunchedBeforeFlag"_s;

// Each shown row as "label|section|stored poem", absent poems as "-".
QStringList rowsOf(SpecialDaysTableViewController &controller)
{
    QStringList rows;
    SpecialDayListModel &model = *controller.SpecialDayList();
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row);
        rows.append(index.data(SpecialDayListModel::DayTextRole).toString() + u'|'
                    + index.data(SpecialDayListModel::SectionRole).toString() + u'|'
                    + model.days().at(row)->poemprayer().value_or(u"-"_s));
    }
    return rows;
}

QList<SpecialDayFile::Record> parsed(const QByteArray &bytes)
{
    const auto records = SpecialDayFile::records(QString::fromUtf8(bytes));
    return std::get<QList<SpecialDayFile::Record>>(records);
}
}

class TestSpecialDays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstVisitSeeds_data();
    void firstVisitSeeds();
    void longRecordIsFatalAfterTheDaysBeforeIt();
    void secondVisitNeverReseeds();
    void choosingADayFillsTheSelection();
    void writerRoundTrips();
};

void TestSpecialDays::firstVisitSeeds_data()
{
    QTest::addColumn<QByteArray>("file"); // null: the bundle has no special-day file
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QString>("logLine"); // after "First Launch"

    const QStringList easter{u"Good Morning - Easter|Morning|Risen\nindeed"_s, u"Good Night - Easter|Night|Sleep"_s};
    QTest::newRow("CR LF reads the same") << "[SPECIALDAYS]\r\nAM^Easter^Risen@#@indeed\r\nPM^Easter^Sleep\r\n"_ba
                                          << easter << QString();
    QTest::newRow("markers and blank lines anywhere, no header")
        << "\n\nPM^Easter^Sleep\n[SPECIALDAYS]\n\r\n\nAM^Easter^Risen@#@indeed\n[SPECIALDAYS]"_ba << easter << QString();
    QTest::newRow("first of two same days wins; the other time of day is its own row")
        << "AM^Easter^Risen@#@indeed\nAM^Easter^second\nPM^Easter^Sleep\nAM^Easter^third"_ba << easter << QString();
    QTest::newRow("mornings first, each block by name")
        << "PM^Advent^a\nAM^Zion^b\nPM^All Saints^c\nAM^Advent^d"_ba
        << QStringList{u"Good Morning - Advent|Morning|d"_s, u"Good Morning - Zion|Morning|b"_s,
                       u"Good Night - Advent|Night|a"_s, u"Good Night - All Saints|Night|c"_s}
        << QString();
    QTest::newRow("short records keep the fields they have")
        << "PM^Lammas\nAM\nAM^Lammas^\n"_ba
        << QStringList{u"Good Morning - |Morning|-"_s, u"Good Morning - Lammas|Morning|"_s, u"Good Night - Lammas|Night|-"_s}
        << QString();
    QTest::newRow("line breaks only in the poem") << "AM^A@#@B^x@#@@#@y"_ba
        << QStringList{u"Good Morning - A@#@B|Morning|x\n\ny"_s} << QString();
    QTest::newRow("missing file keeps the table") << QByteArray()
        << QStringList{u"Good Morning - Old|Morning|kept"_s}
        << u"Error reading file: The file “SpecialDays.txt” couldn’t be opened because there is no such file."_s;
    QTest::newRow("not UTF-8 keeps the table") << "AM^Caf\xe9^x"_ba
        << QStringList{u"Good Morning - Old|Morning|kept"_s}
        << u"Error reading file: The file “SpecialDays.txt” couldn’t be opened using text encoding Unicode (UTF-8)."_s;
}

void TestSpecialDays::firstVisitSeeds()
{
    QFETCH(QByteArray, file);
    QFETCH(QStringList, rows);
    QFETCH(QString, logLine);
    TestEnvironment environment;
    if (file.isNull())
        environment.addBundleFile(u"Other.txt"_s, "AM^Not^this");
    else
        environment.addBundleFile(u"SpecialDays.txt"_s, file);
    insertSpecialDays({u"AM|Old|kept"_s});
    UserDefaults::standard().set(u"ListFontSize"_s, 30.0);

    SpecialDaysTableViewController controller;
    QAbstractItemModelTester tester(controller.SpecialDayList(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    controller.viewDidLoad();

    QCOMPARE(rowsOf(controller), rows);
    QCOMPARE(environment.logLines.join(u'\n'), (QStringList{u"First Launch"_s, logLine}.join(u'\n').trimmed()));
    QVERIFY(UserDefaults::standard().boolForKey(flag));
    QCOMPARE(UserDefaults::standard().stringForKey(u"ListFontName"_s).value_or(QString()), u"Arial"_s);
    QCOMPARE(controller.appearance()->ListFontSize(), 17.0);
}

void TestSpecialDays::longRecordIsFatalAfterTheDaysBeforeIt()
{
    TestEnvironment environment;
    environment.addBundleFile(u"SpecialDays.txt"_s, "[SPECIALDAYS]\nAM^Lady Day^ok\r\nPM^Lady Day^x^y\nAM^Whitsun^never\n");
    {
        SpecialDaysTableViewController controller;
        QCOMPARE(fatalStop([&] { controller.viewDidLoad(); }),
                 u"Fatal error: SpecialDays.txt line 3 has 4 fields where a special day has at most 3: “PM^Lady Day^x^y”"_s);
    }
    // The next visit keeps what the stopped seeding stored.
    environment.logLines.clear();
    SpecialDaysTableViewController controller;
    controller.viewDidLoad();
    QCOMPARE(environment.logLines, QStringList{u"Not First Launch"_s});
    QCOMPARE(rowsOf(controller), QStringList{u"Good Morning - Lady Day|Morning|ok"_s});
}

void TestSpecialDays::secondVisitNeverReseeds()
{
    TestEnvironment environment;
    environment.addBundleFile(u"SpecialDays.txt"_s, "AM^Easter^x\n");
    UserDefaults::standard().set(flag, true);
    SpecialDaysTableViewController controller;
    controller.viewDidLoad();
    QCOMPARE(environment.logLines, QStringList{u"Not First Launch"_s});
    QCOMPARE(controller.SpecialDayList()->rowCount(), 0);
    QVERIFY(!UserDefaults::standard().object(u"ListFontName"_s).isValid()); // written only for rows
}

void TestSpecialDays::choosingADayFillsTheSelection()
{
    TestEnvironment environment;
    UserDefaults::standard().set(flag, true);
    UserDefaults::standard().set(u"ListFontName"_s, u"DejaVu Sans"_s);
    insertSpecialDays({u"PM|Michaelmas|Angels\nkeep watch"_s, u"AM|-|-"_s});
    SpecialDaysTableViewController controller;
    controller.viewDidLoad();
    QCOMPARE(controller.appearance()->ListFontName(), u"DejaVu Sans"_s);
    QSignalSpy segues(&Navigator::shared(), &Navigator::segueRequested);
    Selection &selection = Selection::shared();
    QStringList chosen;
    for (const int row : {1, 0}) { // a day without name or poem gives empty strings, not the last ones
        controller.didSelectRowAt(row);
        chosen << selection.selectedSpecialAmpm() + u'|' + selection.selectedSpecialDayName() + u'|' + selection.selectedSpecialPoem();
    }
    QCOMPARE(chosen, (QStringList{u"PM|Michaelmas|Angels\nkeep watch"_s, u"AM||"_s}));
    QCOMPARE(segues.size(), 2);
    QCOMPARE(segues.first().first().toString(), u"SpecialDayReaderSegue"_s);
}

void TestSpecialDays::writerRoundTrips()
{
    const QByteArray file = "[SPECIALDAYS]\nAM^New Year’s Day^First@#@@#@Second\nPM^A@#@B^one\nPM^Short\n^No time^x\n"_ba;
    QCOMPARE(std::get<QByteArray>(SpecialDayFile::write(parsed(file))), file);

    // The shipped file survives a round trip day for day.
    QFile shipped(TestEnvironment::sourceResources() + u"/SpecialDays.txt"_s);
    QVERIFY(shipped.open(QIODevice::ReadOnly));
    const QList<SpecialDayFile::Record> days = parsed(shipped.readAll());
    QVERIFY(days.size() > 40);
    const QList<SpecialDayFile::Record> again = parsed(std::get<QByteArray>(SpecialDayFile::write(days)));
    QCOMPARE(again.size(), days.size());
    for (qsizetype i = 0; i < days.size(); ++i)
        QCOMPARE(again[i].fields, days[i].fields);

    // What the format cannot spell is refused, not written wrong.
    for (const QStringList &fields : {QStringList{u"AM"_s, u"Easter"_s, u"a^b"_s}, QStringList{u"AM"_s, u"East\ner"_s},
                                      QStringList{u"AM"_s, u"Easter"_s, u"x"_s, u"y"_s}})
        QVERIFY(std::holds_alternative<SpecialDayFile::WriteError>(SpecialDayFile::write({{fields}})));
}

QTEST_MAIN(TestSpecialDays)
#include "tst_specialdays.moc"
