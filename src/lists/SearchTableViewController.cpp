#include "SearchTableViewController.h"

#include "AppDelegate.h"
#include "FatalError.h"
#include "Fonts.h"
#include "Navigator.h"
#include "Selection.h"

#include <numeric>

using namespace Qt::StringLiterals;

SearchTableViewController::SearchTableViewController(QObject *parent)
    : QObject(parent)
    , m_rows(this)
    , m_sequence([this](const PoemPrayer &page) { selectPage(page); }, this)
{
}

QStringList SearchTableViewController::segmentTitles() const
{
    return {u"Dates"_s, u"Poems/Prayers"_s};
}

QString SearchTableViewController::placeholder() const
{
    return m_segmentIndex == 0 ? u"Search for Dates"_s : u"Search for Poem/Prayer"_s;
}

QString SearchTableViewController::matchCountText() const
{
    if (m_searchText.isEmpty())
        return {};
    const int count = m_rows.rowCount();
    if (count == 0)
        return tr("No pages match");
    return count == 1 ? tr("1 page matches") : tr("%1 pages match").arg(count);
}

void SearchTableViewController::viewDidLoad()
{
    m_appearance.drawWallpaper();
    m_appearance.read();
    fetch();
}

void SearchTableViewController::viewWillAppear()
{
    // The texts may have been saved elsewhere in the meantime.
    lowerFields();
    const QList<PoemPrayer *> &shown = m_searchText.isEmpty() ? m_PoemList : m_FilteredPoemList;
    m_rows.setPages(shown);
}

void SearchTableViewController::segmentedControlAction(int index)
{
    if (index != m_segmentIndex) {
        m_segmentIndex = index;
        Q_EMIT segmentIndexChanged();
    }
    // The rows shown stay those of the last filter until the text is edited again.
    fetch();
}

void SearchTableViewController::setSearchText(const QString &text)
{
    if (text == m_searchText)
        return;
    m_searchText = text;
    Q_EMIT searchTextChanged();
    filter();
}

void SearchTableViewController::fetch()
{
    FetchRequest request = PoemPrayer::fetchRequest();
    request.predicate = Predicate::disjunction({Predicate::equals(u"ampm"_s, u"AM"_s),
                                                Predicate::equals(u"ampm"_s, u"PM"_s)});
    request.sortDescriptors = {{u"month"_s}, {u"day"_s}};
    m_PoemList = AppDelegate::shared().viewContext().fetch<PoemPrayer>(request);
    if (!m_PoemList.isEmpty())
        Fonts::requireKnown(m_appearance.ListFontName());
    lowerFields();
    reload();
}

void SearchTableViewController::lowerFields()
{
    m_filteredNeedle.reset(); // the last result no longer narrows
    m_loweredFields.clear();
    m_loweredFields.reserve(m_PoemList.size());
    for (const PoemPrayer *page : std::as_const(m_PoemList)) {
        const auto field = m_segmentIndex == 0 ? page->dt() : page->poemprayer();
        m_loweredFields.append(field ? std::optional(field->toLower()) : std::nullopt);
    }
}

void SearchTableViewController::filter()
{
    const QString needle = m_searchText.toLower();
    QList<qsizetype> candidates(m_PoemList.size());
    std::iota(candidates.begin(), candidates.end(), 0);
    if (needle.isEmpty()) {
        m_FilteredPoemList = m_PoemList;
        m_filteredIndices = candidates;
        m_filteredNeedle = needle;
        reload();
        return;
    }
    // Text that only grows the last search narrows its result: a page holding the new text
    // holds the old one too. Anything else searches every page again.
    if (m_filteredNeedle && needle.contains(*m_filteredNeedle))
        candidates = m_filteredIndices;
    m_FilteredPoemList.clear();
    m_FilteredPoemList.reserve(candidates.size());
    m_filteredIndices.clear();
    m_filteredIndices.reserve(candidates.size());
    for (const qsizetype i : std::as_const(candidates)) {
        const std::optional<QString> &field = std::as_const(m_loweredFields)[i];
        if (!field)
            fatalError(u"Fatal error: page %1 has nothing to search in"_s.arg(m_PoemList.at(i)->pagenum()));
        if (field->contains(needle)) {
            m_FilteredPoemList.append(m_PoemList.at(i));
            m_filteredIndices.append(i);
        }
    }
    m_filteredNeedle = needle;
    reload();
}

void SearchTableViewController::reload()
{
    m_rows.updatePages(m_searchText.isEmpty() ? m_PoemList : m_FilteredPoemList);
    Q_EMIT rowsChanged();
}

void SearchTableViewController::didSelectRowAt(int row)
{
    if (m_sequence.choose(m_searchText.isEmpty() ? m_PoemList : m_FilteredPoemList, row))
        Navigator::shared().performSegue(u"SearchPoemSegue"_s);
}

void SearchTableViewController::selectPage(const PoemPrayer &page) const
{
    const bool searching = !m_searchText.isEmpty();
    Selection &selection = Selection::shared();
    selection.setSelectedSearchText(m_searchText);
    selection.setSelectedPoemPrayer(page.poemprayer().value_or(QString()));
    selection.setSelectedDt(page.dt().value_or(QString()));
    if (const auto ampm = page.ampm(); ampm && !ampm->isEmpty())
        selection.setSelectedAmpm(*ampm);
    selection.setSelectedMonth(page.month());
    selection.setSelectedDay(page.day());
    selection.setSelectedPagenum(page.pagenum());
    // A mark neither "T" nor "F" reads as "F" on the whole list but as none on a filtered one.
    const QString favorite = page.favorite().value_or(QString());
    if (favorite == u"T"_s)
        selection.setSelectedFavorite(u"T"_s);
    else
        selection.setSelectedFavorite(!searching || favorite == u"F"_s ? u"F"_s : QString());
}
