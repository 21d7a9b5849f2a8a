// The picture generator, run at build time: draws the wallpapers, the cover and the icon
// rasters from seeded code, so the pictures are reproducible and nothing is downloaded.
#include "Art.h"

#include <QDir>
#include <QGuiApplication>
#include <cstdio>

namespace {
int usage()
{
    std::fprintf(stderr,
                 "usage: larkwells_art pictures DIR [papers|bands|cover]\n"
                 "       larkwells_art icons SVG DIR SIZE...\n"
                 "       larkwells_art sheet BUNDLE_DIR OUT.png\n"
                 "       larkwells_art render PICTURE OUT.png WIDTH HEIGHT\n");
    return 2;
}
}

int main(int argc, char **argv)
{
    // Text outlines need a font database, which needs a (headless) GUI application.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    if (args.size() < 2)
        return usage();
    const QString command = args[0];
    if (command == QLatin1String("pictures")) {
        const QString dir = args[1];
        const QString only = args.value(2);
        QDir().mkpath(dir);
        bool ok = true;
        if (only.isEmpty() || only == QLatin1String("papers"))
            ok = Art::writePapers(dir) && ok;
        if (only.isEmpty() || only == QLatin1String("bands"))
            ok = Art::writeBands(dir) && ok;
        if (only.isEmpty() || only == QLatin1String("cover"))
            ok = Art::writeCover(dir) && ok;
        return ok ? 0 : 1;
    }
    if (command == QLatin1String("icons") && args.size() >= 4) {
        QList<int> sizes;
        for (const QString &s : args.mid(3))
            sizes.append(s.toInt());
        QDir().mkpath(args[2]);
        return Art::writeIcons(args[1], args[2], sizes) ? 0 : 1;
    }
    if (command == QLatin1String("sheet") && args.size() == 3)
        return Art::writeContactSheet(args[1], args[2]) ? 0 : 1;
    if (command == QLatin1String("render") && args.size() == 5)
        return Art::renderFilled(args[1], QSize(args[3].toInt(), args[4].toInt())).save(args[2]) ? 0 : 1;
    return usage();
}
