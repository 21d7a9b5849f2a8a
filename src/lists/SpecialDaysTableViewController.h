#pragma once

#include "Appearance.h"
#include "SpecialDayListModel.h"

#include <QObject>
#include <QQmlEngine>

Q_MOC_INCLUDE("SpecialDayListModel.h")

// Lists the named special days, every morning poem before every night poem, and hands the
// chosen one to the special-day reader. Its first visit ever fills the table from the shipped
// special-day file.
class SpecialDaysTableViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(SpecialDayListModel *SpecialDayList READ SpecialDayList CONSTANT)
    Q_PROPERTY(ListAppearance *appearance READ appearance CONSTANT)

public:
    explicit SpecialDaysTableViewController(QObject *parent = nullptr);

    QString title() const;
    SpecialDayListModel *SpecialDayList() { return &m_SpecialDayList; }
    ListAppearance *appearance() { return &m_appearance; }

    Q_INVOKABLE void viewDidLoad();
    // The reader came back; the list stays as it was.
    Q_INVOKABLE void unwindToSpecialDaysSegue() {}
    Q_INVOKABLE void didSelectRowAt(int row);

private:
    void firstLoadCheck();
    void fetch();

    SpecialDayListModel m_SpecialDayList;
    ListAppearance m_appearance;
};
