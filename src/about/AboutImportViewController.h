#pragma once

#include "Entities.h"

#include <QObject>
#include <QQmlEngine>
#include <QUrl>
#include <optional>

// Replaces every about article with those of a file the user picks, and writes the articles as
// an about file to mail. The store is copied before the articles are removed.
class AboutImportViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString ImportTextView READ ImportTextView WRITE setImportTextView NOTIFY ImportTextViewChanged)
    Q_PROPERTY(bool ImportButtonEnabled READ ImportButtonEnabled NOTIFY ImportTextViewChanged)
    Q_PROPERTY(bool ExportButtonEnabled READ ExportButtonEnabled NOTIFY ExportButtonEnabledChanged)

public:
    explicit AboutImportViewController(QObject *parent = nullptr);

    QString ImportTextView() const { return m_ImportTextView; }
    void setImportTextView(const QString &text);
    // Nothing can be imported before a file was read.
    bool ImportButtonEnabled() const { return m_document.has_value(); }
    bool ExportButtonEnabled() const { return m_ExportButtonEnabled; }

    // Opens the file picker.
    Q_INVOKABLE void viewDidLoad();
    // The picker's choice: the file is read and shown.
    Q_INVOKABLE void documentPicker(const QUrl &didPickDocumentAt);
    Q_INVOKABLE void ImportButtonClicked();
    Q_INVOKABLE void CreateExportFile();
    Q_INVOKABLE void EmailExportFile();

Q_SIGNALS:
    void ImportTextViewChanged();
    void ExportButtonEnabledChanged();
    void documentPickerRequested();

private:
    void clearAboutTable();
    void importLine(const QString &line);

    QString m_ImportTextView;
    bool m_ExportButtonEnabled = true;
    QList<About *> m_AboutList;
    int m_resultCount = 0;
    std::optional<QString> m_document;
    std::optional<QString> m_theName;
    std::optional<QString> m_theAboutText;
};
