// Run at build time: fills a new store from the built-in page file as a first launch would, and
// writes it out for the application to carry (PageSeeding::seededBook). A fresh install then
// copies the filled store into place instead of inserting every page before the cover shows.
//   larkwells_seededbook OUT.sqlite
#include "AppDelegate.h"
#include "Log.h"
#include "PageFile.h"
#include "PageSeeding.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 2) {
        std::fprintf(stderr, "usage: larkwells_seededbook OUT.sqlite\n");
        return 2;
    }
    // Whatever the seeding logs is a failed read or save: the store would not be the book.
    QStringList logged;
    Log::setSink([&logged](const QString &line) { logged.append(line); });
    QTemporaryDir data;
    PersistentContainer::setDefaultDirectory(data.path());
    PageSeeding seeding;
    seeding.clearPoemPrayers();
    seeding.loadPoemPrayers(PageFile::columns);
    const QString store = AppDelegate::shared().persistentContainer().storePath();
    AppDelegate::shared().reset(); // the last connection to close moves the log into the file

    const QString out = QFileInfo(args[1]).absoluteFilePath();
    QFile::remove(out);
    if (!seeding.FileObject || !logged.isEmpty() || QFileInfo::exists(store + u"-wal"_s)
        || !QDir().mkpath(QFileInfo(out).path()) || !QFile::copy(store, out)) {
        std::fprintf(stderr, "larkwells_seededbook: the book could not be seeded into %s\n%s\n", qPrintable(out),
                     qPrintable(logged.join(u'\n')));
        return 1;
    }
    return 0;
}
