#pragma once

#include "PageRows.h"

#include <QStringList>

// About articles as "name|text", "-" for a value never set.
inline void insertAbouts(const QStringList &rows)
{
    insertRows<About>({QStringLiteral("name"), QStringLiteral("aboutText")}, rows);
}

// The stored articles in insertion order, read through a fresh connection.
inline QStringList storedAbouts()
{
    return storedRows<About>({QStringLiteral("name"), QStringLiteral("aboutText")});
}
