#include "PoemPrayerListModel.h"

#include "FatalError.h"

using namespace Qt::StringLiterals;

void PoemPrayerListModel::setPages(const QList<PoemPrayer *> &pages)
{
    // The same rows again (back from the reader): refresh them in place, so the list keeps
    // its scroll position.
    if (pages == m_pages) {
        if (!m_pages.isEmpty())
            Q_EMIT dataChanged(index(0), index(int(m_pages.size()) - 1));
        return;
    }
    beginResetModel();
    m_pages = pages;
    endResetModel();
}

void PoemPrayerListModel::updatePages(const QList<PoemPrayer *> &pages)
{
    // Rows [0, row) already equal pages [0, next). A row that differs is looked for a little
    // further on in both lists at once, so a narrowed or widened list costs one pass.
    const QList<PoemPrayer *> &rows = std::as_const(m_pages);
    qsizetype row = 0;
    qsizetype next = 0;
    while (next < pages.size() && row < m_pages.size()) {
        if (rows[row] == pages[next]) {
            ++row;
            ++next;
            continue;
        }
        qsizetype distance = 1;
        for (;; ++distance) {
            const bool oldEnds = row + distance >= m_pages.size();
            const bool newEnds = next + distance >= pages.size();
            if (oldEnds && newEnds) {
                setPages(pages); // the two lists share no order: replace the rows
                return;
            }
            if (!oldEnds && rows[row + distance] == pages[next]) {
                removeRun(int(row), int(distance));
                break;
            }
            if (!newEnds && pages[next + distance] == rows[row]) {
                insertRun(int(row), pages.mid(next, distance));
                row += distance;
                next += distance;
                break;
            }
        }
    }
    if (row < m_pages.size())
        removeRun(int(row), int(m_pages.size() - row));
    if (next < pages.size())
        insertRun(int(row), pages.mid(next));
}

void PoemPrayerListModel::removeRun(int row, int count)
{
    beginRemoveRows({}, row, row + count - 1);
    m_pages.remove(row, count);
    endRemoveRows();
}

void PoemPrayerListModel::insertRun(int row, const QList<PoemPrayer *> &pages)
{
    beginInsertRows({}, row, row + int(pages.size()) - 1);
    m_pages.insert(row, pages.size(), nullptr);
    std::copy(pages.cbegin(), pages.cend(), m_pages.begin() + row);
    endInsertRows();
}

void PoemPrayerListModel::refreshRow(int row)
{
    if (row >= 0 && row < m_pages.size())
        Q_EMIT dataChanged(index(row), index(row));
}

int PoemPrayerListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_pages.size());
}

QString PoemPrayerListModel::pageLabel(const PoemPrayer &page)
{
    // Both labels are 23 characters before the number, so the numbers line up.
    const QString number = QString::number(page.pagenum());
    if (page.ampm() == u"AM"_s)
        return u"Good Morning:   Page#  "_s + number;
    if (page.ampm() == u"PM"_s)
        return u"  Good Night:   Page#  "_s + number;
    return u"Blank"_s;
}

QString PoemPrayerListModel::dateLabel(const PoemPrayer &page)
{
    if (!page.dt())
        fatalError(u"Fatal error: page %1 has no date text"_s.arg(page.pagenum()));
    return *page.dt();
}

QVariant PoemPrayerListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const PoemPrayer &page = *m_pages[index.row()];
    switch (role) {
    case DateLabelRole: return dateLabel(page);
    case PageLabelRole: return pageLabel(page);
    case FavoriteCheckedRole: return page.favorite() == u"T"_s;
    default: return {};
    }
}

QHash<int, QByteArray> PoemPrayerListModel::roleNames() const
{
    return {{DateLabelRole, "dateText"}, {PageLabelRole, "pageText"}, {FavoriteCheckedRole, "favoriteChecked"}};
}
