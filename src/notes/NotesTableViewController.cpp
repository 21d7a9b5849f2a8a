#include "NotesTableViewController.h"

#include "AppDelegate.h"
#include "Log.h"
#include "Navigator.h"
#include "Selection.h"

using namespace Qt::StringLiterals;

namespace {
// The sort key and the searched field of each segment.
const QString sortKeys[] = {u"subject"_s, u"dt"_s, u"notes"_s};
const QString searchKeys[] = {u"subject"_s, u"dtstring"_s, u"notes"_s};

void saveOrLog(ManagedObjectContext &context)
{
    if (const auto error = context.save())
        Log::line(error->unresolvedMessage());
}
}

NotesTableViewController::NotesTableViewController(QObject *parent)
    : QObject(parent)
    , m_rows(this)
{
}

QStringList NotesTableViewController::segmentTitles() const
{
    return {u"Subject"_s, u"Date"_s, u"Notes"_s};
}

QString NotesTableViewController::placeholder() const
{
    static const QString placeholders[] = {u"Search Notes by Subject"_s, u"Search Notes by Date"_s,
                                           u"Search Notes by Note"_s};
    return placeholders[m_segmentIndex];
}

void NotesTableViewController::viewWillAppear()
{
    // Nothing is chosen while the list shows: "+" opens the editor empty.
    Selection &selection = Selection::shared();
    selection.setEditNoteSubject(QString());
    selection.setEditNoteText(QString());
    selection.setEditNoteDtstring(QString());
    selection.setEditNoteMonth(0);
    selection.setEditNoteDay(0);
    selection.setEditNoteDate(QDateTime());
    selection.setEditNoteChosen(false);
    fetch();
}

void NotesTableViewController::unwindToNotesSegue()
{
    fetch();
}

void NotesTableViewController::segmentedControlAction(int index)
{
    if (index < 0 || index >= 3)
        return;
    if (index != m_segmentIndex) {
        m_segmentIndex = index;
        Q_EMIT segmentIndexChanged();
    }
    // The search text stays; its matches are worked out again only when it changes.
    fetch();
}

void NotesTableViewController::updateSearchResults(const QString &text)
{
    if (text != m_searchText) {
        m_searchText = text;
        Q_EMIT searchTextChanged();
    }
    filter();
    reloadData();
}

void NotesTableViewController::fetch()
{
    FetchRequest request = Notes::fetchRequest();
    request.sortDescriptors = {{sortKeys[m_segmentIndex], false}};
    m_NotesList = AppDelegate::shared().viewContext().fetch<Notes>(request); // a failed fetch lists nothing
    m_loweredSearchField.clear();
    m_matchedText.clear();
    reloadData();
}

void NotesTableViewController::filter()
{
    if (m_searchText.isEmpty()) {
        m_FilteredNotesList = m_NotesList;
        m_matchedText.clear();
        return;
    }
    // The searched field is lowered once a fetch, at the first keystroke, not at every one.
    if (m_loweredSearchField.isEmpty()) {
        m_loweredSearchField.reserve(m_NotesList.size());
        for (const Notes *note : std::as_const(m_NotesList))
            m_loweredSearchField.append(note->valueForKey(searchKeys[m_segmentIndex]).toString().toLower());
    }
    const QString wanted = m_searchText.toLower();
    // Typing on only narrows: a field holding the new text holds the last one, so only the
    // last matches need a look.
    QList<qsizetype> rows;
    if (!m_matchedText.isEmpty() && wanted.contains(m_matchedText)) {
        for (const qsizetype row : std::as_const(m_matchedRows)) {
            if (m_loweredSearchField.at(row).contains(wanted))
                rows.append(row);
        }
    } else {
        for (qsizetype row = 0; row < m_loweredSearchField.size(); ++row) {
            if (m_loweredSearchField.at(row).contains(wanted))
                rows.append(row);
        }
    }
    m_matchedText = wanted;
    m_matchedRows = rows;
    m_FilteredNotesList.clear();
    m_FilteredNotesList.reserve(rows.size());
    for (const qsizetype row : std::as_const(rows))
        m_FilteredNotesList.append(m_NotesList.at(row));
}

void NotesTableViewController::didSelectRowAt(int row)
{
    const Notes *note = listInUse().value(row);
    if (!note)
        return;
    Selection &selection = Selection::shared();
    if (note->subject())
        selection.setEditNoteSubject(*note->subject());
    if (note->notes() && !note->notes()->isEmpty())
        selection.setEditNoteText(*note->notes());
    if (note->dt())
        selection.setEditNoteDate(*note->dt());
    if (note->dtstring())
        selection.setEditNoteDtstring(*note->dtstring());
    selection.setEditNoteMonth(note->month());
    selection.setEditNoteDay(note->day());
    selection.setEditNoteYear(note->year());
    selection.setEditNoteChosen(true);
    Navigator::shared().performSegue(u"EditNotesSegue"_s);
}

void NotesTableViewController::AddButtonClicked()
{
    Navigator::shared().performSegue(u"EditNotesSegue"_s);
}

void NotesTableViewController::deleteRow(int row)
{
    QList<Notes *> &list = listInUse();
    Notes *note = list.value(row);
    if (!note)
        return;
    m_deletedNote.clear();
    for (const AttributeDescription &attribute : note->entity().attributes)
        m_deletedNote.insert(attribute.name, note->valueForKey(attribute.name));
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    context.deleteObject(note);
    saveOrLog(context);
    // Only the list in use loses the row; the other keeps it until the next fetch.
    list.removeAt(row);
    if (&list == &m_NotesList && row < m_loweredSearchField.size())
        m_loweredSearchField.removeAt(row);
    m_rows.removeNote(row);
    Q_EMIT canUndoDeleteChanged();
}

void NotesTableViewController::undoDelete()
{
    if (m_deletedNote.isEmpty())
        return;
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    Notes *note = context.insertNewObject<Notes>();
    for (auto it = m_deletedNote.cbegin(); it != m_deletedNote.cend(); ++it)
        note->setValueForKey(it.key(), it.value());
    saveOrLog(context);
    forgetDeletedNote();
    fetch();
    if (!m_searchText.isEmpty()) {
        filter();
        reloadData();
    }
}

void NotesTableViewController::forgetDeletedNote()
{
    if (m_deletedNote.isEmpty())
        return;
    m_deletedNote.clear();
    Q_EMIT canUndoDeleteChanged();
}
