#pragma once

#include "NotesListModel.h"

#include <QObject>
#include <QQmlEngine>
#include <QVariantHash>

Q_MOC_INCLUDE("NotesListModel.h")

// The reader's own notes in one list: a segment picks the sort key and the field the search
// looks in, a swipe deletes a note (with a short chance to undo), a row or "+" opens the editor.
class NotesTableViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int segmentIndex READ segmentIndex NOTIFY segmentIndexChanged)
    Q_PROPERTY(QStringList segmentTitles READ segmentTitles CONSTANT)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY segmentIndexChanged)
    Q_PROPERTY(QString searchText READ searchText NOTIFY searchTextChanged)
    // The rows shown: the whole list, or the search's matches while there is search text.
    Q_PROPERTY(NotesListModel *rows READ rows CONSTANT)
    Q_PROPERTY(bool canUndoDelete READ canUndoDelete NOTIFY canUndoDeleteChanged)

public:
    explicit NotesTableViewController(QObject *parent = nullptr);

    int segmentIndex() const { return m_segmentIndex; }
    QStringList segmentTitles() const;
    QString placeholder() const;
    QString searchText() const { return m_searchText; }
    NotesListModel *rows() { return &m_rows; }
    bool canUndoDelete() const { return !m_deletedNote.isEmpty(); }
    const QList<Notes *> &NotesList() const { return m_NotesList; }
    const QList<Notes *> &FilteredNotesList() const { return m_FilteredNotesList; }

    Q_INVOKABLE void viewWillAppear();
    Q_INVOKABLE void unwindToNotesSegue();
    Q_INVOKABLE void segmentedControlAction(int index);
    Q_INVOKABLE void updateSearchResults(const QString &text);
    Q_INVOKABLE void didSelectRowAt(int row);
    // The row's "delete" action: gone from the store and the list at once.
    Q_INVOKABLE void deleteRow(int row);
    // Puts the last deleted note back, every field as it was.
    Q_INVOKABLE void undoDelete();
    Q_INVOKABLE void forgetDeletedNote();
    Q_INVOKABLE void AddButtonClicked();

Q_SIGNALS:
    void segmentIndexChanged();
    void searchTextChanged();
    void canUndoDeleteChanged();

private:
    void fetch();
    void filter();
    QList<Notes *> &listInUse() { return m_searchText.isEmpty() ? m_NotesList : m_FilteredNotesList; }
    void reloadData() { m_rows.setNotes(listInUse()); }

    QList<Notes *> m_NotesList;
    QList<Notes *> m_FilteredNotesList;
    QStringList m_loweredSearchField; // the segment's field of each fetched note, row by row
    // The last search, lowered, and the rows of the fetched list it matched.
    QString m_matchedText;
    QList<qsizetype> m_matchedRows;
    NotesListModel m_rows;
    int m_segmentIndex = 0;
    QString m_searchText;
    QVariantHash m_deletedNote; // attribute -> value of the note an undo would restore
};
