#include "SpecialDaysTableViewController.h"

#include "AppDelegate.h"
#include "Fonts.h"
#include "Log.h"
#include "Navigator.h"
#include "PreferenceKeys.h"
#include "Selection.h"
#include "SpecialDaySeeding.h"

using namespace Qt::StringLiterals;

namespace {
// Special days are drawn at one size whatever the list size setting.
constexpr double specialDayFontSize = 17.0;
}

SpecialDaysTableViewController::SpecialDaysTableViewController(QObject *parent)
    : QObject(parent)
    , m_SpecialDayList(this)
{
}

QString SpecialDaysTableViewController::title() const
{
    return u"Special Days"_s;
}

void SpecialDaysTableViewController::viewDidLoad()
{
    m_appearance.drawWallpaper();
    firstLoadCheck();
    m_appearance.read();
    m_appearance.setListFontSize(specialDayFontSize);
    fetch();
}

void SpecialDaysTableViewController::firstLoadCheck()
{
    if (Preferences::boolForKey(PreferenceKeys::SpecialDayshasBeenLaunchedBeforeFlag)) {
        Log::line(u"Not First Launch"_s);
        return;
    }
    // Set before seeding: a seeding that stops part-way is not tried again on a later visit.
    Preferences::write(PreferenceKeys::SpecialDayshasBeenLaunchedBeforeFlag, true);
    Log::line(u"First Launch"_s);
    SpecialDaySeeding::seed();
}

void SpecialDaysTableViewController::fetch()
{
    FetchRequest request = SpecialDay::fetchRequest();
    request.sortDescriptors = {{u"ampm"_s}, {u"dayname"_s}};
    std::optional<StoreError> error; // a failed fetch shows an empty list
    const QList<SpecialDay *> days = AppDelegate::shared().viewContext().fetch<SpecialDay>(request, &error);
    if (!days.isEmpty()) {
        // The rows' font: a list font never chosen becomes "Arial" for good.
        if (!Preferences::stringIfPresent(PreferenceKeys::ListFontName))
            Preferences::write(PreferenceKeys::ListFontName, u"Arial"_s);
        Fonts::requireKnown(m_appearance.ListFontName());
    }
    m_SpecialDayList.setDays(days);
}

void SpecialDaysTableViewController::didSelectRowAt(int row)
{
    const SpecialDay *day = m_SpecialDayList.days().value(row);
    if (!day)
        return;
    Selection &selection = Selection::shared();
    selection.setSelectedSpecialPoem(day->poemprayer().value_or(QString()));
    selection.setSelectedSpecialDayName(day->dayname().value_or(QString()));
    selection.setSelectedSpecialAmpm(day->ampm().value_or(QString()));
    Navigator::shared().performSegue(u"SpecialDayReaderSegue"_s);
}
