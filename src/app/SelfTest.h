#pragma once

#include <QTemporaryDir>

class QQmlApplicationEngine;

// `larkwells --self-test`: opens every screen in the real window, one after the other, and
// fails on any QML warning. Without --data-dir it works on a throw-away data folder.
namespace SelfTest {
class Run
{
public:
    QString dataDirectory() const { return m_directory.path(); }
    // From now on every warning counts as a failure.
    void watchWarnings();
    // Pushes each screen a segue can open, pops back, and returns the exit status.
    int exec(QQmlApplicationEngine &engine);

private:
    QTemporaryDir m_directory;
};
}
