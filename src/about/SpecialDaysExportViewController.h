#pragma once

#include "ExportViewController.h"
#include "SpecialDayFile.h"

class SpecialDay;

// The export screen writing the special days in the shipped special-day format.
class SpecialDaysExportViewController : public ExportViewController
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit SpecialDaysExportViewController(QObject *parent = nullptr);
    QString updateFileText() override;

    // The records of stored days, in their order, an absent value as an empty field.
    static QList<SpecialDayFile::Record> recordsOf(const QList<SpecialDay *> &days);
};
