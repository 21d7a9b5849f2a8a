#include "TodaysPage.h"

#include "AppDelegate.h"
#include "Clock.h"
#include "Entities.h"
#include "MainTableViewController.h"
#include "Navigator.h"
#include "ReaderText.h"
#include "Selection.h"

using namespace Qt::StringLiterals;

namespace TodaysPage {

PoemPrayer *fetch(const QString &ampm)
{
    const QDate today = Clock::today();
    FetchRequest request = PoemPrayer::fetchRequest();
    request.predicate = Predicate::conjunction({Predicate::equals(u"month"_s, QString::number(today.month())),
                                                Predicate::equals(u"day"_s, QString::number(today.day())),
                                                Predicate::equals(u"ampm"_s, ampm)});
    const QList<PoemPrayer *> pages = AppDelegate::shared().viewContext().fetch<PoemPrayer>(request);
    return pages.value(0);
}

QString firstLine(const PoemPrayer &page)
{
    const QStringList heading{u"From The Larkwells"_s, ReaderText::greeting(page.ampm().value_or(QString())),
                              page.dt().value_or(QString())};
    for (const QString &line : page.poemprayer().value_or(QString()).split(u'\n')) {
        const QString trimmed = line.trimmed();
        if (!trimmed.isEmpty() && !heading.contains(trimmed))
            return trimmed;
    }
    return {};
}

bool open(const QString &ampm)
{
    const PoemPrayer *page = fetch(ampm);
    if (!page)
        return false;
    // chosen as the page list chooses a row, so the reader behaves as it does from there
    MainTableViewController::selectPage(*page);
    Selection::shared().setSelectedSearchText(QString());
    Navigator::shared().performSegue(u"ViewPoemSegue"_s);
    return true;
}

}
