#pragma once

#include "WallpaperTableViewController.h"
#include "Wallpapers.h"

// The wallpapers behind list rows.
class ListWallpaperTableViewController : public WallpaperTableViewController
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ListWallpaperTableViewController(QObject *parent = nullptr)
        : WallpaperTableViewController(QStringLiteral("List Wallpapers"), Wallpapers::PMWallpaper(), parent)
    {
    }
};
