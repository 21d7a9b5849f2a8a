// A child process for the crash tests: it uses the real store and preferences and reports on
// standard output what it is about to save ("begin ..." lines closed by "save") and when a
// save has returned ("ack"). Each report is one write(2), so a killed worker never leaves half
// a line. Modes:
//   random DIR             for each line "run SEED FIRST" on standard input, a forked child
//                          that makes random page, note and preference changes until killed
//                          ("ready PID" when it starts, "gone" once it has ended); forking
//                          spares each run the start-up of a process
//   term DIR FIRST         notes saved in a loop, every other one left for the termination path
//   full DIR LIMIT         a save that outgrows LIMIT bytes of file size (a full disk)
//   fullpref DIR LIMIT     the same for a preference write
#include "AppDelegate.h"
#include "CrashValues.h"
#include "Entities.h"
#include "PersistentContainer.h"
#include "PreferenceKeys.h"
#include "Termination.h"
#include "UserDefaults.h"

#include <QCoreApplication>
#include <QRandomGenerator>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace CrashValues;

namespace {
void report(const QString &lines)
{
    const QByteArray bytes = lines.toUtf8();
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t written = ::write(STDOUT_FILENO, bytes.constData() + done, size_t(bytes.size() - done));
        if (written <= 0)
            std::_Exit(3);
        done += written;
    }
}

ManagedObjectContext &context()
{
    return AppDelegate::shared().viewContext();
}

void saveOrDie()
{
    if (const auto error = context().save()) {
        report(u"error "_s + error->description + u'\n');
        std::_Exit(4);
    }
}

class RandomWorker
{
public:
    RandomWorker(quint32 seed, qint64 first) : m_random(seed), m_next(first) {}

    [[noreturn]] void run()
    {
        m_pages = context().fetch<PoemPrayer>(PoemPrayer::fetchRequest()).size();
        report(u"ready %1\n"_s.arg(::getpid()));
        for (;;) {
            if (m_random.bounded(4) == 0)
                changePreference();
            else
                changeStore();
        }
    }

private:
    PoemPrayer *page(int k)
    {
        FetchRequest request = PoemPrayer::fetchRequest();
        request.predicate = Predicate::conjunction({Predicate::equals(u"dt"_s, pageDt(k)), Predicate::equals(u"ampm"_s, u"AM"_s)});
        return context().fetch<PoemPrayer>(request).value(0);
    }

    // One to three changes, saved together.
    void changeStore()
    {
        QString lines;
        const int changes = 1 + int(m_random.bounded(3));
        for (int i = 0; i < changes; ++i)
            lines += change();
        report(lines + u"save\n"_s);
        saveOrDie();
        report(u"ack\n"_s);
    }

    QString change()
    {
        const qint64 n = m_next++;
        const int k = int(m_random.bounded(m_pages));
        const QList<Notes *> notes = context().fetch<Notes>(Notes::fetchRequest());
        Notes *existing = notes.isEmpty() ? nullptr : notes[m_random.bounded(int(notes.size()))];
        switch (m_random.bounded(5)) {
        case 0: {
            const QString mark = m_random.bounded(2) ? u"T"_s : u"F"_s;
            page(k)->setFavorite(mark);
            return u"begin fav %1 %2\n"_s.arg(k).arg(mark);
        }
        case 1:
            page(k)->setPoemprayer(text(n));
            return u"begin page %1 %2\n"_s.arg(k).arg(n);
        case 2:
            if (existing) {
                const QString id = existing->subject().value_or(QString()).mid(1);
                existing->setNotes(text(n));
                return u"begin note~ %1 %2\n"_s.arg(id).arg(n);
            }
            break;
        case 3:
            if (existing && notes.size() > 3)
                return deleteNote(existing);
            break;
        }
        // Notes come and go; past a few dozen a new one replaces an old one.
        if (existing && notes.size() >= 30)
            return deleteNote(existing);
        fillNote(context().insertNewObject<Notes>(), n);
        return u"begin note+ %1\n"_s.arg(n);
    }

