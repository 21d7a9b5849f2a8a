#pragma once

#include <QIcon>

// The application's window icon, read from its file only when a platform asks for a picture of
// it: an X11 desktop does as the window opens; phones and Wayland never do, so they never load
// the picture or its decoder.
QIcon windowIcon(const QString &file);
