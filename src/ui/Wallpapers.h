#pragma once

#include <QStringList>
#include <functional>

// The two wallpaper sets, and the random draw that readers and lists make when they load.
// Each image name is also a preference holding "true" (may be drawn) or "false".
namespace Wallpapers {
const QStringList &ViewerWallpaper(); // "Page1" … "Page35", behind the readers' text
const QStringList &PMWallpaper();     // "AM-36" … "AM-70", behind list rows

// A uniformly random integer in 0..bound-1.
using Uniform = std::function<int(int bound)>;
int systemUniform(int bound);

// What a draw gives when no wallpaper of the set can be drawn: the screen shows none.
constexpr int NoWallpaper = -1;

// The index of a usable wallpaper: a first draw in 0..firstBound-1, redraws in 0..33 (the last
// name is reached only by a first draw over all 35). A drawn name without a preference stops
// the draw and keeps `start`. When no redraw could ever succeed (every name in 0..33 is set to
// something other than "true") it gives NoWallpaper instead of drawing for ever.
int draw(const QStringList &names, int firstBound, int start, const Uniform &uniform = systemUniform);

// Whether the image may be drawn: its preference holds "true".
bool inUse(const QString &name);
// No image may be drawn: every name has a preference and none holds "true". (A name without
// one is given "true" when the wallpaper screen shows it.)
bool noneInUse(const QStringList &names);

// Gives every wallpaper name without a preference the value "true" (list set first).
void enableUnsetWallpapers();
}
