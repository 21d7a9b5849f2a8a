# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    about/AboutEditViewController.h about/AboutEditViewController.cpp
    about/AboutFile.h about/AboutFile.cpp
    about/AboutFileWriter.h about/AboutFileWriter.cpp
    about/AboutImportUndo.h about/AboutImportUndo.cpp
    about/AboutImportViewController.h about/AboutImportViewController.cpp
    about/AboutNewViewController.h about/AboutNewViewController.cpp
    about/AboutSeeding.h about/AboutSeeding.cpp
    about/AboutTableViewController.h about/AboutTableViewController.cpp
    about/ExportLarkwellFilesViewController.h about/ExportLarkwellFilesViewController.cpp
    about/ExportViewController.h about/ExportViewController.cpp
    about/SpecialDaysExportViewController.h about/SpecialDaysExportViewController.cpp
    about/UpdateFileTarget.h about/UpdateFileTarget.cpp
    about/WritingBackup.h about/WritingBackup.cpp
    about/WritingRestore.h about/WritingRestore.cpp
)
list(APPEND LARKWELLS_QML
    about/AboutEditView.qml
    about/AboutImportView.qml
    about/AboutNewView.qml
    about/AboutTableView.qml
    about/ExportLarkwellFilesView.qml
    about/ExportView.qml
    about/SpecialDaysExportView.qml
    about/UndoImportButton.qml
    about/UpdateFileButton.qml
    about/UpdateFileTextView.qml
)
