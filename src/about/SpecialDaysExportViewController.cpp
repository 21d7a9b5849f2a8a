#include "SpecialDaysExportViewController.h"

#include "AppDelegate.h"
#include "SpecialDayFileWriter.h"

using namespace Qt::StringLiterals;

SpecialDaysExportViewController::SpecialDaysExportViewController(QObject *parent)
    : ExportViewController({u"Export Special Days"_s, u"SpecialDays.txt"_s, u"Larkwell Books Special Days Update Text File"_s,
                            u"Attachment: Larkwell Books Special Days Text File"_s},
                           parent)
{
}

QString SpecialDaysExportViewController::updateFileText()
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    return SpecialDayFile::write(context.fetch<SpecialDay>(SpecialDay::fetchRequest()));
}
