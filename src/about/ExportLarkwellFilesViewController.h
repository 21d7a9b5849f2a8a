#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QUrl>

// The export menu: pages, special days or about articles; and the reader's own writing backed
// up to one file and restored from it.
class ExportLarkwellFilesViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ExportLarkwellFilesViewController(QObject *parent = nullptr) : QObject(parent) {}

    Q_INVOKABLE void PoemPrayerButtonClicked();
    Q_INVOKABLE void SpecialDaysButtonClicked();
    Q_INVOKABLE void AboutButtonClicked();

    // Writes the backup file and offers it through the share sheet.
    Q_INVOKABLE void BackUpButtonClicked();
    // Opens the file picker for a backup to restore.
    Q_INVOKABLE void RestoreButtonClicked();
    // The picker's choice: checked, then summed up in an alert that asks before anything is written.
    Q_INVOKABLE void documentPicker(const QUrl &didPickDocumentAt);

Q_SIGNALS:
    void documentPickerRequested();
};
