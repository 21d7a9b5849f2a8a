#pragma once

#include <QSize>
#include <QString>

// The cover drawn once at the size the screen shows it, kept as a picture under the data folder
// ("cache/"), so that later launches decode one small picture instead of drawing the vector
// cover. One picture is kept, named by its size, the screen's scale and the application version.
namespace CoverCache {

// Where the picture of this size in pixels for a screen of this scale is kept.
QString path(QSize pixelSize, qreal scale);
// Draws the vector cover file into a picture at `path` and removes the pictures of other sizes;
// false when nothing could be kept. Runs on any thread.
bool draw(const QString &vectorCover, const QString &path, QSize pixelSize);

}
