#pragma once

class QQmlEngine;

// The file chooser in our own layout. Qt's row places a file's date by the width of the chooser's
// filter box, which on a phone is narrower than the date, so the date ran over the size; Qt's
// chooser is a card of a fixed size whose buttons crowd its filter box on a phone, and whose card
// vanishes without a graphics driver.
namespace FileChooserLook {
void install(QQmlEngine &engine);
}
