# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    app/AppDelegate.h app/AppDelegate.cpp
    app/CoverViewController.h app/CoverViewController.cpp
    app/Entities.h app/Entities.cpp
    app/FetchRequest.h app/FetchRequest.cpp
    app/ManagedObject.h app/ManagedObject.cpp
    app/ManagedObjectContext.h app/ManagedObjectContext.cpp
    app/PageFile.h app/PageFile.cpp
    app/PageSeeding.h app/PageSeeding.cpp
    app/PersistentContainer.h app/PersistentContainer.cpp
    app/ReviewPrompt.h app/ReviewPrompt.cpp
    app/Selection.h app/Selection.cpp
    app/SelfTest.h app/SelfTest.cpp
    app/Wallpapers.h app/Wallpapers.cpp
)
list(APPEND LARKWELLS_QML
    app/Main.qml
    app/CoverView.qml
    app/MenuButton.qml
)
