#pragma once

#include "Entities.h"

#include <QAbstractListModel>
#include <QQmlEngine>

// The pages a list shows, with the texts of their cells: the date, the "Good Morning"/"Good Night"
// page label with its number, and whether the favourite box is ticked.
class PoemPrayerListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A list screen owns its rows")

public:
    enum Role { DateLabelRole = Qt::UserRole + 1, PageLabelRole, FavoriteCheckedRole };

    using QAbstractListModel::QAbstractListModel;

    void setPages(const QList<PoemPrayer *> &pages);
    // Moves to `pages` by removing and inserting runs of rows, so the rows that stay keep their
    // cells and the list its place. Meant for a list narrowed or widened in the same order;
    // lists without a common order are replaced whole.
    void updatePages(const QList<PoemPrayer *> &pages);
    const QList<PoemPrayer *> &pages() const { return m_pages; }
    // The row's page changed (its favourite mark, say).
    void refreshRow(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // "Good Morning:   Page#  12", "  Good Night:   Page#  12", or "Blank".
    static QString pageLabel(const PoemPrayer &page);
    // The page's date text; a page without one is a fatal stop.
    static QString dateLabel(const PoemPrayer &page);

private:
    void removeRun(int row, int count);
    // Inserts `pages` before `row`.
    void insertRun(int row, const QList<PoemPrayer *> &pages);

    QList<PoemPrayer *> m_pages;
};
