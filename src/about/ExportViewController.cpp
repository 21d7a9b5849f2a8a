#include "ExportViewController.h"

#include "Alerts.h"
#include "AppDelegate.h"
#include "Log.h"
#include "PageFileWriter.h"
#include "Sharing.h"
#include "UpdateFileTarget.h"

#include <QDir>
#include <QTimer>

using namespace Qt::StringLiterals;

ExportViewController::ExportViewController(QObject *parent)
    : ExportViewController({tr("Export Pages"), u"PoemPrayer.txt"_s, u"Larkwell Books Update Text File"_s,
                            u"Attachment: Larkwell Books Text File"_s},
                           parent)
{
}

ExportViewController::ExportViewController(FileKind file, QObject *parent)
    : QObject(parent)
    , m_file(std::move(file))
{
}

void ExportViewController::setExportTextView(const QString &text)
{
    if (text == m_ExportTextView)
        return;
    m_ExportTextView = text;
    Q_EMIT ExportTextViewChanged();
}

void ExportViewController::setButtons(bool exportEnabled, bool saveEnabled, bool emailEnabled)
{
    m_ExportButtonEnabled = exportEnabled;
    m_SaveButtonEnabled = saveEnabled;
    m_EmailButtonEnabled = emailEnabled;
    Q_EMIT buttonsChanged();
}

void ExportViewController::viewDidLoad()
{
    setButtons(true, false, false);
    m_HelpTextView = u"Step 1: Create the Export File\n"_s;
    m_HelpTextView += u"Step 2: Option 1: Click 'Save To Files' button\n"_s;
    m_HelpTextView += u"             Option 2: Click the Email File button to email the file to yourself and then from "
                      "your email save the file to your iCloud Drive. There are size limits to email attachments for "
                      "most carriers."_s;
    Q_EMIT HelpTextViewChanged();
}

QString ExportViewController::updateFileText()
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    return PageFile::updateFileText(context);
}

void ExportViewController::CreateUpdateFile()
{
    setExportTextView(QString());
    m_DataString = updateFileText();
    setExportTextView(*m_DataString);
    // A file is made once a visit.
    setButtons(false, true, true);
    QTimer::singleShot(3000, &Alerts::shared(), [] {
        Alerts::shared().present({u"Data Export"_s, u"Process Complete - File Ready to Save To Files or Email"_s,
                                  {u"OK"_s}, {}});
    });
}

void ExportViewController::SaveToFiles()
{
    const QString path = QDir::temp().filePath(m_file.fileName);
    Log::line(path);
    if (const auto error = UpdateFileTarget::write(path, m_DataString.value_or(QString())))
        Log::line(*error);
    Sharing::shared().presentFile(path);
}

void ExportViewController::WriteTextFile()
{
    const QString path = UpdateFileTarget::mailPath(m_file.fileName);
    UpdateFileTarget::write(path, m_ExportTextView);
    if (const auto written = UpdateFileTarget::read(path))
        setExportTextView(*written);
    UpdateFileTarget::mail(path, m_file.fileName, m_file.subject, m_file.body);
}
