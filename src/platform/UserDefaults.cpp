#include "UserDefaults.h"

#include "FatalError.h"
#include "Log.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>
#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

namespace {
std::unique_ptr<UserDefaults> &standardStore()
{
    static std::unique_ptr<UserDefaults> store;
    return store;
}

QString fileIn(const QString &directory)
{
    return QDir(directory).filePath(u"UserDefaults.json"_s);
}

QString typeName(QMetaType::Type type)
{
    switch (type) {
    case QMetaType::Bool: return u"bool"_s;
    case QMetaType::LongLong: return u"integer"_s;
    case QMetaType::Double: return u"double"_s;
    default: return u"string"_s;
    }
}

// An integer entry holds a whole number a 64-bit integer can take, not 2.5 or 1e300.
bool wholeNumber(double value)
{
    return std::trunc(value) == value && value >= -0x1p63 && value < 0x1p63;
}

// `path`, or the first of `path`-2, `path`-3 ... that is not taken.
QString freeName(const QString &path)
{
    QString name = path;
    for (int n = 2; QFile::exists(name); ++n)
        name = path + u'-' + QString::number(n);
    return name;
}
}

UserDefaults &UserDefaults::standard()
{
    if (!standardStore())
        setStandardDirectory(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    return *standardStore();
}

void UserDefaults::setStandardDirectory(const QString &directory)
{
    QDir().mkpath(directory);
    standardStore() = std::make_unique<UserDefaults>(fileIn(directory));
}

UserDefaults::UserDefaults(QString filePath)
    : m_filePath(std::move(filePath))
{
    load();
}

UserDefaults::~UserDefaults()
{
    // The last background write still lands; the application synchronizes before it ends, so a
    // failure has been reported by now.
    if (m_backgroundWrite.valid())
        m_backgroundWrite.wait();
}

std::optional<UserDefaults::Contents> UserDefaults::parse(const QByteArray &bytes)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (!document.isObject())
        return std::nullopt;
    Contents contents;
    const QJsonObject root = document.object();
    for (auto it = root.begin(); it != root.end(); ++it) {
        const QJsonObject entry = it.value().toObject();
        const QString type = entry.value(u"type"_s).toString();
        const QJsonValue value = entry.value(u"value"_s);
        if (type == u"bool"_s && value.isBool())
            contents.values.insert(it.key(), value.toBool());
        else if (type == u"integer"_s && value.isDouble() && wholeNumber(value.toDouble()))
            contents.values.insert(it.key(), qint64(value.toDouble()));
        else if (type == u"double"_s && value.isDouble())
            contents.values.insert(it.key(), value.toDouble());
        else if (type == u"string"_s && value.isString())
            contents.values.insert(it.key(), value.toString());
        else
            contents.malformedKeys.append(it.key());
    }
    return contents;
}

void UserDefaults::load()
{
    QFile file(m_filePath);
    if (!file.exists())
        return;
    // A file that is there but will not open is left as it is: nothing could be written in its
    // place either.
    if (!file.open(QIODevice::ReadOnly))
        fatalError(u"Fatal error: the preferences file %1 cannot be read: %2"_s.arg(m_filePath, file.errorString()));
    const auto contents = parse(file.readAll());
    file.close();
    // A damaged file is kept for inspection, every damaged copy under a name of its own: moved
    // aside when nothing in it can be read, copied aside when only some entries are malformed
    // (the next write leaves those out).
    const QString aside = freeName(m_filePath + u".damaged"_s);
    if (!contents) {
        QFile::rename(m_filePath, aside);
        Log::line(u"Preferences file unreadable, kept as "_s + aside);
        m_startedAfresh = true;
        return;
    }
    m_values = contents->values;
    m_malformedKeys = contents->malformedKeys;
    if (m_malformedKeys.isEmpty())
        return;
    QFile::copy(m_filePath, aside);
    for (const QString &key : m_malformedKeys)
        Log::line(u"Preferences: ignored malformed entry "_s + key + u", file kept as "_s + aside);
}

void UserDefaults::write()
{
    synchronize(); // an older background write must not land after this one
    if (const auto reason = writeFile(m_filePath, serialized(m_values)))
        writeFailed(*reason);
}

