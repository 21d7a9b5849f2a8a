#pragma once

#include <QStringList>
#include <optional>

// Copies of the store taken before a step that empties a table, under <data-dir>/snapshots/,
// the newest five kept. A copy taken before an about import can put the articles back.
class StoreSnapshots
{
public:
    // Why a copy was taken; part of its file name.
    static inline const QString aboutImport = QStringLiteral("about-import");

    // Writes a copy of the store as it is now; none when there is no store yet. A copy that
    // cannot be written is logged and the step goes on: the copy is a safety net, not a gate.
    static std::optional<QString> take(const QString &reason);
    // The snapshot files, oldest first.
    static QStringList all();
    static QString directory();

    // The newest copy taken for this reason; empty when there is none.
    static QString latest(const QString &reason);
    // Replaces the articles of the store with those of a copy; false when the copy is gone or
    // cannot be read, and the articles are then left as they are.
    static bool restoreArticles(const QString &snapshot);

    static constexpr int kept = 5;
};
