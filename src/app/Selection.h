#pragma once

#include <QDateTime>
#include <QObject>
#include <QQmlEngine>

// The app-wide selection: what the cover chose for the page list, the page chosen in a list
// (read by the readers and the note editor), the chosen special day, about article and note.
// One instance for the application, on the main thread; values last until overwritten.
class Selection : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString selectedList READ selectedList WRITE setSelectedList NOTIFY changed)
    Q_PROPERTY(QString selectedPoemPrayer READ selectedPoemPrayer WRITE setSelectedPoemPrayer NOTIFY changed)
    Q_PROPERTY(QString selectedDt READ selectedDt WRITE setSelectedDt NOTIFY changed)
    Q_PROPERTY(QString selectedAmpm READ selectedAmpm WRITE setSelectedAmpm NOTIFY changed)
    Q_PROPERTY(qint16 selectedMonth READ selectedMonth WRITE setSelectedMonth NOTIFY changed)
    Q_PROPERTY(qint16 selectedDay READ selectedDay WRITE setSelectedDay NOTIFY changed)
    Q_PROPERTY(qint16 selectedPagenum READ selectedPagenum WRITE setSelectedPagenum NOTIFY changed)
    Q_PROPERTY(QString selectedFavorite READ selectedFavorite WRITE setSelectedFavorite NOTIFY changed)
    Q_PROPERTY(QString selectedSearchText READ selectedSearchText WRITE setSelectedSearchText NOTIFY changed)
    Q_PROPERTY(QString selectedSpecialPoem READ selectedSpecialPoem WRITE setSelectedSpecialPoem NOTIFY changed)
    Q_PROPERTY(QString selectedSpecialDayName READ selectedSpecialDayName WRITE setSelectedSpecialDayName NOTIFY changed)
    Q_PROPERTY(QString selectedSpecialAmpm READ selectedSpecialAmpm WRITE setSelectedSpecialAmpm NOTIFY changed)
    Q_PROPERTY(QString selectedAboutName READ selectedAboutName WRITE setSelectedAboutName NOTIFY changed)
    Q_PROPERTY(QString selectedAboutText READ selectedAboutText WRITE setSelectedAboutText NOTIFY changed)
    Q_PROPERTY(QString editNoteSubject READ editNoteSubject WRITE setEditNoteSubject NOTIFY changed)
    Q_PROPERTY(QString editNoteText READ editNoteText WRITE setEditNoteText NOTIFY changed)
    Q_PROPERTY(QDateTime editNoteDate READ editNoteDate WRITE setEditNoteDate NOTIFY changed)
    Q_PROPERTY(QString editNoteDtstring READ editNoteDtstring WRITE setEditNoteDtstring NOTIFY changed)
    Q_PROPERTY(qint16 editNoteYear READ editNoteYear WRITE setEditNoteYear NOTIFY changed)
    Q_PROPERTY(qint16 editNoteMonth READ editNoteMonth WRITE setEditNoteMonth NOTIFY changed)
    Q_PROPERTY(qint16 editNoteDay READ editNoteDay WRITE setEditNoteDay NOTIFY changed)

