#include "EditSpecialDaysViewController.h"

#include "AppDelegate.h"
#include "Fonts.h"
#include "Log.h"
#include "Navigator.h"
#include "Selection.h"
#include "Sharing.h"

using namespace Qt::StringLiterals;

namespace {
// Special days read larger than pages until the user picks a reader size.
constexpr double defaultFontSize = 17.0;
// The range of the reader's size stepper.
constexpr double smallestFontSize = 8.0;
constexpr double largestFontSize = 48.0;
}

EditSpecialDaysViewController::EditSpecialDaysViewController(QObject *parent)
    : ReaderScreen(parent)
{
}

QString EditSpecialDaysViewController::heading(const QString &ampm, const QString &dayName)
{
    // The blank before a morning name and none before a night name are the book's own layout.
    if (ampm == u"AM"_s)
        return u"Good Morning\n\n "_s + dayName + u"\n\n"_s;
    if (ampm == u"PM"_s)
        return u"Good Night\n\n"_s + dayName + u"\n\n"_s;
    return QString();
}

void EditSpecialDaysViewController::setPoemPrayerText(const QString &text)
{
    if (text == m_PoemPrayerText)
        return;
    m_PoemPrayerText = text;
    Q_EMIT PoemPrayerTextChanged();
}

void EditSpecialDaysViewController::viewDidLoad()
{
    loadAppearance(34, defaultFontSize);

    Selection &selection = Selection::shared();
    m_appearance.setNightPage(selection.selectedSpecialAmpm() == u"PM"_s);
    m_SpecialDayName = heading(selection.selectedSpecialAmpm(), selection.selectedSpecialDayName());
    m_SpecialDayText = m_SpecialDayName + selection.selectedSpecialPoem();
    selection.setSelectedSpecialPoem(m_SpecialDayText);
    m_title = selection.selectedSpecialDayName();

    // Always styled; a colour code outside 0..3 shows the default black.
    Fonts::requireKnown(m_appearance.FontName());
    m_appearance.setStyle(true, textColorFor(m_appearance.textColor()).value_or(QColor(Qt::black)));
    setPoemPrayerText(m_SpecialDayText);
    Q_EMIT loaded();
}

void EditSpecialDaysViewController::SaveSpecialDays()
{
    const Selection &selection = Selection::shared();
    const QString ampm = selection.selectedSpecialAmpm() == u"Good Morning"_s ? u"AM"_s
                       : selection.selectedSpecialAmpm() == u"Good Night"_s   ? u"PM"_s
                                                                              : QString();
    if (!selection.selectedSpecialDayName().isEmpty() && !ampm.isEmpty()) {
        ManagedObjectContext &context = AppDelegate::shared().viewContext();
        FetchRequest request = SpecialDay::fetchRequest();
        request.predicate = Predicate::conjunction({Predicate::equals(u"ampm"_s, ampm),
                                                    Predicate::equals(u"dayname"_s, selection.selectedSpecialDayName())});
        m_Results = context.fetch<SpecialDay>(request);
        if (!m_Results.isEmpty()) {
            m_Results.first()->setDayname(selection.selectedSpecialDayName());
            m_Results.first()->setPoemprayer(m_PoemPrayerText);
            context.save(); // a failed save changes nothing the reader can mend
        }
    }
    BackToSpecialDays();
}

void EditSpecialDaysViewController::BackToSpecialDays()
{
    Log::line(u"Back button Clicked"_s);
    Navigator::shared().unwind(u"unwindToSpecialDaysSegue"_s);
}

void EditSpecialDaysViewController::ShareActions()
{
    Sharing::shared().present({m_PoemPrayerText, {}, {}});
}

void EditSpecialDaysViewController::StepFontSize(int direction)
{
    const double next = m_appearance.fontSize() + direction;
    if (next >= smallestFontSize && next <= largestFontSize)
        m_appearance.stepShownSize(direction);
}
