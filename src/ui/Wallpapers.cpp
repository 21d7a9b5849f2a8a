#include "Wallpapers.h"

#include "UserDefaults.h"

#include <QRandomGenerator>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {
QStringList numbered(const QString &prefix, int first, int last)
{
    QStringList names;
    for (int i = first; i <= last; ++i)
        names.append(prefix + QString::number(i));
    return names;
}
}

const QStringList &Wallpapers::ViewerWallpaper()
{
    static const QStringList names = numbered(u"Page"_s, 1, 35);
    return names;
}

const QStringList &Wallpapers::PMWallpaper()
{
    static const QStringList names = numbered(u"AM-"_s, 36, 70);
    return names;
}

int Wallpapers::systemUniform(int bound)
{
    return int(QRandomGenerator::global()->bounded(quint32(bound)));
}

bool Wallpapers::inUse(const QString &name)
{
    const QVariant value = UserDefaults::standard().object(name);
    return value.typeId() == QMetaType::QString && value.toString() == u"true"_s;
}

bool Wallpapers::noneInUse(const QStringList &names)
{
    const UserDefaults &defaults = UserDefaults::standard();
    return std::all_of(names.begin(), names.end(),
                       [&](const QString &name) { return defaults.contains(name) && !inUse(name); });
}

int Wallpapers::draw(const QStringList &names, int firstBound, int start, const Uniform &uniform)
{
    const UserDefaults &defaults = UserDefaults::standard();
    int r = uniform(firstBound);
    bool checked = false;
    for (;;) {
        const QString &name = names.value(r);
        if (!defaults.contains(name))
            return start;
        if (inUse(name))
            return r;
        if (!std::exchange(checked, true) && noneInUse(names.mid(0, 34)))
            return NoWallpaper;
        r = uniform(34);
    }
}

void Wallpapers::enableUnsetWallpapers()
{
    UserDefaults &defaults = UserDefaults::standard();
    QList<std::pair<QString, QVariant>> missing;
    for (const QString &name : PMWallpaper() + ViewerWallpaper()) {
        if (!defaults.object(name).isValid())
            missing.append({name, u"true"_s});
    }
    // Written beside the cover's first frame: were the process to end first, the next start
    // would find the same keys missing and write them again.
    if (!missing.isEmpty())
        defaults.setValuesInBackground(missing);
}
