#include "MainTableViewController.h"

#include "AppDelegate.h"
#include "Clock.h"
#include "FatalError.h"
#include "Fonts.h"
#include "Log.h"
#include "Navigator.h"
#include "Selection.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
FetchRequest requestForSegment(int segment)
{
    FetchRequest request = PoemPrayer::fetchRequest();
    const QList<SortDescriptor> calendar{{u"month"_s}, {u"day"_s}, {u"ampm"_s}};
    switch (segment) {
    case 0: {
        // Today by the calendar date alone: both pages of the day, morning first.
        const QDate today = Clock::today();
        request.predicate = Predicate::conjunction({Predicate::equals(u"month"_s, QString::number(today.month())),
                                                    Predicate::equals(u"day"_s, QString::number(today.day()))});
        request.sortDescriptors = {{u"ampm"_s}, {u"day"_s}};
        break;
    }
    case 1:
        request.predicate = Predicate::disjunction({Predicate::equals(u"ampm"_s, u"AM"_s),
                                                    Predicate::equals(u"ampm"_s, u"PM"_s)});
        request.sortDescriptors = calendar;
        break;
    case 2:
    case 3:
        request.predicate = Predicate::equals(u"ampm"_s, segment == 2 ? u"AM"_s : u"PM"_s);
        request.sortDescriptors = calendar;
        break;
    default:
        request.predicate = Predicate::equals(u"favorite"_s, u"T"_s);
        request.sortDescriptors = calendar;
    }
    return request;
}
}

MainTableViewController::MainTableViewController(QObject *parent)
    : QObject(parent)
    , m_PoemList(this)
    , m_sequence(&MainTableViewController::selectPage, this)
{
}

QStringList MainTableViewController::segmentTitles() const
{
    return {u"Today"_s, u"All"_s, u"AM"_s, u"PM"_s, u"Favs"_s};
}

void MainTableViewController::setSegmentIndex(int index)
{
    if (index == m_segmentIndex)
        return;
    m_segmentIndex = index;
    Q_EMIT segmentIndexChanged();
}

void MainTableViewController::viewDidLoad()
{
    m_appearance.drawWallpaper();
    const QString selectedList = Selection::shared().selectedList();
    setSegmentIndex(selectedList == u"AM"_s ? 2 : selectedList == u"PM"_s ? 3 : selectedList == u"FAV"_s ? 4 : 0);
    m_appearance.read();
    fetch();
}

void MainTableViewController::viewWillAppear()
{
    fetch();
}

void MainTableViewController::segmentedControlAction(int index)
{
    setSegmentIndex(index);
    fetch();
}

void MainTableViewController::fetch()
{
    std::optional<StoreError> error; // a failed fetch shows an empty list
    const QList<PoemPrayer *> pages =
        AppDelegate::shared().viewContext().fetch<PoemPrayer>(requestForSegment(m_segmentIndex), &error);
    if (!pages.isEmpty())
        Fonts::requireKnown(m_appearance.ListFontName());
    m_PoemList.setPages(pages);
}

void MainTableViewController::didSelectRowAt(int row)
{
    if (m_sequence.choose(m_PoemList.pages(), row))
        Navigator::shared().performSegue(u"ViewPoemSegue"_s);
}

void MainTableViewController::selectPage(const PoemPrayer &page)
{
    Selection &selection = Selection::shared();
    selection.setSelectedPoemPrayer(page.poemprayer().value_or(QString()));
    selection.setSelectedDt(page.dt().value_or(QString()));
    if (!page.ampm())
        fatalError(u"Fatal error: the chosen page has no time of day"_s);
    if (!page.ampm()->isEmpty())
        selection.setSelectedAmpm(*page.ampm());
    selection.setSelectedMonth(page.month());
    selection.setSelectedDay(page.day());
    selection.setSelectedPagenum(page.pagenum());
    selection.setSelectedFavorite(page.favorite() == u"T"_s ? u"T"_s : u"F"_s);
}

int MainTableViewController::openRow() const
{
    return m_sequence.rowIn(m_PoemList.pages());
}

QDateTime MainTableViewController::today() const
{
    return QDateTime(Clock::today(), QTime(12, 0));
}

int MainTableViewController::goToDate(int month, int day)
{
    segmentedControlAction(1);
    const QList<PoemPrayer *> &pages = m_PoemList.pages();
    const auto morning = std::find_if(pages.cbegin(), pages.cend(), [month, day](const PoemPrayer *page) {
        return page->month() == month && page->day() == day && page->ampm() == u"AM"_s;
    });
    return morning == pages.cend() ? -1 : int(morning - pages.cbegin());
}

void MainTableViewController::FavoriteCheckBoxChanged(int row, int checkState)
{
    PoemPrayer *page = m_PoemList.pages().value(row);
    if (!page)
        return;
    page->setFavorite(checkState == 1 ? u"T"_s : u"F"_s);
    if (const auto error = AppDelegate::shared().viewContext().save())
        Log::line(error->unresolvedMessage());
    m_PoemList.refreshRow(row);
}
