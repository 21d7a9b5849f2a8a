#pragma once

#include "WallpaperTableViewController.h"
#include "Wallpapers.h"

// The wallpapers behind the readers' text.
class ViewerWallpaperTableViewController : public WallpaperTableViewController
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ViewerWallpaperTableViewController(QObject *parent = nullptr)
        : WallpaperTableViewController(QStringLiteral("Reader Wallpapers"), Wallpapers::ViewerWallpaper(), parent)
    {
    }
};
