#include "ExportLarkwellFilesViewController.h"

#include "Navigator.h"

using namespace Qt::StringLiterals;

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
