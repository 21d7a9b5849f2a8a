# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    lists/MainTableViewController.h lists/MainTableViewController.cpp
    lists/PoemPrayerListModel.h lists/PoemPrayerListModel.cpp
    lists/SpecialDayFile.h lists/SpecialDayFile.cpp
)
list(APPEND LARKWELLS_QML
    lists/GMNTableViewCell.qml
    lists/MainTableView.qml
    lists/PageNumberLabel.qml
)
