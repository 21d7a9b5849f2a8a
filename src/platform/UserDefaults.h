#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <future>
#include <optional>

// The user's preferences: a flat, typed key-value store kept in one JSON file
// ({"key": {"type": "bool" | "integer" | "double" | "string", "value": ...}}).
// Every write is durable when it returns (the file is replaced atomically), except a background
// write, which is durable once `synchronize` returns.
class UserDefaults
{
public:
    enum class Type { Bool, Integer, Double, String };

    // The store every screen uses; its file lives in the application's data folder.
    static UserDefaults &standard();
    // Points the standard store at another folder (command line, tests) and reloads it.
    static void setStandardDirectory(const QString &directory);

    explicit UserDefaults(QString filePath);
    ~UserDefaults();

    // The stored value with its type (bool, qint64, double or QString); invalid when absent.
    QVariant object(const QString &key) const;
    bool contains(const QString &key) const { return m_values.contains(key); }
    std::optional<Type> typeOf(const QString &key) const;

    // Platform-style readers: absent reads as false / 0 / 0.0 / none.
    bool boolForKey(const QString &key) const;
    qint64 integerForKey(const QString &key) const;
    double doubleForKey(const QString &key) const;
    std::optional<QString> stringForKey(const QString &key) const;

    // Stores a bool, an integer (any integral type), a double or a string.
    void set(const QString &key, const QVariant &value);
    // Stores several values with one durable write.
    void setValues(const QList<std::pair<QString, QVariant>> &values);
    // Stores values at once and writes the file on another thread: for values a crash may lose
    // harmlessly (a counter) on a path where waiting for the disk would hold a screen's first frame.
    void setValuesInBackground(const QList<std::pair<QString, QVariant>> &values);
    void removeObject(const QString &key);
    // Waits for a background write to reach the disk; one that failed is a fatal stop.
    bool synchronize();
    // Lets the standard store's background write land, whatever its outcome: a fatal stop waits
    // for it before it ends the process.
    static void finishWriting();

    QString filePath() const { return m_filePath; }
    // Whether the value of `key` was lost on loading: the file's bytes could not be read at all
    // (every setting starts afresh), or this entry was malformed.
    bool lost(const QString &key) const { return m_startedAfresh || m_malformedKeys.contains(key); }

    // What a preferences file's bytes hold: the well-formed entries, and the keys of entries whose
    // type and value do not match. None when the bytes are not a JSON object.
    struct Contents {
        QHash<QString, QVariant> values;
        QStringList malformedKeys;
    };
    static std::optional<Contents> parse(const QByteArray &bytes);

private:
    void load();
    void store(const QList<std::pair<QString, QVariant>> &values);
    void write();
    static QByteArray serialized(const QHash<QString, QVariant> &values);
    // Replaces the file with `bytes`; why it could not, or none.
    static std::optional<QString> writeFile(const QString &path, const QByteArray &bytes);
    [[noreturn]] void writeFailed(const QString &reason) const;
    static QVariant normalized(const QVariant &value);

    QString m_filePath;
    QHash<QString, QVariant> m_values;
    bool m_startedAfresh = false;
    QStringList m_malformedKeys;
    std::future<std::optional<QString>> m_backgroundWrite;
};
