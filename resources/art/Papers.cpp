#include "Art.h"
namespace Art { bool writePapers(const QString &) { return true; } }
