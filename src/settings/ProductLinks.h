#pragma once

#include <QString>
#include <QUrl>

// Where the app's store page and web site are and where feedback mail goes. Chosen when the
// app is built (CMake cache variables), so a packager can point them elsewhere.
namespace ProductLinks {
QUrl productURL();
QUrl website();
QString feedbackAddress();
}
