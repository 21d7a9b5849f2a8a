#include "Alerts.h"
#include "AppDelegate.h"
#include "CoverViewController.h"
#include "Entities.h"
#include "FatalError.h"
#include "PreferenceKeys.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
enum class Damage { Truncated, Overwritten, ZeroLength, NotSqlite, FutureVersion, ReadOnly, MissingColumn, MissingTable, OldMissingColumn };

// A store with enough pages to fill many database pages, closed.
void writeStore()
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    for (int i = 0; i < 200; ++i)
        context.insertNewObject<PoemPrayer>()->setPoemprayer(QString(500, QChar(u'a' + i % 26)));
    QVERIFY(!context.save());
    AppDelegate::shared().reset();
}

void damage(const QString &path, Damage how)
{
    switch (how) {
    case Damage::Truncated: {
        const QByteArray bytes = readFile(path);
        QVERIFY(writeFile(path, bytes.left(bytes.size() / 2)));
        break;
    }
    case Damage::Overwritten: { // a page in the middle, the size kept, some time after it was closed
        QByteArray bytes = readFile(path);
        bytes.replace(bytes.size() / 2 / 4096 * 4096, 4096, QByteArray(4096, '\x55'));
        QVERIFY(writeFile(path, bytes));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(2), QFileDevice::FileModificationTime));
        break;
    }
    case Damage::ZeroLength: QVERIFY(writeFile(path, {})); break;
    case Damage::NotSqlite: QVERIFY(writeFile(path, "{\"a text file\": \"placed where the store should be\"}\n")); break;
    case Damage::FutureVersion:
        QCOMPARE(sqlRun(path, {u"PRAGMA user_version = 99"_s, u"PRAGMA journal_mode = DELETE"_s}), QStringList{u"delete"_s});
        break;
    case Damage::ReadOnly: QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther); break;
    case Damage::MissingColumn:
        QCOMPARE(sqlRun(path, {u"ALTER TABLE Notes DROP COLUMN year"_s, u"PRAGMA journal_mode = DELETE"_s}), QStringList{u"delete"_s});
        break;
    case Damage::MissingTable:
        QCOMPARE(sqlRun(path, {u"DROP TABLE About"_s, u"PRAGMA journal_mode = DELETE"_s}), QStringList{u"delete"_s});
        break;
    case Damage::OldMissingColumn: // refused before its upgrade would write to it
        QCOMPARE(sqlRun(path, {u"ALTER TABLE Notes DROP COLUMN year"_s, u"PRAGMA user_version = 1"_s, u"PRAGMA journal_mode = DELETE"_s}),
                 QStringList{u"delete"_s});
        break;
    }
}
}

