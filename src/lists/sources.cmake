# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    lists/MainTableViewController.h lists/MainTableViewController.cpp
    lists/PageSequence.h lists/PageSequence.cpp
    lists/PoemPrayerListModel.h lists/PoemPrayerListModel.cpp
    lists/SearchTableViewController.h lists/SearchTableViewController.cpp
    lists/SpecialDayFile.h lists/SpecialDayFile.cpp
    lists/SpecialDayListModel.h lists/SpecialDayListModel.cpp
    lists/SpecialDaySeeding.h lists/SpecialDaySeeding.cpp
    lists/SpecialDaysTableViewController.h lists/SpecialDaysTableViewController.cpp
)
list(APPEND LARKWELLS_QML
    lists/GMNTableViewCell.qml
    lists/MainTableView.qml
    lists/PageNumberLabel.qml
    lists/SpecialDaysTableViewCell.qml
    lists/SpecialDaySectionHeading.qml
    lists/SpecialDaysTableView.qml
    lists/OGMNTableViewCell.qml
    lists/SearchTableView.qml
)
