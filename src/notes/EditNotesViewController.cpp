#include "EditNotesViewController.h"

#include "Alerts.h"
#include "AppDelegate.h"
#include "Clock.h"
#include "Entities.h"
#include "Log.h"
#include "Navigator.h"
#include "Selection.h"

#include <QLocale>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {
// Empty text is stored as empty, never as unset: the lookup of a note compares with "".
QString stored(const QString &text)
{
    return text.isNull() ? u""_s : text;
}
}

EditNotesViewController::EditNotesViewController(QObject *parent)
    : QObject(parent)
    , m_datePickerView(Clock::now())
    , m_NoteDate(m_datePickerView)
{
}

QString EditNotesViewController::fullDate(const QDateTime &date)
{
    return QLocale().toString(date.date(), QLocale::LongFormat);
}

QStringList EditNotesViewController::segmentTitles() const
{
    return {u"Left"_s, u"Center"_s, u"Right"_s};
}

int EditNotesViewController::alignment() const
{
    static const Qt::Alignment alignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    return int(alignments[m_segmentIndex]);
}

void EditNotesViewController::setSubjectTextField(const QString &text)
{
    if (text == m_SubjectTextField)
        return;
    m_SubjectTextField = text;
    Q_EMIT textChanged();
}

void EditNotesViewController::setNotesTextView(const QString &text)
{
    if (text == m_NotesTextView)
        return;
    m_NotesTextView = text;
    Q_EMIT textChanged();
}

bool EditNotesViewController::hasChanges() const
{
    return QStringList{m_SubjectTextField, m_NotesTextView, m_DateTextField} != m_loadedTexts;
}

void EditNotesViewController::viewDidLoad()
{
    const Selection &selection = Selection::shared();
    m_SubjectTextField = selection.editNoteSubject();
    m_NotesTextView = selection.editNoteText();
    if (selection.editNoteDate().isValid()) {
        m_datePickerView = selection.editNoteDate();
        m_NoteDate = m_datePickerView;
        Q_EMIT datePickerViewChanged();
    }
    m_DateTextField = fullDate(m_datePickerView);
    m_loadedTexts = {m_SubjectTextField, m_NotesTextView, m_DateTextField};
    Q_EMIT textChanged();
}

void EditNotesViewController::DateEntered()
{
    if (Selection::shared().editNoteDtstring().isEmpty())
        m_DateTextField = fullDate(m_datePickerView);
    m_NoteDate = m_datePickerView;
    Q_EMIT textChanged();
}

void EditNotesViewController::dateChanged(int year, int month, int day)
{
    const QDate date(year, month, day);
    if (date.isValid() && date != m_datePickerView.date()) {
        m_datePickerView.setDate(date);
        Q_EMIT datePickerViewChanged();
    }
    m_DateTextField = fullDate(m_datePickerView);
    m_NoteDate = m_datePickerView;
    Q_EMIT textChanged();
}

void EditNotesViewController::doneClick(int year, int month, int day)
{
    dateChanged(year, month, day);
    Q_EMIT endEditingRequested();
}

void EditNotesViewController::todayClick()
{
    // Today's text, but the picker's date: the picker is not moved.
    m_DateTextField = fullDate(Clock::now());
    m_NoteDate = m_datePickerView;
    Q_EMIT textChanged();
    Q_EMIT endEditingRequested();
}

void EditNotesViewController::segmentedControlAction(int index)
{
    if (index < 0 || index >= 3 || index == m_segmentIndex)
        return;
    m_segmentIndex = index;
    Q_EMIT segmentIndexChanged();
}

void EditNotesViewController::SaveButtonClicked()
{
    save();
    Navigator::shared().unwind(u"unwindToNotesSegue"_s);
}

void EditNotesViewController::save()
{
    const Selection &selection = Selection::shared();
    FetchRequest request = Notes::fetchRequest();
    request.predicate = Predicate::conjunction({
        Predicate::equals(u"month"_s, QString::number(selection.editNoteMonth())),
        Predicate::equals(u"day"_s, QString::number(selection.editNoteDay())),
        Predicate::equals(u"ampm"_s, stored(selection.selectedAmpm())),
        Predicate::equals(u"year"_s, QString::number(selection.editNoteYear())),
        Predicate::equals(u"subject"_s, stored(selection.editNoteSubject())),
    });
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    // A new note is never looked up: before a page is opened it would find, and overwrite, an
    // earlier new note without a subject (both of day 0 of month 0).
    const QList<Notes *> Results = selection.editNoteChosen() ? context.fetch<Notes>(request) : QList<Notes *>();

    if (Results.isEmpty()) {
        // A new note: the page's day and time of day, no year or date until it is edited.
        Notes *note = context.insertNewObject<Notes>();
        note->setMonth(selection.selectedMonth());
        note->setDay(selection.selectedDay());
        note->setNotes(stored(m_NotesTextView));
        note->setAmpm(stored(selection.selectedAmpm()));
        note->setSubject(stored(m_SubjectTextField));
        if (const auto error = context.save())
            reportFailedSave(note, error->unresolvedMessage());
        return;
    }
    if (Results.size() == 1) {
        Notes *note = Results.first();
        const QDate date = m_NoteDate.date();
        const QVariantHash values{
            {u"notes"_s, stored(m_NotesTextView)}, {u"year"_s, date.year()}, {u"month"_s, date.month()},
            {u"day"_s, date.day()}, {u"ampm"_s, stored(selection.selectedAmpm())},
            {u"subject"_s, stored(m_SubjectTextField)}, {u"dt"_s, m_NoteDate}, {u"dtstring"_s, m_DateTextField},
        };
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            note->setValueForKey(it.key(), it.value());
        if (const auto error = note->managedObjectContext()->save())
            reportFailedSave(note, error->unresolvedMessage());
    }
    // Two or more matches: which one is meant cannot be told, so nothing is written.
}

void EditNotesViewController::reportFailedSave(Notes *note, const QString &description)
{
    // Logged only, as every failed save is, and the editor still returns to the list. The note is
    // not left pending for a later save to try again: the list shows it as it is kept.
    note->managedObjectContext()->discardChanges(note);
    Log::line(description);
}

void EditNotesViewController::BackButtonClicked()
{
    if (!hasChanges()) {
        Q_EMIT dismissRequested();
        return;
    }
    QPointer<EditNotesViewController> self(this);
    Alerts::shared().present({tr("Discard changes?"),
                              tr("What you typed in this note will be lost."),
                              {tr("Discard"), tr("Keep Editing")},
                              [self](int button) {
                                  if (self && button == 0)
                                      Q_EMIT self->dismissRequested();
                              },
                              1});
}