class TestDamaged : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void damagedStoreStopsAndIsKept_data()
    {
        QTest::addColumn<int>("how");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<QString>("detail");
        const QString model = u"Unresolved error The store does not match the book's model."_s;
        QTest::newRow("truncated") << int(Damage::Truncated) << u"Unresolved error database disk image is malformed"_s << QString();
        QTest::newRow("a page overwritten") << int(Damage::Overwritten) << u"Unresolved error The store file is damaged."_s << QString();
        QTest::newRow("zero-length") << int(Damage::ZeroLength) << u"Unresolved error The store file is empty."_s << QString();
        QTest::newRow("not SQLite") << int(Damage::NotSqlite) << u"Unresolved error file is not a database"_s << QString();
        QTest::newRow("future version") << int(Damage::FutureVersion) << u"Unresolved error The store was written by a newer version"_s << QString();
        QTest::newRow("read-only") << int(Damage::ReadOnly) << u"Unresolved error The store file is read-only."_s << QString();
        QTest::newRow("column missing") << int(Damage::MissingColumn) << model << u"Notes.year"_s;
        QTest::newRow("table missing") << int(Damage::MissingTable) << model << u"About.aboutText, About.name"_s;
        QTest::newRow("column missing, older version") << int(Damage::OldMissingColumn) << model << u"Notes.year"_s;
    }

    void damagedStoreStopsAndIsKept()
    {
        QFETCH(int, how);
        QFETCH(QString, reason);
        QFETCH(QString, detail);
        TestEnvironment environment;
        const QString path = QDir(environment.dataDirectory()).filePath(u"TheLarkwellsBook.sqlite"_s);
        writeStore();
        damage(path, Damage(how));
        const QByteArray bytes = readFile(path);
        const QDateTime modified = QFileInfo(path).lastModified();
        QTest::qSleep(20); // a write would show in the modification time

        const QString message = fatalStop([] { AppDelegate::shared().viewContext(); });
        QVERIFY2(message.startsWith(reason), qPrintable(message));
        QVERIFY2(message.contains(u", {"_s) && message.contains(path) && message.contains(detail), qPrintable(message));
        QCOMPARE(readFile(path), bytes);
        QCOMPARE(QFileInfo(path).lastModified(), modified);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
    }

    // Damage done while the store is open is not taken for sound when it closes.
    void storeDamagedWhileOpenIsFoundAtTheNextOpen()
    {
        TestEnvironment environment;
        const QString path = QDir(environment.dataDirectory()).filePath(u"TheLarkwellsBook.sqlite"_s);
        writeStore();
        AppDelegate::shared().viewContext();
        damage(path, Damage::Overwritten);
        AppDelegate::shared().reset();

        const QString message = fatalStop([] { AppDelegate::shared().viewContext(); });
        QVERIFY2(message.startsWith(u"Unresolved error The store file is damaged."_s), qPrintable(message));
    }

    // A launch over a store it cannot open stops at start-up, naming the cover screen, and leaves
    // the store as it is: a first launch (the preferences lost) at the seeding, a later one once
    // the cover is on screen.
    void launchOverDamagedStoreNamesTheCover_data()
    {
        QTest::addColumn<bool>("launchedBefore");
        QTest::newRow("first launch") << false;
        QTest::newRow("later launch") << true;
    }

    void launchOverDamagedStoreNamesTheCover()
    {
        QFETCH(bool, launchedBefore);
        TestEnvironment environment;
        const QString path = QDir(environment.dataDirectory()).filePath(u"TheLarkwellsBook.sqlite"_s);
        writeStore();
        damage(path, Damage::NotSqlite);
        const QByteArray bytes = readFile(path);
        Preferences::write(PreferenceKeys::hasBeenLaunchedBeforeFlag, launchedBefore);

        CoverViewController cover;
        const QString message = fatalStop([&cover] {
            cover.viewDidLoad();
            cover.viewDidAppear();
        });
        QVERIFY2(message.startsWith(u"Unresolved error file is not a database"_s)
                     && message.endsWith(u'}'), qPrintable(message));
        QCOMPARE(readFile(path), bytes);
    }

    void damagedPreferencesAreKept_data()
    {
        const QByteArray valid = R"({"FontName": {"type": "string", "value": "Georgia"}, "useWallpaper": {"type": "integer", "value": 1}})";
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("fatal");
        QTest::addColumn<bool>("keepsWallpaper"); // the readable entry still reads
        QTest::newRow("truncated") << valid.left(valid.size() - 9) << u"Preferences file unreadable, kept as "_s << false << false;
        QTest::newRow("not JSON") << QByteArray("FontName=Georgia\n") << u"Preferences file unreadable, kept as "_s << false << false;
        QTest::newRow("JSON array") << QByteArray("[1, 2]") << u"Preferences file unreadable, kept as "_s << false << false;
        QTest::newRow("entry type and value disagree")
            << QByteArray(R"({"FontName": {"type": "integer", "value": "Georgia"}, "useWallpaper": {"type": "integer", "value": 1}})")
            << u"Preferences: ignored malformed entry FontName, file kept as "_s << false << true;
        QTest::newRow("integer entry holding a fraction")
            << QByteArray(R"({"FontName": {"type": "integer", "value": 1.5}, "useWallpaper": {"type": "integer", "value": 1}})")
            << u"Preferences: ignored malformed entry FontName, file kept as "_s << false << true;
        QTest::newRow("value of the wrong type for the key")
            << QByteArray(R"({"FontName": {"type": "integer", "value": 12}, "useWallpaper": {"type": "integer", "value": 1}})")
            << u"Fatal error: the setting \"FontName\" holds a value that is not "_s << true << true;
    }

    // Unreadable files and entries are kept aside with their bytes, beside an older damaged copy;
    // a readable value of the wrong type stops at the first read and leaves the file as it is.
    void damagedPreferencesAreKept()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        QFETCH(bool, fatal);
        QFETCH(bool, keepsWallpaper);
        TestEnvironment environment;
        const QString path = QDir(environment.dataDirectory()).filePath(u"UserDefaults.json"_s);
        QVERIFY(writeFile(path, bytes));
        QVERIFY(writeFile(path + u".damaged"_s, "older"));
        UserDefaults::setStandardDirectory(environment.dataDirectory());

        QString stop;
        try {
            QCOMPARE(Preferences::stringOrAbsent(PreferenceKeys::FontName), u"Arial"_s);
        } catch (const FatalErrorException &error) {
            stop = error.message();
        }
        QCOMPARE(Preferences::integerOrAbsent(PreferenceKeys::useWallpaper), keepsWallpaper ? 1 : 0);
        const QString seen = fatal ? stop : environment.logLines.join(u'\n');
        QVERIFY2(seen.startsWith(message), qPrintable(seen));
        if (fatal) {
            QCOMPARE(readFile(path), bytes);
            return;
        }
        QVERIFY2(seen.endsWith(path + u".damaged-2"_s), qPrintable(seen));
        Preferences::write(PreferenceKeys::ReaderFontSize, 20.0);
        QCOMPARE(readFile(path + u".damaged-2"_s), bytes);
        QCOMPARE(readFile(path + u".damaged"_s), QByteArray("older"));
        QCOMPARE(UserDefaults(path).doubleForKey(u"ReaderFontSize"_s), 20.0);
    }

    // A file that is there but will not open (here a folder in its place) is left alone.
    void unopenablePreferencesStop()
    {
        TestEnvironment environment;
        const QString path = QDir(environment.dataDirectory()).filePath(u"UserDefaults.json"_s);
        QVERIFY(QDir().mkpath(path));
        const QString message = fatalStop([&] { UserDefaults::setStandardDirectory(environment.dataDirectory()); });
        QVERIFY2(message.startsWith(u"Fatal error: the preferences file "_s + path + u" cannot be read"_s), qPrintable(message));
        QVERIFY(QFileInfo(path).isDir());
        QVERIFY(!QFile::exists(path + u".damaged"_s));
    }

    // Settings lost to an unreadable file, or a malformed flag, do not cost the reader a favourite
    // or an article: a table that holds rows is not emptied and seeded again; an empty one still
    // is, at its turn.
    void lostPreferencesLeaveSeededTablesAlone_data()
    {
        QTest::addColumn<QByteArray>("preferences");
        QTest::newRow("unreadable file") << QByteArray("{\"hasBeenLaunched");
        QTest::newRow("malformed flags")
            << QByteArray(R"({"hasBeenLaunchedBeforeFlag": {"type": "bool", "value": 1},
                             "AboutHasBeenLaunchedBeforeFlag": {"type": "bool", "value": "yes"}})");
    }

    void lostPreferencesLeaveSeededTablesAlone()
    {
        QFETCH(QByteArray, preferences);
        TestEnvironment environment;
        environment.addBundleFile(u"Book.txt"_s, "d1^AM^1^1^1^F^x");
        ManagedObjectContext &context = AppDelegate::shared().viewContext();
        PoemPrayer *page = context.insertNewObject<PoemPrayer>();
        page->setDt(u"mine"_s);
        page->setFavorite(u"T"_s);
        context.insertNewObject<About>()->setName(u"My article"_s);
        QVERIFY(!context.save());
        QVERIFY(writeFile(QDir(environment.dataDirectory()).filePath(u"UserDefaults.json"_s), preferences));
        UserDefaults::setStandardDirectory(environment.dataDirectory());

        CoverViewController cover;
        cover.viewDidLoad();

        QVERIFY2(environment.logLines.contains(u"Not First Launch"_s), qPrintable(environment.logLines.join(u'\n')));
        const QList<PoemPrayer *> pages = context.fetch<PoemPrayer>(PoemPrayer::fetchRequest());
        QVERIFY(pages.size() == 1 && pages.first()->dt() == u"mine"_s && pages.first()->favorite() == u"T"_s);
        QVERIFY(Preferences::boolForKey(PreferenceKeys::AboutHasBeenLaunchedBeforeFlag));
        QVERIFY(!Preferences::boolForKey(PreferenceKeys::SpecialDayshasBeenLaunchedBeforeFlag));
        QVERIFY(!Alerts::shared().showing());
    }

    // A first start killed while building the store leaves only the half-made file beside it.
    void interruptedFirstStartIsBuiltAgain()
    {
        TestEnvironment environment;
        const QString path = QDir(environment.dataDirectory()).filePath(u"TheLarkwellsBook.sqlite"_s);
        QVERIFY(writeFile(path + u".new"_s, QByteArray(1000, '\0')));
        writeStore();
        QVERIFY(!QFile::exists(path + u".new"_s));
        QCOMPARE(AppDelegate::shared().viewContext().fetch<PoemPrayer>(PoemPrayer::fetchRequest()).size(), 200);
    }

    // The preferences file, whole: types across a restart, reads of the wrong type, background writes.
    void valuesKeepTheirTypeAcrossRestart_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QJsonValue>("json");
        QTest::newRow("bool") << QVariant(true) << u"bool"_s << QJsonValue(true);
        QTest::newRow("integer") << QVariant(17) << u"integer"_s << QJsonValue(17);
        QTest::newRow("double") << QVariant(16.0) << u"double"_s << QJsonValue(16.0);
        QTest::newRow("string") << QVariant(u"true"_s) << u"string"_s << QJsonValue(u"true"_s);
    }

    void valuesKeepTheirTypeAcrossRestart()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, type);
        QFETCH(QJsonValue, json);
        TestEnvironment environment;
        UserDefaults::standard().set(u"key"_s, value);

        // What another program reads from the file.
        const QByteArray file = readFile(QDir(environment.dataDirectory()).filePath(u"UserDefaults.json"_s));
        const QJsonObject entry = QJsonDocument::fromJson(file).object().value(u"key"_s).toObject();
        QCOMPARE(entry.value(u"type"_s).toString(), type);
        QCOMPARE(entry.value(u"value"_s), json);

        // What the next start reads.
        UserDefaults::setStandardDirectory(environment.dataDirectory());
        const auto reloadedType = UserDefaults::standard().typeOf(u"key"_s);
        QVERIFY(reloadedType);
        QCOMPARE(QStringList({u"bool"_s, u"integer"_s, u"double"_s, u"string"_s}).value(int(*reloadedType)), type);
        QCOMPARE(UserDefaults::standard().object(u"key"_s).toString(), value.toString());
    }

    void wrongTypeIsFatal_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<int>("reader"); // 0 integer, 1 double, 2 string, 3 bool
        QTest::addColumn<bool>("fatal");
        QTest::newRow("string read as integer") << QVariant(u"1"_s) << 0 << true;
        QTest::newRow("double read as integer") << QVariant(1.5) << 0 << true;
        QTest::newRow("integer read as double") << QVariant(17) << 1 << false;
        QTest::newRow("bool read as double") << QVariant(true) << 1 << true;
        QTest::newRow("integer read as string") << QVariant(3) << 2 << true;
        QTest::newRow("string read as string") << QVariant(u"Arial"_s) << 2 << false;
        QTest::newRow("string read as a flag") << QVariant(u"no"_s) << 3 << true;
        QTest::newRow("bool read as a flag") << QVariant(false) << 3 << false;
    }

    void wrongTypeIsFatal()
    {
        QFETCH(QVariant, stored);
        QFETCH(int, reader);
        QFETCH(bool, fatal);
        TestEnvironment environment;
        UserDefaults::standard().set(u"key"_s, stored);
        const PreferenceKey key{u"key"_s, UserDefaults::Type::Integer, {}};
        const QString message = fatalStop([&] {
            if (reader == 0)
                Preferences::integerIfPresent(key);
            else if (reader == 1)
                Preferences::doubleIfPresent(key);
            else if (reader == 2)
                Preferences::stringIfPresent(key);
            else
                Preferences::boolForKey(key);
        });
        QCOMPARE(!message.isEmpty(), fatal);
        if (fatal)
            QVERIFY2(message.startsWith(u"Fatal error: the setting \"key\" holds a value that is not "_s), qPrintable(message));
    }

    void backgroundWritesLandInOrder_data()
    {
        QTest::addColumn<bool>("directAfter"); // a direct write follows the background one
        QTest::newRow("background, then synchronize") << false;
        QTest::newRow("background, then a direct write") << true;
    }

    // A count kept off the screen's way to the disk still reaches it, and never over a newer write.
    void backgroundWritesLandInOrder()
    {
        QFETCH(bool, directAfter);
        TestEnvironment environment;
        for (int count = 1; count <= 20; ++count)
            UserDefaults::standard().setValuesInBackground({{u"count"_s, count}});
        if (directAfter)
            UserDefaults::standard().set(u"later"_s, true);
        else
            QVERIFY(UserDefaults::standard().synchronize());
        UserDefaults::setStandardDirectory(environment.dataDirectory());
        QCOMPARE(UserDefaults::standard().integerForKey(u"count"_s), 20);
        QCOMPARE(UserDefaults::standard().boolForKey(u"later"_s), directAfter);
    }
};

QTEST_GUILESS_MAIN(TestDamaged)
#include "tst_damaged.moc"
