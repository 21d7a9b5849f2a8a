#include "Art.h"
namespace Art { bool writeBands(const QString &) { return true; } }
