#pragma once

#include <QStringList>

class QQuickWindow;

// What a user cannot reach or tell apart on the window as it stands: every visible, enabled
// control (anything a screen reader presents as a button, field, check box, tab, stepper...)
// that lies outside the window where no flickable can scroll it into view, and every pair of
// such controls that overlap (a control and its own parts are one). One line per fault,
// naming the controls by object name or accessible name.
QStringList layoutFaults(QQuickWindow *window);
