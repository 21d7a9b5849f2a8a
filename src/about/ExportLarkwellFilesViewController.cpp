#include "ExportLarkwellFilesViewController.h"

#include "Alerts.h"
#include "AppDelegate.h"
#include "Log.h"
#include "Navigator.h"
#include "Sharing.h"
#include "StoreSnapshots.h"
#include "UpdateFileTarget.h"
#include "WritingRestore.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {
const QString restoreTitle = u"Restore My Writing"_s;

void presentRestoreAlert(const QString &message)
{
    Alerts::shared().present({restoreTitle, message, {u"OK"_s}, {}});
}

WritingRestore::Shipped shippedBook()
{
    return {WritingBackup::shippedPageTexts(), WritingBackup::shippedArticleTexts()};
}

void restore(const WritingBackup::Contents &backup)
{
    StoreSnapshots::take(u"writing-restore"_s);
    // Worked out again after the copy: the plan shown holds objects that may have changed since.
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    if (const auto error = WritingRestore::plan(backup, context, shippedBook()).apply(context)) {
        Log::line(*error);
        presentRestoreAlert(u"Your writing could not be restored: %1"_s.arg(*error));
        return;
    }
    presentRestoreAlert(u"Your writing was restored."_s);
}
}

void ExportLarkwellFilesViewController::PoemPrayerButtonClicked()
{
    Navigator::shared().performSegue(u"ExportSegue"_s);
}

void ExportLarkwellFilesViewController::SpecialDaysButtonClicked()
{
    Navigator::shared().performSegue(u"ExportSpecialDaysSegue"_s);
}

void ExportLarkwellFilesViewController::AboutButtonClicked()
{
    Navigator::shared().performSegue(u"AboutImportSegue"_s);
}

void ExportLarkwellFilesViewController::BackUpButtonClicked()
{
    const WritingBackup::Contents contents =
        WritingBackup::collect(AppDelegate::shared().viewContext(), WritingBackup::shippedPageTexts());
    const QString path = QDir::temp().filePath(WritingBackup::fileName);
    if (const auto error = UpdateFileTarget::write(path, QString::fromUtf8(WritingBackup::toJson(contents)))) {
        Log::line(*error);
        Alerts::shared().present({u"Back Up My Writing"_s, *error, {u"OK"_s}, {}});
        return;
    }
    Sharing::shared().presentFile(path);
}

void ExportLarkwellFilesViewController::RestoreButtonClicked()
{
    if (UpdateFileTarget::filePickerAvailable(this))
        Q_EMIT documentPickerRequested();
}

void ExportLarkwellFilesViewController::documentPicker(const QUrl &didPickDocumentAt)
{
    QFile file(didPickDocumentAt.toLocalFile());
    if (!file.open(QIODevice::ReadOnly)) {
        Log::line(file.errorString());
        presentRestoreAlert(u"The file could not be opened: %1"_s.arg(file.errorString()));
        return;
    }
    const auto parsed = WritingBackup::fromJson(file.readAll());
    if (const auto *error = std::get_if<WritingBackup::ParseError>(&parsed)) {
        presentRestoreAlert(error->message);
        return;
    }
    const WritingBackup::Contents backup = std::get<WritingBackup::Contents>(parsed);
    const WritingRestore plan = WritingRestore::plan(backup, AppDelegate::shared().viewContext(), shippedBook());
    if (plan.changesNothing()) {
        presentRestoreAlert(plan.summary());
        return;
    }
    Alerts::shared().present({restoreTitle, plan.summary(), {u"Cancel"_s, u"Restore"_s}, [backup](int button) {
                                  if (button == 1)
                                      restore(backup);
                              }, 0});
}
