#include "PreferenceKeys.h"
#include "TestSupport.h"
#include "UserDefaults.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

class TestUserDefaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        QTest::addColumn<int>("reader"); // 0 integer, 1 double, 2 string
        QTest::addColumn<bool>("fatal");
        QTest::newRow("string read as integer") << QVariant(u"1"_s) << 0 << true;
        QTest::newRow("double read as integer") << QVariant(1.5) << 0 << true;
        QTest::newRow("integer read as double") << QVariant(17) << 1 << false;
        QTest::newRow("bool read as double") << QVariant(true) << 1 << true;
        QTest::newRow("integer read as string") << QVariant(3) << 2 << true;
        QTest::newRow("string read as string") << QVariant(u"Arial"_s) << 2 << false;
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
            else
                Preferences::stringIfPresent(key);
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

QTEST_GUILESS_MAIN(TestUserDefaults)
#include "tst_userdefaults.moc"
