#pragma once

#include <QTemporaryDir>
#include <memory>

class QQmlApplicationEngine;

// `larkwells --self-test`: opens every screen in the real window, one after the other, and
// fails on any QML warning. Without --data-dir it works on a throw-away data folder.
namespace SelfTest {
class Run
{
public:
    // Made when first asked for: a launch without --self-test has no use for it.
    QString dataDirectory();
    // From now on every warning counts as a failure.
    void watchWarnings();
    // Pushes each screen a segue can open, pops back, and returns the exit status.
    int exec(QQmlApplicationEngine &engine);

private:
    std::unique_ptr<QTemporaryDir> m_directory;
};
}
