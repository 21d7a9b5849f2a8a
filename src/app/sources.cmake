# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    app/AppDelegate.h app/AppDelegate.cpp
    app/CoverCache.h app/CoverCache.cpp
    app/CoverViewController.h app/CoverViewController.cpp
    app/FirstFrameReport.h
    app/PageFile.h app/PageFile.cpp
    app/PageFileWriter.h app/PageFileWriter.cpp
    app/PageSeeding.h app/PageSeeding.cpp
    app/ReviewPrompt.h app/ReviewPrompt.cpp
    app/SeedingFlags.h app/SeedingFlags.cpp
    app/Selection.h app/Selection.cpp
    app/SelfTest.h app/SelfTest.cpp
    app/Termination.h app/Termination.cpp
    app/TodaysPage.h app/TodaysPage.cpp
    app/RemindCommand.h app/RemindCommand.cpp
    app/store/Entities.h app/store/Entities.cpp
    app/store/FetchRequest.h app/store/FetchRequest.cpp
    app/store/ManagedObject.h app/store/ManagedObject.cpp
    app/store/ManagedObjectContext.h app/store/ManagedObjectContext.cpp
    app/store/PersistentContainer.h app/store/PersistentContainer.cpp
    app/store/TableClearing.h app/store/TableClearing.cpp
    app/store/StoreSnapshots.h app/store/StoreSnapshots.cpp
)
list(APPEND LARKWELLS_QML
    app/Main.qml
    app/CoverView.qml
    app/CoverMenu.qml
    app/MenuButton.qml
)
