#include "AboutEditViewController.h"

#include "AppDelegate.h"
#include "FatalError.h"
#include "Log.h"
#include "Navigator.h"
#include "Selection.h"
#include "Sharing.h"

using namespace Qt::StringLiterals;

AboutEditViewController::AboutEditViewController(QObject *parent)
    : ReaderScreen(parent)
{
}

bool AboutEditViewController::leftAligned() const
{
    return Selection::shared().selectedAboutName().contains(u"Authors"_s);
}

void AboutEditViewController::setAboutItemText(const QString &text)
{
    if (text == m_AboutItemText)
        return;
    m_AboutItemText = text;
    Q_EMIT AboutItemTextChanged();
}

QString AboutEditViewController::composedText(const QString &name, const QString &text)
{
    const bool morning = name.contains(u"Good Morning"_s);
    const bool night = name.contains(u"Good Night"_s);
    if ((morning || night) && name.contains(u"Authors"_s))
        return u"From The Larkwells\n"_s + name + u"\n\n"_s + text;
    if ((morning || night) && (name.contains(u"Preface"_s) || name.contains(u"Acknowledgements"_s)))
        return (morning ? u"From The Larkwells\n Good Morning \n\n "_s : u"From The Larkwells\n Good Night \n\n "_s) + text;
    return QString();
}

void AboutEditViewController::viewDidLoad()
{
    m_title = Selection::shared().selectedAboutName();
    loadAppearance(34);

    Selection &selection = Selection::shared();
    m_appearance.setNightPage(selection.selectedAboutName().contains(u"Good Night"_s));
    m_AboutText = composedText(selection.selectedAboutName(), selection.selectedAboutText());
    selection.setSelectedAboutText(m_AboutText);

    // Another colour code leaves the text view as laid out: empty, in the default look.
    if (m_appearance.applyTextColor())
        setAboutItemText(selection.selectedAboutText());
    Q_EMIT loaded();
}

void AboutEditViewController::FontSizeChanged(double value)
{
    m_appearance.ChangeFontSize(value);
    // The article is shown at the stepper's size itself, not one point towards it.
    m_appearance.stepShownSize(int(value - m_appearance.fontSize()));
}

void AboutEditViewController::SaveAboutItem()
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    FetchRequest request = About::fetchRequest();
    request.predicate = Predicate::equals(u"name"_s, Selection::shared().selectedAboutName());
    m_Results = context.fetch<About>(request);
    m_ResultsCount = int(m_Results.size());
    if (m_Results.isEmpty())
        fatalError(u"Fatal error: no about article named “%1” to save"_s.arg(Selection::shared().selectedAboutName()));
    // The shown text, heading included, is what is kept.
    m_Results.first()->setAboutText(m_AboutItemText);
    if (const auto error = context.save())
        Log::line(error->unresolvedMessage());
    BackToAboutMain();
}

void AboutEditViewController::ShareActions()
{
    Sharing::shared().present({m_AboutItemText, {}, {}});
}

void AboutEditViewController::BackToAboutMain()
{
    Log::line(u"Back button Clicked"_s);
    Navigator::shared().unwind(u"unwindToAboutSegue"_s);
}
