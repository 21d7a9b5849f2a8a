#include "SpecialDaysExportViewController.h"

#include "AppDelegate.h"
#include "Entities.h"
#include "Log.h"

using namespace Qt::StringLiterals;

SpecialDaysExportViewController::SpecialDaysExportViewController(QObject *parent)
    : ExportViewController({tr("Export Special Days"), u"SpecialDays.txt"_s, tr("Larkwell Books Special Days Update Text File"),
                            tr("Attachment: Larkwell Books Special Days Text File")},
                           parent)
{
}

QString SpecialDaysExportViewController::updateFileText()
{
    ManagedObjectContext &context = AppDelegate::shared().viewContext();
    const auto written = SpecialDayFile::write(recordsOf(context.fetch<SpecialDay>(SpecialDay::fetchRequest())));
    // Days come from the shipped file, which cannot hold what the format cannot spell.
    if (const auto *error = std::get_if<SpecialDayFile::WriteError>(&written)) {
        Log::line(error->message);
        return QString();
    }
    return QString::fromUtf8(std::get<QByteArray>(written));
}

QList<SpecialDayFile::Record> SpecialDaysExportViewController::recordsOf(const QList<SpecialDay *> &days)
{
    QList<SpecialDayFile::Record> records;
    for (const SpecialDay *day : days)
        records.append({{day->ampm().value_or(QString()), day->dayname().value_or(QString()),
                         day->poemprayer().value_or(QString())}});
    return records;
}
