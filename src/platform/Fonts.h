#pragma once

#include <QStringList>

// Font families as the system's font configuration knows them. A family is known when it is
// installed or when the configuration resolves the name to an installed family through its
// aliases (as "Arial" resolves to Liberation Sans); a name that only falls back to the default
// family is unknown.
namespace Fonts {
bool isKnown(const QString &family);
// The family itself when known; an unknown name is a fatal stop.
QString requireKnown(const QString &family);
}
