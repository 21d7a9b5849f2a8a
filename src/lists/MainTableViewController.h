#pragma once

#include "Appearance.h"
#include "PageSequence.h"
#include "PoemPrayerListModel.h"

#include <QObject>
#include <QQmlEngine>

Q_MOC_INCLUDE("PoemPrayerListModel.h")

// Lists the pages of the book in one of five views — today, all, morning, night, favourites —
// and hands the chosen page to the reader.
class MainTableViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int segmentIndex READ segmentIndex WRITE setSegmentIndex NOTIFY segmentIndexChanged)
    Q_PROPERTY(QStringList segmentTitles READ segmentTitles CONSTANT)
    Q_PROPERTY(PoemPrayerListModel *PoemList READ PoemList CONSTANT)
    Q_PROPERTY(ListAppearance *appearance READ appearance CONSTANT)

public:
    explicit MainTableViewController(QObject *parent = nullptr);

    int segmentIndex() const { return m_segmentIndex; }
    void setSegmentIndex(int index);
    QStringList segmentTitles() const;
    PoemPrayerListModel *PoemList() { return &m_PoemList; }
    ListAppearance *appearance() { return &m_appearance; }

    Q_INVOKABLE void viewDidLoad();
    Q_INVOKABLE void viewWillAppear();
    // The segmented control changed.
    Q_INVOKABLE void segmentedControlAction(int index);
    // The reader came back.
    Q_INVOKABLE void unwindSegue() {}
    Q_INVOKABLE void didSelectRowAt(int row);
    // The row of the page a reader opened from this list shows now (it may have turned to
    // another); -1 when that page is not listed.
    Q_INVOKABLE int openRow() const;
    // Switches to "All" and gives the row of the morning page of that day; -1 when there is none.
    Q_INVOKABLE int goToDate(int month, int day);
    // Today at noon, where the date picker starts.
    Q_INVOKABLE QDateTime today() const;
    // The row's favourite box was ticked or cleared (0 unchecked, 1 checked): the page is saved
    // with its new mark at once.
    Q_INVOKABLE void FavoriteCheckBoxChanged(int row, int checkState);

    // The selection a chosen row sets, whether chosen here, turned to, or opened from a reminder.
    static void selectPage(const PoemPrayer &page);

Q_SIGNALS:
    void segmentIndexChanged();

private:
    void fetch(); // the one place that decides which pages are shown

    PoemPrayerListModel m_PoemList;
    PageSequence m_sequence;
    ListAppearance m_appearance;
    int m_segmentIndex = 0;
};
