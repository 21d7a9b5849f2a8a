#pragma once

// The application's services pointed at a throw-away data folder, with the log kept quiet, so a
// benchmark measures the work and not the disk of whoever runs it.
#include "AppDelegate.h"
#include "Log.h"
#include "PersistentContainer.h"
#include "UserDefaults.h"

#include <QQuickStyle>
#include <QStringList>
#include <QTemporaryDir>

// Headless unless the caller asked for a platform.
inline void useOffscreenUnlessTold()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // A requested frame is drawn at once: by default the platform waits 5 ms first, which would
    // add the same 5 ms to every frame timed here and flatten each ratio towards 1.
    if (!qEnvironmentVariableIsSet("QT_QPA_UPDATE_IDLE_TIME"))
        qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
}

// The application's own style: its controls and transitions are what a screen costs.
inline void useTheApplicationsStyle()
{
    QQuickStyle::setStyle(QStringLiteral("Material"));
}

struct BenchData {
    QTemporaryDir folder;
    BenchData()
    {
        Log::setSink([](const QString &) {});
        useTheApplicationsStyle();
        UserDefaults::setStandardDirectory(folder.path());
        PersistentContainer::setDefaultDirectory(folder.path());
        AppDelegate::shared().reset();
    }
};

// Every prefix of `word`, then the empty text: one entry a keystroke.
inline QStringList keystrokes(const QString &word)
{
    QStringList texts;
    for (qsizetype length = 1; length <= word.size(); ++length)
        texts.append(word.left(length));
    texts.append(QString());
    return texts;
}
