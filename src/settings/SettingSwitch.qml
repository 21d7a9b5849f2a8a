import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import Larkwells

// A setting's on/off switch beside its label, toggled by touch, Space or a screen reader. The
// handle is drawn flat with a rim: the style draws it through a shadow layer (two pictures of
// 220 by 220 pixels a switch) that a renderer without shaders leaves blank, handle and all.
Switch {
    id: toggle
    font.pixelSize: 16
    Accessible.name: text
    Accessible.onPressAction: if (toggle.visible && toggle.enabled) { toggle.toggle(); toggle.toggled() }
    Accessible.onToggleAction: if (toggle.visible && toggle.enabled) { toggle.toggle(); toggle.toggled() }

    indicator: Item {
        implicitWidth: 38
        implicitHeight: 32
        x: toggle.mirrored ? toggle.width - width - toggle.rightPadding : toggle.leftPadding
        y: toggle.topPadding + (toggle.availableHeight - height) / 2

        Rectangle {
            width: parent.width
            height: 14
            radius: height / 2
            y: (parent.height - height) / 2
            color: !toggle.enabled ? toggle.Material.switchDisabledTrackColor
                 : toggle.checked ? toggle.Material.switchCheckedTrackColor : toggle.Material.switchUncheckedTrackColor
        }
        Rectangle {
            width: 20
            height: 20
            radius: width / 2
            x: Math.max(0, Math.min(parent.width - width, toggle.visualPosition * parent.width - width / 2))
            y: (parent.height - height) / 2
            color: !toggle.enabled ? toggle.Material.switchDisabledHandleColor
                 : toggle.checked ? toggle.Material.switchCheckedHandleColor : toggle.Material.switchUncheckedHandleColor
            border.width: 1
            border.color: toggle.checked && toggle.enabled ? color : "#8a8a8a"
            Behavior on x {
                enabled: !toggle.pressed
                SmoothedAnimation { duration: 300 }
            }
            // The halo of a pressed or keyboard-focused switch, behind the handle.
            Rectangle {
                anchors.centerIn: parent
                z: -1
                width: 36
                height: 36
                radius: width / 2
                color: Qt.rgba(Theme.tint.r, Theme.tint.g, Theme.tint.b, 0.16)
                visible: toggle.down || toggle.visualFocus
            }
        }
    }
}
