import QtQuick
import QtQuick.Layouts
import Larkwells

// A reader's Read Aloud: "Read Aloud" starts the shown text, then "Pause" / "Resume", and a
// "Stop" beside it while the voice is busy. Hidden where no voice is available.
RowLayout {
    id: control
    required property ReadAloud readAloud
    required property ReaderSurface surface
    visible: readAloud.available
    spacing: 2

    readonly property bool busy: readAloud.speaking || readAloud.paused

    BarButton {
        objectName: "ReadAloudButton"
        text: control.readAloud.speaking ? qsTr("Pause") : control.readAloud.paused ? qsTr("Resume") : qsTr("Read Aloud")
        Accessible.name: text
        enabled: control.surface.textView.length > 0
        onClicked: {
            if (control.readAloud.speaking)
                control.readAloud.pause()
            else
                control.readAloud.play(control.surface.textView.getText(0, control.surface.textView.length))
        }
    }
    BarButton {
        objectName: "StopReadingButton"
        visible: control.busy
        text: qsTr("Stop")
        Accessible.name: qsTr("Stop Reading")
        onClicked: control.readAloud.stop()
    }
}
