#pragma once

#include <QString>
#include <optional>

class QObject;

// Where an update file goes on its way out, and the mailing of it, shared by the export screens.
namespace UpdateFileTarget {

// The bundle's resource of this name when it has one, else the file in the temporary folder.
QString mailPath(const QString &fileName);
// Writes the text as UTF-8, replacing the file in one step; the error, if any.
std::optional<QString> write(const QString &path, const QString &text);
std::optional<QString> read(const QString &path);
// Opens the mail composer with the file attached, or says that mail cannot be sent.
void mail(const QString &path, const QString &fileName, const QString &subject, const QString &body);
// Whether the file picker can open for the page of this controller; when it cannot, the user is
// told which package it needs.
bool filePickerAvailable(const QObject *controller);

}
