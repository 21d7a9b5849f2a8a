# Sources of this subsystem, relative to src/.
list(APPEND LARKWELLS_SOURCES
    platform/Alerts.h platform/Alerts.cpp
    platform/Bundle.h platform/Bundle.cpp
    platform/Clock.h platform/Clock.cpp
    platform/Device.h platform/Device.cpp
    platform/FatalError.h platform/FatalError.cpp
    platform/FileChooserLook.h platform/FileChooserLook.cpp
    platform/Fonts.h platform/Fonts.cpp
    platform/Log.h platform/Log.cpp
    platform/Mail.h platform/Mail.cpp
    platform/ModalPopups.h platform/ModalPopups.cpp
    platform/Navigator.h platform/Navigator.cpp
    platform/ReviewRequest.h platform/ReviewRequest.cpp
    platform/Sharing.h platform/Sharing.cpp
    platform/Speech.h platform/Speech.cpp
    platform/UserDefaults.h platform/UserDefaults.cpp
    platform/Notifications.h platform/Notifications.cpp
    platform/UserServices.h platform/UserServices.cpp
    platform/WindowIcon.h platform/WindowIcon.cpp
)
list(APPEND LARKWELLS_QML
    platform/AlertDialog.qml
    platform/DialogButton.qml
    platform/DialogCard.qml
    platform/PressTint.qml
    platform/SaveCopyDialog.qml
    platform/SaveTextDialog.qml
    platform/ShareSheet.qml
    platform/SheetRow.qml
    platform/chooser/ChooserButtons.qml
    platform/chooser/ChooserPath.qml
    platform/chooser/ChooserRow.qml
)
