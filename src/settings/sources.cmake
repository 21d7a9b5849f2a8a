# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    settings/PreferenceKeys.h settings/PreferenceKeys.cpp
    settings/ProductLinks.h settings/ProductLinks.cpp
    settings/DefaultsViewController.h settings/DefaultsViewController.cpp
    settings/WallpaperTableViewController.h settings/WallpaperTableViewController.cpp
    settings/ViewerWallpaperTableViewController.h
    settings/ListWallpaperTableViewController.h
    settings/SettingsViewController.h settings/SettingsViewController.cpp
    settings/ReminderSchedule.h settings/ReminderSchedule.cpp
    settings/ReminderSettings.h settings/ReminderSettings.cpp
)
list(APPEND LARKWELLS_QML
    settings/DefaultsView.qml
    settings/FontField.qml
    settings/FontPickerView.qml
    settings/WallpaperTableView.qml
    settings/WallpaperTableViewCell.qml
    settings/ViewerWallpaperTableView.qml
    settings/ListWallpaperTableView.qml
    settings/SettingsView.qml
    settings/ReminderRows.qml
    settings/SettingSwitch.qml
)

# The product's links, shown by `larkwells --version`.
set(LARKWELLS_PRODUCT_URL "https://larkwells.org/app" CACHE STRING "The app's store page")
set(LARKWELLS_WEBSITE "https://larkwells.org/" CACHE STRING "The app's web site")
set(LARKWELLS_FEEDBACK_ADDRESS "feedback@larkwells.org" CACHE STRING "Where feedback mail goes")
set_source_files_properties(settings/ProductLinks.cpp PROPERTIES COMPILE_DEFINITIONS
    "LARKWELLS_PRODUCT_URL=\"${LARKWELLS_PRODUCT_URL}\";LARKWELLS_WEBSITE=\"${LARKWELLS_WEBSITE}\";LARKWELLS_FEEDBACK_ADDRESS=\"${LARKWELLS_FEEDBACK_ADDRESS}\"")
