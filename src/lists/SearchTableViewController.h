#pragma once

#include "Appearance.h"
#include "PageSequence.h"
#include "PoemPrayerListModel.h"

#include <QObject>
#include <QQmlEngine>
#include <optional>

Q_MOC_INCLUDE("PoemPrayerListModel.h")

// Finds pages by their date text or by words of their text as the user types, and hands the
// chosen page, with the search text, to the search reader.
class SearchTableViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int segmentIndex READ segmentIndex NOTIFY segmentIndexChanged)
    Q_PROPERTY(QStringList segmentTitles READ segmentTitles CONSTANT)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY segmentIndexChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(QString matchCountText READ matchCountText NOTIFY rowsChanged)
    Q_PROPERTY(PoemPrayerListModel *rows READ rows CONSTANT)
    Q_PROPERTY(ListAppearance *appearance READ appearance CONSTANT)

public:
    explicit SearchTableViewController(QObject *parent = nullptr);

    int segmentIndex() const { return m_segmentIndex; }
    QStringList segmentTitles() const;
    // The search field's placeholder for the scope.
    QString placeholder() const;
    QString searchText() const { return m_searchText; }
    // The search text changed: the list is filtered again.
    void setSearchText(const QString &text);
    // "12 pages match", "1 page matches", "No pages match"; empty while nothing is searched.
    QString matchCountText() const;
    // The rows shown: every page while the search text is empty, else the filtered pages.
    PoemPrayerListModel *rows() { return &m_rows; }
    ListAppearance *appearance() { return &m_appearance; }
    const QList<PoemPrayer *> &PoemList() const { return m_PoemList; }
    const QList<PoemPrayer *> &FilteredPoemList() const { return m_FilteredPoemList; }

    Q_INVOKABLE void viewDidLoad();
    // Back on screen: the rows show their pages' current marks; nothing is fetched.
    Q_INVOKABLE void viewWillAppear();
    // The scope segment changed.
    Q_INVOKABLE void segmentedControlAction(int index);
    // The reader came back.
    Q_INVOKABLE void unwindSegue() {}
    Q_INVOKABLE void didSelectRowAt(int row);
    // The row of the page a reader opened from this list shows now (it may have turned to
    // another); -1 when that page is not listed.
    Q_INVOKABLE int openRow() const { return m_sequence.rowIn(m_rows.pages()); }

Q_SIGNALS:
    void segmentIndexChanged();
    void searchTextChanged();
    void rowsChanged();

private:
    void fetch();
    void filter();
    void reload();
    // The searched field of every page, lower-cased once per fetch rather than on every keystroke.
    void lowerFields();
    void selectPage(const PoemPrayer &page) const;

    PoemPrayerListModel m_rows;
    PageSequence m_sequence;
    ListAppearance m_appearance;
    QList<PoemPrayer *> m_PoemList;
    QList<PoemPrayer *> m_FilteredPoemList;
    QList<std::optional<QString>> m_loweredFields; // by the index of the page in m_PoemList
    // What the last filter searched for, while its result still describes m_PoemList, and
    // where its pages stand in m_PoemList.
    std::optional<QString> m_filteredNeedle;
    QList<qsizetype> m_filteredIndices;
    int m_segmentIndex = 0;
    QString m_searchText;
};