public:
    static Selection &shared();
    static Selection *create(QQmlEngine *, QJSEngine *);

    QString selectedList() const { return m_selectedList; }
    void setSelectedList(const QString &value) { assign(m_selectedList, value); }
    QString selectedPoemPrayer() const { return m_selectedPoemPrayer; }
    void setSelectedPoemPrayer(const QString &value) { assign(m_selectedPoemPrayer, value); }
    QString selectedDt() const { return m_selectedDt; }
    void setSelectedDt(const QString &value) { assign(m_selectedDt, value); }
    QString selectedAmpm() const { return m_selectedAmpm; }
    void setSelectedAmpm(const QString &value) { assign(m_selectedAmpm, value); }
    qint16 selectedMonth() const { return m_selectedMonth; }
    void setSelectedMonth(qint16 value) { assign(m_selectedMonth, value); }
    qint16 selectedDay() const { return m_selectedDay; }
    void setSelectedDay(qint16 value) { assign(m_selectedDay, value); }
    qint16 selectedPagenum() const { return m_selectedPagenum; }
    void setSelectedPagenum(qint16 value) { assign(m_selectedPagenum, value); }
    QString selectedFavorite() const { return m_selectedFavorite; }
    void setSelectedFavorite(const QString &value) { assign(m_selectedFavorite, value); }
    QString selectedSearchText() const { return m_selectedSearchText; }
    void setSelectedSearchText(const QString &value) { assign(m_selectedSearchText, value); }
    QString selectedSpecialPoem() const { return m_selectedSpecialPoem; }
    void setSelectedSpecialPoem(const QString &value) { assign(m_selectedSpecialPoem, value); }
    QString selectedSpecialDayName() const { return m_selectedSpecialDayName; }
    void setSelectedSpecialDayName(const QString &value) { assign(m_selectedSpecialDayName, value); }
    QString selectedSpecialAmpm() const { return m_selectedSpecialAmpm; }
    void setSelectedSpecialAmpm(const QString &value) { assign(m_selectedSpecialAmpm, value); }
    QString selectedAboutName() const { return m_selectedAboutName; }
    void setSelectedAboutName(const QString &value) { assign(m_selectedAboutName, value); }
    QString selectedAboutText() const { return m_selectedAboutText; }
    void setSelectedAboutText(const QString &value) { assign(m_selectedAboutText, value); }
    QString editNoteSubject() const { return m_editNoteSubject; }
    void setEditNoteSubject(const QString &value) { assign(m_editNoteSubject, value); }
    QString editNoteText() const { return m_editNoteText; }
    void setEditNoteText(const QString &value) { assign(m_editNoteText, value); }
    QDateTime editNoteDate() const { return m_editNoteDate; }
    void setEditNoteDate(const QDateTime &value) { assign(m_editNoteDate, value); }
    QString editNoteDtstring() const { return m_editNoteDtstring; }
    void setEditNoteDtstring(const QString &value) { assign(m_editNoteDtstring, value); }
    qint16 editNoteYear() const { return m_editNoteYear; }
    void setEditNoteYear(qint16 value) { assign(m_editNoteYear, value); }
    qint16 editNoteMonth() const { return m_editNoteMonth; }
    void setEditNoteMonth(qint16 value) { assign(m_editNoteMonth, value); }
    qint16 editNoteDay() const { return m_editNoteDay; }
    void setEditNoteDay(qint16 value) { assign(m_editNoteDay, value); }
    // Whether the editor opens on a note tapped in the list, rather than for a new one.
    bool editNoteChosen() const { return m_editNoteChosen; }
    void setEditNoteChosen(bool value) { assign(m_editNoteChosen, value); }

    // Back to the values of a fresh start.
    void clear();

Q_SIGNALS:
    void changed();

private:
    explicit Selection(QObject *parent = nullptr) : QObject(parent) {}
    template<typename T>
    void assign(T &field, const T &value)
    {
        if (field == value)
            return;
        field = value;
        Q_EMIT changed();
    }

    QString m_selectedList{};
    QString m_selectedPoemPrayer{};
    QString m_selectedDt{};
    QString m_selectedAmpm{};
    qint16 m_selectedMonth{};
    qint16 m_selectedDay{};
    qint16 m_selectedPagenum{};
    QString m_selectedFavorite{};
    QString m_selectedSearchText{};
    QString m_selectedSpecialPoem{};
    QString m_selectedSpecialDayName{};
    QString m_selectedSpecialAmpm{};
    QString m_selectedAboutName{};
    QString m_selectedAboutText{};
    QString m_editNoteSubject{};
    QString m_editNoteText{};
    QDateTime m_editNoteDate{};
    QString m_editNoteDtstring{};
    qint16 m_editNoteYear{};
    qint16 m_editNoteMonth{};
    qint16 m_editNoteDay{};
    bool m_editNoteChosen{};
};
