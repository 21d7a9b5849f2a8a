#include "Navigator.h"

#include "FatalError.h"

using namespace Qt::StringLiterals;

Navigator::Navigator(QObject *parent)
    : QObject(parent)
    , m_pages{
          {u"PoemPrayerSegue"_s, u"lists/MainTableView.qml"_s},
          {u"ViewPoemSegue"_s, u"reader/View.qml"_s},
          {u"AboutSegue"_s, u"about/AboutTableView.qml"_s},
          {u"AboutEditSegue"_s, u"about/AboutEditView.qml"_s},
          {u"AboutNewSegue"_s, u"about/AboutNewView.qml"_s},
          {u"NotesSegue"_s, u"notes/NotesTableView.qml"_s},
          {u"EditNotesSegue"_s, u"notes/EditNotesView.qml"_s},
          {u"SpecialDaysSegue"_s, u"lists/SpecialDaysTableView.qml"_s},
          {u"SpecialDayReaderSegue"_s, u"reader/EditSpecialDaysView.qml"_s},
          {u"SearchSegue"_s, u"lists/SearchTableView.qml"_s},
          {u"SearchPoemSegue"_s, u"reader/SearchView.qml"_s},
          {u"ExportMenuSegue"_s, u"about/ExportLarkwellFilesView.qml"_s},
          {u"ExportSegue"_s, u"about/ExportView.qml"_s},
          {u"ExportSpecialDaysSegue"_s, u"about/SpecialDaysExportView.qml"_s},
          {u"AboutImportSegue"_s, u"about/AboutImportView.qml"_s},
          {u"UserDefaultsSegue"_s, u"settings/DefaultsView.qml"_s},
          {u"ViewerWallpaperSegue"_s, u"settings/ViewerWallpaperTableView.qml"_s},
          {u"ListWallpaperSegue"_s, u"settings/ListWallpaperTableView.qml"_s},
          {u"SettingsSegue"_s, u"settings/SettingsView.qml"_s},
      }
{
}

Navigator &Navigator::shared()
{
    static Navigator *navigator = new Navigator;
    return *navigator;
}

Navigator *Navigator::create(QQmlEngine *, QJSEngine *)
{
    QJSEngine::setObjectOwnership(&shared(), QJSEngine::CppOwnership);
    return &shared();
}

QString Navigator::pageFor(const QString &identifier) const
{
    const QString page = m_pages.value(identifier);
    return page.isEmpty() ? page : u"qrc:/qt/qml/Larkwells/"_s + page;
}

QString Navigator::unwindPage(const QString &identifier) const
{
    static const QString prefix = u"unwindTo"_s;
    return identifier.startsWith(prefix) ? pageFor(identifier.mid(prefix.size())) : QString();
}

QStringList Navigator::segues() const
{
    QStringList identifiers = m_pages.keys();
    identifiers.sort();
    return identifiers;
}

void Navigator::popToRoot()
{
    Q_EMIT popToRootRequested();
}

void Navigator::performSegue(const QString &identifier)
{
    const QString page = pageFor(identifier);
    if (page.isEmpty())
        fatalError(u"Fatal error: no screen for the segue \"%1\""_s.arg(identifier));
    Q_EMIT segueRequested(identifier, page);
}

void Navigator::unwind(const QString &identifier)
{
    Q_EMIT unwindRequested(identifier);
}
