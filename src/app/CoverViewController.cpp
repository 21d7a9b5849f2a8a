#include "CoverViewController.h"

#include "Alerts.h"
#include "AppDelegate.h"
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
#include <QFileInfo>

using namespace Qt::StringLiterals;

CoverViewController::CoverViewController(QObject *parent)
    : QObject(parent)
{
}

QUrl CoverViewController::img() const
{
    return Bundle::main().imageUrl(u"Cover"_s);
}

QSize CoverViewController::coverPixelSize(qreal windowWidth, qreal windowHeight, qreal scale) const
{
    return CoverCache::pixelSize({windowWidth, windowHeight}, scale);
}

void CoverViewController::prepareCover(QSize pixelSize, qreal scale)
{
    m_coverPath = CoverCache::path(pixelSize, scale);
    if (QQmlEngine *engine = qmlEngine(this); engine && !engine->imageProvider(u"cover"_s))
        engine->addImageProvider(u"cover"_s, new CoverCache::ImageProvider);
    CoverCache::drawAhead(pixelSize, scale); // as a rule under way since the launch began
}

void CoverViewController::redrawCover(QSize pixelSize, qreal scale)
{
    prepareCover(pixelSize, scale);
    showCover();
    CoverCache::keepDrawn();
}

void CoverViewController::showCover()
{
    const QImage drawn = CoverCache::takeDrawn(m_coverPath);
    QQmlEngine *engine = qmlEngine(this);
    if (auto *provider = engine ? dynamic_cast<CoverCache::ImageProvider *>(engine->imageProvider(u"cover"_s)) : nullptr;
        provider && !drawn.isNull())
        provider->handOver(QFileInfo(m_coverPath).fileName(), drawn);
    const bool shown = !drawn.isNull() || QFile::exists(m_coverPath);
    m_coverSource = shown ? CoverCache::url(m_coverPath) : img();
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
        if (!m_seeding.adoptSeededBook()) {
            m_seeding.clearPoemPrayers();
            m_seeding.loadPoemPrayers(PageFile::columns);
        }
        Alerts::shared().present({u"Initial Setup Recomendations?"_s,
                                  u"It's recommended that you go to the User Defaults Menu and turn on wallpapers and select custom fonts to enhance your experience."_s,
                                  {u"Ok"_s}, {}});
    }
    Wallpapers::enableUnsetWallpapers();
    showCover();
}

void CoverViewController::viewDidAppear()
{
    AppDelegate::shared().persistentContainer();
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