    static QString deleteNote(Notes *note)
    {
        const QString id = note->subject().value_or(QString()).mid(1);
        context().deleteObject(note);
        return u"begin note- %1\n"_s.arg(id);
    }

    void changePreference()
    {
        const qint64 n = m_next++;
        PreferenceKey key = PreferenceKeys::wallpaper(u"Page%1"_s.arg(n % 35 + 1));
        QVariant value = n % 3 ? u"true"_s : u"false"_s;
        switch (m_random.bounded(4)) {
        case 0: key = PreferenceKeys::ReaderFontSize; value = double(n % 4000) / 7.0; break;
        case 1: key = PreferenceKeys::FontName; value = u"Font ł %1"_s.arg(n); break;
        case 2: key = PreferenceKeys::useWallpaper; value = n % 2; break;
        }
        const QString shown = value.typeId() == QMetaType::Double ? QString::number(value.toDouble(), 'g', 17) : value.toString();
        report(u"begin pref %1 %2\nsave\n"_s.arg(key.name, shown));
        Preferences::write(key, value);
        report(u"ack\n"_s);
    }

    QRandomGenerator m_random;
    qint64 m_next;
    int m_pages = 0;
};

[[noreturn]] void forkRandomWorkers(const QString &directory)
{
    char line[128];
    while (std::fgets(line, sizeof line, stdin)) {
        unsigned seed = 0;
        long long first = 0;
        if (std::sscanf(line, "run %u %lld", &seed, &first) != 2)
            std::_Exit(2);
        const pid_t child = ::fork();
        if (child == 0) {
            UserDefaults::setStandardDirectory(directory); // what the last child left
            RandomWorker(seed, first).run();
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        report(u"gone\n"_s);
    }
    std::_Exit(0);
}

// Saves a note on every other tick and leaves the next one unsaved, until a signal quits the loop.
int runUntilTerminated(QCoreApplication &app, qint64 first)
{
    Termination::install(app);
    context();
    report(u"ready\n"_s);
    qint64 n = first;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, [&n] {
        fillNote(context().insertNewObject<Notes>(), n);
        if (n % 2 == 0) {
            report(u"begin note+ %1\nsave\n"_s.arg(n));
            saveOrDie();
            report(u"ack\n"_s);
        } else {
            report(u"begin note+ %1\n"_s.arg(n));
        }
        ++n;
    });
    tick.start(0);
    const int status = QCoreApplication::exec();
    AppDelegate::shared().reset();
    return status;
}

void limitFileSize(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN); // a write past the limit then fails with EFBIG
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
}

// Ends through the failure path of the delegate's save or of the preference write.
int runOnFullDisk(const QString &mode, rlim_t limit)
{
    context();
    limitFileSize(limit);
    report(u"ready\n"_s);
    if (mode == u"fullpref"_s) {
        Preferences::write(PreferenceKeys::FontName, u"x"_s.repeated(int(limit) * 2));
    } else {
        fillNote(context().insertNewObject<Notes>(), 1);
        context().insertNewObject<Notes>()->setNotes(u"y"_s.repeated(int(limit) * 2));
        AppDelegate::shared().saveContext();
    }
    report(u"survived\n"_s);
    AppDelegate::shared().reset();
    return 0;
}
}

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() < 3)
        return 2;
    const QString mode = args[1];
    UserDefaults::setStandardDirectory(args[2]);
    PersistentContainer::setDefaultDirectory(args[2]);
    if (mode == u"random"_s)
        forkRandomWorkers(args[2]);
    if (mode == u"term"_s && args.size() == 4)
        return runUntilTerminated(app, args[3].toLongLong());
    if (mode.startsWith(u"full"_s) && args.size() == 4)
        return runOnFullDisk(mode, rlim_t(args[3].toULongLong()));
    return 2;
}
