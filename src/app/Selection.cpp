#include "Selection.h"

Selection &Selection::shared()
{
    static Selection *selection = new Selection;
    return *selection;
}

Selection *Selection::create(QQmlEngine *, QJSEngine *)
{
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    return &shared();
}

void Selection::clear()
{
    m_selectedList = decltype(m_selectedList)();
    m_selectedPoemPrayer = decltype(m_selectedPoemPrayer)();
    m_selectedDt = decltype(m_selectedDt)();
    m_selectedAmpm = decltype(m_selectedAmpm)();
    m_selectedMonth = decltype(m_selectedMonth)();
    m_selectedDay = decltype(m_selectedDay)();
    m_selectedPagenum = decltype(m_selectedPagenum)();
    m_selectedFavorite = decltype(m_selectedFavorite)();
    m_selectedSearchText = decltype(m_selectedSearchText)();
    m_selectedSpecialPoem = decltype(m_selectedSpecialPoem)();
    m_selectedSpecialDayName = decltype(m_selectedSpecialDayName)();
    m_selectedSpecialAmpm = decltype(m_selectedSpecialAmpm)();
    m_selectedAboutName = decltype(m_selectedAboutName)();
    m_selectedAboutText = decltype(m_selectedAboutText)();
    m_editNoteSubject = decltype(m_editNoteSubject)();
    m_editNoteText = decltype(m_editNoteText)();
    m_editNoteDate = decltype(m_editNoteDate)();
    m_editNoteDtstring = decltype(m_editNoteDtstring)();
    m_editNoteYear = decltype(m_editNoteYear)();
    m_editNoteMonth = decltype(m_editNoteMonth)();
    m_editNoteDay = decltype(m_editNoteDay)();
    m_editNoteChosen = decltype(m_editNoteChosen)();
    Q_EMIT changed();
}
