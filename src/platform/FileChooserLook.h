#pragma once

class QQmlEngine;

// The file chooser's rows in our own layout. Qt's row places a file's date by the width of the
// chooser's filter box, which on a phone is narrower than the date, so the date ran over the size.
namespace FileChooserLook {
void install(QQmlEngine &engine);
}
