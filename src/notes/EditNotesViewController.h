#pragma once

#include <QDateTime>
#include <QObject>
#include <QQmlEngine>

class Notes;

// Writes one note: its subject, its text and its date. Opens empty for a new note or filled with
// the note chosen in the list; a note also takes the month, day and time of day of the page
// last opened.
class EditNotesViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString SubjectTextField READ SubjectTextField WRITE setSubjectTextField NOTIFY textChanged)
    Q_PROPERTY(QString NotesTextView READ NotesTextView WRITE setNotesTextView NOTIFY textChanged)
    Q_PROPERTY(QString DateTextField READ DateTextField NOTIFY textChanged)
    // The date picker's date; turning it changes the day and keeps the time of day.
    Q_PROPERTY(QDateTime datePickerView READ datePickerView NOTIFY datePickerViewChanged)
    Q_PROPERTY(QStringList segmentTitles READ segmentTitles CONSTANT)
    Q_PROPERTY(int segmentIndex READ segmentIndex NOTIFY segmentIndexChanged)
    Q_PROPERTY(int alignment READ alignment NOTIFY segmentIndexChanged)
    // Whether leaving now would lose typed text.
    Q_PROPERTY(bool hasChanges READ hasChanges NOTIFY textChanged)

public:
    explicit EditNotesViewController(QObject *parent = nullptr);

    QString SubjectTextField() const { return m_SubjectTextField; }
    void setSubjectTextField(const QString &text);
    QString NotesTextView() const { return m_NotesTextView; }
    void setNotesTextView(const QString &text);
    QString DateTextField() const { return m_DateTextField; }
    QDateTime datePickerView() const { return m_datePickerView; }
    QDateTime NoteDate() const { return m_NoteDate; }
    QStringList segmentTitles() const;
    int segmentIndex() const { return m_segmentIndex; }
    int alignment() const;
    bool hasChanges() const;

    // The locale's full date: weekday, month name, day and year.
    static QString fullDate(const QDateTime &date);

    Q_INVOKABLE void viewDidLoad();
    // The date field is being edited: the picker opens.
    Q_INVOKABLE void DateEntered();
    // The picker was turned to this day (month 1..12).
    Q_INVOKABLE void dateChanged(int year, int month, int day);
    Q_INVOKABLE void doneClick(int year, int month, int day);
    Q_INVOKABLE void todayClick();
    Q_INVOKABLE void segmentedControlAction(int index);
    Q_INVOKABLE void SaveButtonClicked();
    Q_INVOKABLE void BackButtonClicked();

Q_SIGNALS:
    void textChanged();
    void datePickerViewChanged();
    void segmentIndexChanged();
    // Close the keyboard or the picker.
    void endEditingRequested();
    // Leave without saving.
    void dismissRequested();

private:
    void save();
    void reportFailedSave(Notes *note, const QString &description);

    QString m_SubjectTextField;
    QString m_NotesTextView;
    QString m_DateTextField;
    QDateTime m_datePickerView;
    QDateTime m_NoteDate;
    int m_segmentIndex = 0;
    QStringList m_loadedTexts; // subject, text and date as loaded, to tell whether anything changed
};
