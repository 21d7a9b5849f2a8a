import QtQuick
import QtQuick.Layouts
import QtQuick.Shapes
import Larkwells

// A reader's Read Aloud: "Read Aloud" starts the shown text, then "Pause" / "Resume", and a
// "Stop" beside it while the voice is busy. Hidden where no voice is available. On a phone the
// bar keeps its room for the title, so the buttons are drawn as small signs. "Stop" opens on the
// left, so the button just pressed stays under the finger.
RowLayout {
    id: control
    required property ReadAloud readAloud
    required property ReaderSurface surface
    visible: readAloud.available
    spacing: 2

    readonly property bool busy: readAloud.speaking || readAloud.paused
    readonly property bool compact: surface.width < 600

    // a filled sign drawn on a 20-point square
    component Sign: Shape {
        property alias paths: lines.paths
        anchors.centerIn: parent
        width: 20
        height: 20
        ShapePath {
            strokeWidth: 0
            fillColor: Theme.tint
            PathMultiline { id: lines }
        }
    }

    BarButton {
        objectName: "StopReadingButton"
        visible: control.busy
        text: control.compact ? "" : qsTr("Stop")
        Accessible.name: qsTr("Stop Reading")
        onClicked: control.readAloud.stop()
        implicitWidth: control.compact ? 40 : implicitContentWidth + leftPadding + rightPadding
        implicitHeight: Theme.touchTarget
        Rectangle {
            anchors.centerIn: parent
            visible: control.compact
            width: 14
            height: 14
            radius: 2
            color: Theme.tint
        }
    }
    BarButton {
        id: playButton
        objectName: "ReadAloudButton"
        readonly property string label: control.readAloud.speaking ? qsTr("Pause")
                                        : control.readAloud.paused ? qsTr("Resume") : qsTr("Read Aloud")
        text: control.compact ? "" : label
        Accessible.name: label
        implicitWidth: control.compact ? 40 : implicitContentWidth + leftPadding + rightPadding
        implicitHeight: Theme.touchTarget
        enabled: control.surface.textView.length > 0
        onClicked: {
            if (control.readAloud.speaking)
                control.readAloud.pause()
            else
                control.readAloud.play(control.surface.textView.getText(0, control.surface.textView.length))
        }
        // a speaker, or two bars while the voice speaks
        Sign {
            visible: control.compact
            opacity: playButton.enabled ? 1 : 0.4
            paths: control.readAloud.speaking
                   ? [[Qt.point(4, 3), Qt.point(8, 3), Qt.point(8, 17), Qt.point(4, 17)],
                      [Qt.point(12, 3), Qt.point(16, 3), Qt.point(16, 17), Qt.point(12, 17)]]
                   : [[Qt.point(2, 7), Qt.point(7, 7), Qt.point(13, 2), Qt.point(13, 18), Qt.point(7, 13),
                       Qt.point(2, 13)]]
        }
    }
}
