#pragma once

#include "ExportViewController.h"

// The export screen writing the special days in the shipped special-day format.
class SpecialDaysExportViewController : public ExportViewController
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit SpecialDaysExportViewController(QObject *parent = nullptr);
    QString updateFileText() override;
};
