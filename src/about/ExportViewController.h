#pragma once

#include <QObject>
#include <QQmlEngine>
#include <optional>

// Writes the book's pages as an update file, shows it, and hands it to the desktop's file
// services or mails it. The special-day export is the same screen writing another table.
class ExportViewController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString ExportTextView READ ExportTextView WRITE setExportTextView NOTIFY ExportTextViewChanged)
    Q_PROPERTY(QString HelpTextView READ HelpTextView NOTIFY HelpTextViewChanged)
    Q_PROPERTY(bool ExportButtonEnabled READ ExportButtonEnabled NOTIFY buttonsChanged)
    Q_PROPERTY(bool SaveButtonEnabled READ SaveButtonEnabled NOTIFY buttonsChanged)
    Q_PROPERTY(bool EmailButtonEnabled READ EmailButtonEnabled NOTIFY buttonsChanged)

public:
    explicit ExportViewController(QObject *parent = nullptr);

    QString title() const { return m_file.title; }
    // The text view's content: the file as built, with the user's edits.
    QString ExportTextView() const { return m_ExportTextView; }
    void setExportTextView(const QString &text);
    QString HelpTextView() const { return m_HelpTextView; }
    bool ExportButtonEnabled() const { return m_ExportButtonEnabled; }
    bool SaveButtonEnabled() const { return m_SaveButtonEnabled; }
    bool EmailButtonEnabled() const { return m_EmailButtonEnabled; }
    std::optional<QString> DataString() const { return m_DataString; }

    Q_INVOKABLE void viewDidLoad();
    Q_INVOKABLE void CreateUpdateFile();
    Q_INVOKABLE void SaveToFiles();
    Q_INVOKABLE void WriteTextFile();

    // The file's text for the store as it is now.
    virtual QString updateFileText();

Q_SIGNALS:
    void ExportTextViewChanged();
    void HelpTextViewChanged();
    void buttonsChanged();

protected:
    // What tells one export from another.
    struct FileKind {
        QString title;
        QString fileName;
        QString subject;
        QString body;
    };
    ExportViewController(FileKind file, QObject *parent);

private:
    void setButtons(bool exportEnabled, bool saveEnabled, bool emailEnabled);

    FileKind m_file;
    QString m_ExportTextView;
    QString m_HelpTextView;
    bool m_ExportButtonEnabled = true;
    bool m_SaveButtonEnabled = false;
    bool m_EmailButtonEnabled = false;
    std::optional<QString> m_DataString;
};
