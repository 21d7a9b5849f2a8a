# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    notes/NotesListModel.h notes/NotesListModel.cpp
    notes/NotesTableViewController.h notes/NotesTableViewController.cpp
    notes/EditNotesViewController.h notes/EditNotesViewController.cpp
)
list(APPEND LARKWELLS_QML
    notes/NotesTableViewCell.qml
    notes/NotesTableView.qml
    notes/NoteDatePicker.qml
    notes/EditNotesView.qml
)
