#pragma once

class QQmlEngine;

// The file chooser in our own layout, loaded in place of Qt's: its card, path bar and rows are
// ours, on Qt's bare chooser parts. Qt's styled chooser crowded its buttons and dates on a phone,
// left its "Up" button nameless to a screen reader, and its card vanished without a graphics
// driver.
namespace FileChooserLook {
void install(QQmlEngine &engine);
}
