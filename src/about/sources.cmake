# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    about/AboutFile.h about/AboutFile.cpp
    about/AboutSeeding.h about/AboutSeeding.cpp
    about/AboutTableViewController.h about/AboutTableViewController.cpp
    about/AboutEditViewController.h about/AboutEditViewController.cpp
    about/AboutNewViewController.h about/AboutNewViewController.cpp
)
list(APPEND LARKWELLS_QML
    about/AboutTableView.qml
    about/AboutEditView.qml
    about/AboutNewView.qml
)
