# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    reader/ViewController.h reader/ViewController.cpp
)
list(APPEND LARKWELLS_QML
    reader/View.qml
)
