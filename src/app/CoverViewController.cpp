#include "CoverViewController.h"

#include "Alerts.h"
#include "Bundle.h"
#include "CoverCache.h"
#include "Log.h"
#include "Navigator.h"
#include "PageFile.h"
#include "PreferenceKeys.h"
#include "SeedingFlags.h"
#include "Selection.h"
#include "Wallpapers.h"

#include <QFile>

using namespace Qt::StringLiterals;

CoverViewController::CoverViewController(QObject *parent)
    : QObject(parent)
{
}

QUrl CoverViewController::img() const
{
    return Bundle::main().imageUrl(u"Cover"_s);
}

void CoverViewController::prepareCover(QSize pixelSize, qreal scale)
{
    m_coverPath = CoverCache::path(pixelSize, scale);
    if (QQmlEngine *engine = qmlEngine(this); engine && !engine->imageProvider(u"cover"_s))
        engine->addImageProvider(u"cover"_s, new CoverCache::ImageProvider);
    const QString file = CoverCache::vectorCover();
    // without a cover in the bundle there is nothing to draw ahead
    if (pixelSize.isEmpty() || file.isEmpty() || QFile::exists(m_coverPath))
        return;
    m_coverDrawn = std::async(std::launch::async, CoverCache::draw, file, m_coverPath, pixelSize);
}

void CoverViewController::showCover()
{
    const bool kept = m_coverDrawn.valid() ? m_coverDrawn.get() : QFile::exists(m_coverPath);
    m_coverSource = kept ? CoverCache::url(m_coverPath) : img();
    Q_EMIT coverSourceChanged();
}

void CoverViewController::viewDidLoad()
{
    SeedingFlags::restoreAfterLostPreferences();
    if (Preferences::boolForKey(PreferenceKeys::hasBeenLaunchedBeforeFlag)) {
        Log::line(u"Not First Launch"_s);
    } else {
        // Set before seeding: a seeding that fails is not tried again on a later launch.
        Preferences::write(PreferenceKeys::hasBeenLaunchedBeforeFlag, true);
        Log::line(u"First Launch"_s);
        m_seeding.clearPoemPrayers();
        m_seeding.loadPoemPrayers(PageFile::columns);
        Alerts::shared().present({u"Initial Setup Recomendations?"_s,
                                  u"It's recommended that you go to the User Defaults Menu and turn on wallpapers and select custom fonts to enhance your experience."_s,
                                  {u"Ok"_s}, {}});
    }
    Wallpapers::enableUnsetWallpapers();
    showCover();
}

void CoverViewController::viewWillAppear()
{
    Selection::shared().setSelectedList(QString());
}

void CoverViewController::viewWillDisappear()
{
    if (m_menuOpen)
        flipMenu();
}

void CoverViewController::HandleSelection()
{
    flipMenu();
}

void CoverViewController::flipMenu()
{
    // Every menu button flips between hidden and shown; the import-and-export button is hidden
    // again after each flip, so it never shows.
    m_menuOpen = !m_menuOpen;
    m_ImportExportButtonHidden = true;
    Q_EMIT menuOpenChanged();
}

void CoverViewController::openList(const QString &selectedList)
{
    Selection::shared().setSelectedList(selectedList);
    Navigator::shared().performSegue(u"PoemPrayerSegue"_s);
}

void CoverViewController::GoodMorningButtonClicked() { openList(u"AM"_s); }
void CoverViewController::GoodNightButtonClicked() { openList(u"PM"_s); }
void CoverViewController::FavoriteButtonClicked() { openList(u"FAV"_s); }
void CoverViewController::TodayButtonClicked() { openList(QString()); }
