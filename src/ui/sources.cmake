# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    ui/Appearance.h ui/Appearance.cpp
    ui/CellBackground.h ui/CellBackground.cpp
    ui/CoveringPicture.h ui/CoveringPicture.cpp
    ui/ReadAloud.h ui/ReadAloud.cpp
    ui/ReaderScreen.h ui/ReaderScreen.cpp
    ui/Wallpapers.h ui/Wallpapers.cpp
)
list(APPEND LARKWELLS_QML
    ui/BarButton.qml
    ui/BottomBar.qml
    ui/CellCard.qml
    ui/FavoriteBox.qml
    ui/FontSizeStepper.qml
    ui/Heading.qml
    ui/ListCell.qml
    ui/NavigationBar.qml
    ui/PageTurner.qml
    ui/ReadAloudButton.qml
    ui/ReaderSurface.qml
    ui/ScreenPanel.qml
    ui/SegmentedControl.qml
    ui/TableList.qml
    ui/Theme.qml
)
set_source_files_properties(ui/Theme.qml PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
