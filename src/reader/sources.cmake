# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    reader/EditSpecialDaysViewController.h reader/EditSpecialDaysViewController.cpp
    reader/PageTurningReader.h reader/PageTurningReader.cpp
    reader/PagePicture.h reader/PagePicture.cpp
    reader/ReaderText.h reader/ReaderText.cpp
    reader/SearchViewController.h reader/SearchViewController.cpp
    reader/ViewController.h reader/ViewController.cpp
)
list(APPEND LARKWELLS_QML
    reader/EditSpecialDaysView.qml
    reader/SearchView.qml
    reader/View.qml
)
