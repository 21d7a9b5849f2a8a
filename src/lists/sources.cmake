# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    lists/MainTableViewController.h lists/MainTableViewController.cpp
    lists/PoemPrayerListModel.h lists/PoemPrayerListModel.cpp
    lists/SpecialDayFile.h lists/SpecialDayFile.cpp
    lists/SpecialDayFileWriter.h lists/SpecialDayFileWriter.cpp
)
list(APPEND LARKWELLS_QML
    lists/GMNTableViewCell.qml
    lists/MainTableView.qml
)
