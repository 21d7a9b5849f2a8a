#include "UpdateFileTarget.h"

#include "Alerts.h"
#include "Bundle.h"
#include "Sharing.h"

#include "Log.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QQmlEngine>
#include <QSaveFile>

using namespace Qt::StringLiterals;

QString UpdateFileTarget::mailPath(const QString &fileName)
{
    // The lookup names the file with its type again ("About.txt" of type "txt"), so the shipped
    // seed files are never the target.
    const QString resource = Bundle::main().pathForResource(fileName, u"txt"_s);
    return resource.isEmpty() ? QDir::temp().filePath(fileName) : resource;
}

std::optional<QString> UpdateFileTarget::write(const QString &path, const QString &text)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0 && file.commit())
        return std::nullopt;
    return QCoreApplication::translate("UpdateFileTarget", "The file %1 could not be written: %2").arg(path, file.errorString());
}

std::optional<QString> UpdateFileTarget::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return QString::fromUtf8(file.readAll());
}

void UpdateFileTarget::mail(const QString &path, const QString &fileName, const QString &subject, const QString &body)
{
    if (!Sharing::shared().canSendMail()) {
        Alerts::shared().present({u"Sending Email"_s, u"Email not Setup or Unavailable"_s, {u"OK"_s}, {}});
        return;
    }
    const bool attachable = QFile(path).open(QIODevice::ReadOnly);
    Sharing::shared().composeMail({subject, body, attachable ? path : QString(), u"txt"_s, fileName});
}

bool UpdateFileTarget::filePickerAvailable(const QObject *controller)
{
    // The picker's own page is built on the folder list module; without it the picker cannot open.
    const QQmlEngine *engine = qmlEngine(controller);
    if (!engine)
        return true;
    for (const QString &path : engine->importPathList()) {
        if (QFileInfo::exists(path + u"/Qt/labs/folderlistmodel/qmldir"_s))
            return true;
    }
    Log::line(u"The file picker needs the QML module Qt.labs.folderlistmodel "
              "(Debian package qml6-module-qt-labs-folderlistmodel)."_s);
    Alerts::shared().present({QCoreApplication::translate("UpdateFileTarget", "No File Picker"),
                              QCoreApplication::translate("UpdateFileTarget",
                                                          "Choosing a file needs the package qml6-module-qt-labs-folderlistmodel."),
                              {u"OK"_s}, {}});
    return false;
}