QByteArray UserDefaults::serialized(const QHash<QString, QVariant> &values)
{
    QJsonObject root;
    for (auto it = values.begin(); it != values.end(); ++it) {
        const auto type = QMetaType::Type(it.value().typeId());
        root.insert(it.key(), QJsonObject{{u"type"_s, typeName(type)},
                                          {u"value"_s, QJsonValue::fromVariant(it.value())}});
    }
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

std::optional<QString> UserDefaults::writeFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    // A full disk can end a write part way without an error: only a complete write may replace the file.
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return std::nullopt;
    const QString reason = file.error() == QFileDevice::NoError ? u"the disk took only part of it"_s : file.errorString();
    file.cancelWriting();
    return reason;
}

void UserDefaults::writeFailed(const QString &reason) const
{
    fatalError(u"Fatal error: cannot write the preferences file "_s + m_filePath + u": "_s + reason);
}

void UserDefaults::finishWriting()
{
    if (standardStore() && standardStore()->m_backgroundWrite.valid())
        standardStore()->m_backgroundWrite.wait();
}

bool UserDefaults::synchronize()
{
    if (!m_backgroundWrite.valid())
        return true;
    if (const auto reason = m_backgroundWrite.get())
        writeFailed(*reason);
    return true;
}

QVariant UserDefaults::normalized(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int: case QMetaType::UInt: case QMetaType::LongLong: case QMetaType::ULongLong:
    case QMetaType::Short: case QMetaType::UShort: case QMetaType::Long: case QMetaType::ULong:
        return value.toLongLong();
    case QMetaType::Double: case QMetaType::Float:
        return value.toDouble();
    case QMetaType::QString:
        return value.toString();
    default:
        fatalError(u"Fatal error: a preference value must be a bool, a number or a string"_s);
    }
}

QVariant UserDefaults::object(const QString &key) const
{
    return m_values.value(key);
}

std::optional<UserDefaults::Type> UserDefaults::typeOf(const QString &key) const
{
    const auto it = m_values.constFind(key);
    if (it == m_values.constEnd())
        return std::nullopt;
    switch (it->typeId()) {
    case QMetaType::Bool: return Type::Bool;
    case QMetaType::LongLong: return Type::Integer;
    case QMetaType::Double: return Type::Double;
    default: return Type::String;
    }
}

bool UserDefaults::boolForKey(const QString &key) const
{
    const QVariant value = object(key);
    if (value.typeId() == QMetaType::QString)
        return value.toString() == u"true"_s || value.toString() == u"YES"_s || value.toString().toLongLong() != 0;
    return value.isValid() && value.toDouble() != 0;
}

qint64 UserDefaults::integerForKey(const QString &key) const
{
    const QVariant value = object(key);
    return value.typeId() == QMetaType::Double ? qint64(value.toDouble()) : value.toLongLong();
}

double UserDefaults::doubleForKey(const QString &key) const
{
    return object(key).toDouble();
}

std::optional<QString> UserDefaults::stringForKey(const QString &key) const
{
    const QVariant value = object(key);
    if (!value.isValid() || value.typeId() == QMetaType::Bool)
        return std::nullopt;
    return value.toString();
}

void UserDefaults::set(const QString &key, const QVariant &value)
{
    setValues({{key, value}});
}

void UserDefaults::setValues(const QList<std::pair<QString, QVariant>> &values)
{
    store(values);
    write();
}

void UserDefaults::setValuesInBackground(const QList<std::pair<QString, QVariant>> &values)
{
    store(values);
    synchronize();
    // A copy of the values (shared until either side changes them) is turned into bytes on the
    // writing thread too: the caller waits for neither.
    m_backgroundWrite = std::async(std::launch::async, [path = m_filePath, values = m_values] {
        return writeFile(path, serialized(values));
    });
}

void UserDefaults::store(const QList<std::pair<QString, QVariant>> &values)
{
    for (const auto &[key, value] : values)
        m_values.insert(key, normalized(value));
}

void UserDefaults::removeObject(const QString &key)
{
    if (m_values.remove(key))
        write();
}
