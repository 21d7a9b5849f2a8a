#pragma once

class QCoreApplication;

// The way the application ends: when the event loop quits, the delegate's termination path saves
// what is unsaved; SIGINT and SIGTERM quit the event loop the normal way, after the save in
// progress has returned.
namespace Termination {
void install(QCoreApplication &app);
}
