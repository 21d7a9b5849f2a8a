#include "ViewController.h"

#include "AppDelegate.h"
#include "Bundle.h"
#include "Log.h"
#include "Navigator.h"
#include "PagePicture.h"
#include "ReaderText.h"
#include "ReviewPrompt.h"
#include "Selection.h"
#include "Sharing.h"

#include <QPointer>

using namespace Qt::StringLiterals;

ViewController::ViewController(QObject *parent)
    : PageTurningReader(parent)
{
}

QString ViewController::composedText(const QString &ampm, const QString &dt, const QString &poemPrayer)
{
    const QString greeting = ReaderText::greeting(ampm);
    if (greeting.isEmpty())
        return poemPrayer;
    return u"\nFrom The Larkwells\n "_s + greeting + u"\n\n"_s + dt + u"\n\n"_s + poemPrayer;
}

void ViewController::setPoemPrayerText(const QString &text)
{
    if (text == m_PoemPrayerText)
        return;
    const bool held = holdsPage();
    m_PoemPrayerText = text;
    Q_EMIT PoemPrayerTextChanged();
    if (held != holdsPage())
        Q_EMIT turnableChanged();
}

void ViewController::viewDidLoad()
{
    // The reader's first draw may reach the last wallpaper; redraws never do.
    loadAppearance(35);
    showSelection();
}

void ViewController::showSelection()
{
    m_title = u"View Poems/Prayers"_s;
    Selection &selection = Selection::shared();
    m_appearance.setNightPage(selection.selectedAmpm() == u"PM"_s);
    m_CombinedText = composedText(selection.selectedAmpm(), selection.selectedDt(), selection.selectedPoemPrayer());
    selection.setSelectedPoemPrayer(m_CombinedText);

    // Another colour code leaves the text view as laid out: empty, in the default look.
    m_pageShown = m_appearance.applyTextColor();
    m_savedText = m_pageShown ? selection.selectedPoemPrayer() : QString();
    setPoemPrayerText(m_savedText);

    if (const QString greeting = ReaderText::greeting(selection.selectedAmpm()); !greeting.isEmpty())
        m_title = greeting;
    Q_EMIT loaded();

    if (selection.selectedFavorite() == u"T"_s)
        Q_EMIT favoriteCheckStateRequested(1, true);
    else if (selection.selectedFavorite() == u"F"_s)
        Q_EMIT favoriteCheckStateRequested(0, false);

    ReviewPrompt::run(Bundle::main().version());
}

void ViewController::CheckBoxChecked(int checkState)
{
    Selection::shared().setSelectedFavorite(checkState == 1 ? u"T"_s : u"F"_s);
    save();
}

void ViewController::SavePoem()
{
    save();
}

void ViewController::save()
{
    // Saved or not (the date may match no page, or several), the user has dealt with the edits.
    if (holdsPage()) {
        m_savedText = m_PoemPrayerText;
        Q_EMIT turnableChanged();
    }
    const Selection &selection = Selection::shared();
    if (selection.selectedDt().isEmpty())
        return;
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    FetchRequest request = PoemPrayer::fetchRequest();
    request.predicate = Predicate::conjunction({Predicate::equals(u"dt"_s, selection.selectedDt()),
                                                Predicate::equals(u"ampm"_s, selection.selectedAmpm())});
    m_Results = context.fetch<PoemPrayer>(request);
    m_ResultsCount = int(m_Results.size());
    // Only an unambiguous page is written; none or several write nothing.
    if (m_ResultsCount != 1)
        return;
    PoemPrayer *page = m_Results.first();
    page->setFavorite(selection.selectedFavorite());
    // A view that shows no page (a colour code it does not know) and was not typed in must not
    // write its emptiness over the page's text.
    if (m_pageShown || !m_PoemPrayerText.isEmpty())
        page->setPoemprayer(m_PoemPrayerText);
    if (const auto error = context.save())
        Log::line(error->unresolvedMessage());
}

void ViewController::ChangeFontSize(double value)
{
    m_appearance.ChangeFontSize(value);
}

void ViewController::SharePoem()
{
    ReaderText::shareAsTextMessage(
        Selection::shared().selectedAmpm(),
        {u"Can't Send Text Message"_s, u"Your Device is not able to send text messages."_s, {u"OK"_s}, {}}, true,
        [this](const QString &) { return m_PoemPrayerText; });
}

void ViewController::FacebookShare()
{
    Sharing::shared().presentWithPicture({m_PoemPrayerText,
                                          [](bool completed) { Log::line(completed ? u"completed"_s : u"canceled"_s); },
                                          [] { Log::line(u"presented"_s); },
                                          {}},
                                         [reader = QPointer(this)] { return reader ? reader->SharePicture() : QString(); });
}

QString ViewController::SharePicture() const
{
    const Selection &selection = Selection::shared();
    const QString title = QStringList{selection.selectedDt(), ReaderText::greeting(selection.selectedAmpm())}.join(u' ');
    return PagePicture::writePng(PagePicture::render(m_PoemPrayerText, m_appearance), title);
}

void ViewController::BackToMain()
{
    Navigator::shared().unwind(u"unwindSegue"_s);
}
