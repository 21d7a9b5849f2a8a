import Larkwells

// The export screen for the special days.
ExportView {
    objectName: "SpecialDaysExportView"
    controller: SpecialDaysExportViewController {}
}
