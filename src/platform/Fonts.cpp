#include "Fonts.h"

#include "FatalError.h"

#include <QFontDatabase>
#include <QHash>
#include <fontconfig/fontconfig.h>

using namespace Qt::StringLiterals;

namespace {
// The family fontconfig would draw for a name.
QString matchedFamily(const QString &family)
{
    FcPattern *pattern = FcPatternCreate();
    const QByteArray name = family.toUtf8();
    FcPatternAddString(pattern, FC_FAMILY, reinterpret_cast<const FcChar8 *>(name.constData()));
    FcConfigSubstitute(nullptr, pattern, FcMatchPattern);
    FcDefaultSubstitute(pattern);
    FcResult result = FcResultNoMatch;
    FcPattern *match = FcFontMatch(nullptr, pattern, &result);
    QString matched;
    FcChar8 *value = nullptr;
    if (match && FcPatternGetString(match, FC_FAMILY, 0, &value) == FcResultMatch)
        matched = QString::fromUtf8(reinterpret_cast<const char *>(value));
    if (match)
        FcPatternDestroy(match);
    FcPatternDestroy(pattern);
    return matched;
}
}

bool Fonts::isKnown(const QString &family)
{
    static QHash<QString, bool> known;
    const auto cached = known.constFind(family);
    if (cached != known.constEnd())
        return *cached;
    bool result = !family.trimmed().isEmpty();
    if (result && !QFontDatabase::families().contains(family, Qt::CaseInsensitive)) {
        static const QString fallback = matchedFamily(u"larkwells-no-such-family"_s);
        result = matchedFamily(family) != fallback;
    }
    known.insert(family, result);
    return result;
}

QString Fonts::requireKnown(const QString &family)
{
    if (!isKnown(family))
        fatalError(u"Fatal error: the font \"%1\" is not known on this system"_s.arg(family));
    return family;
}
