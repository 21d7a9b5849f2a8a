#include "AboutTableViewController.h"

#include "AppDelegate.h"
#include "FatalError.h"
#include "Fonts.h"
#include "Log.h"
#include "Navigator.h"
#include "PreferenceKeys.h"
#include "Selection.h"

using namespace Qt::StringLiterals;

AboutTableViewController::AboutTableViewController(QObject *parent)
    : QObject(parent)
{
}

QString AboutTableViewController::title() const
{
    return u"About"_s;
}

QStringList AboutTableViewController::AboutNames() const
{
    QStringList names;
    for (const About *article : m_AboutList)
        names.append(article->name().value_or(QString()));
    return names;
}

void AboutTableViewController::viewDidLoad()
{
    m_appearance.drawWallpaper();
    seedOnFirstVisit();
    m_appearance.read();
    fetch();
}

void AboutTableViewController::seedOnFirstVisit()
{
    if (Preferences::boolForKey(PreferenceKeys::AboutHasBeenLaunchedBeforeFlag)) {
        Log::line(u"Not First Launch"_s);
        return;
    }
    // Set before seeding: a seeding that stops half way is not tried again.
    Preferences::write(PreferenceKeys::AboutHasBeenLaunchedBeforeFlag, true);
    Log::line(u"First Launch"_s);
    // The one place a first visit empties the About table.
    m_seeding.clearAbouts();
    m_seeding.loadAbouts();
}

void AboutTableViewController::fetch()
{
    FetchRequest request = About::fetchRequest();
    request.sortDescriptors = {{u"name"_s}};
    std::optional<StoreError> error; // a failed fetch shows an empty list
    m_AboutList = AppDelegate::shared().viewContext().fetch<About>(request, &error);
    if (!m_AboutList.isEmpty())
        Fonts::requireKnown(m_appearance.ListFontName());
    Q_EMIT AboutListChanged();
}

void AboutTableViewController::unwindToAboutSegue()
{
    fetch();
}

void AboutTableViewController::unwindToMain()
{
    Log::line(u"Back button Clicked"_s);
    Navigator::shared().unwind(u"unwindSegue"_s);
}

void AboutTableViewController::didSelectRowAt(int row)
{
    const About *article = m_AboutList.value(row);
    if (!article)
        return;
    if (!article->name() || !article->aboutText())
        fatalError(u"Fatal error: the chosen about article has no name or no text"_s);
    Selection &selection = Selection::shared();
    selection.setSelectedAboutName(*article->name());
    selection.setSelectedAboutText(*article->aboutText());
    Navigator::shared().performSegue(u"AboutEditSegue"_s);
}

void AboutTableViewController::NewArticle()
{
    Navigator::shared().performSegue(u"AboutNewSegue"_s);
}
