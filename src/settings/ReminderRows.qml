pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkwells

// The reminder rows of the "User Defaults" screen: a switch and a time for the morning page and
// for the night page.
ColumnLayout {
    id: rows
    spacing: 10

    ReminderSettings { id: reminders }

    component ReminderRow: RowLayout {
        id: row
        required property int kind
        required property string title
        required property bool on
        required property string time
        spacing: 12
        SettingSwitch {
            id: toggle
            objectName: row.objectName + "Switch"
            Layout.fillWidth: true
            text: row.title
            checked: row.on
            onToggled: reminders.ReminderSwitchChanged(row.kind, checked)
        }
        TextField {
            id: timeField
            objectName: row.objectName + "TimeField"
            Layout.preferredWidth: 84
            text: row.time
            inputMethodHints: Qt.ImhTime
            validator: RegularExpressionValidator { regularExpression: /[0-9]{0,2}:?[0-9]{0,2}/ }
            horizontalAlignment: TextInput.AlignHCenter
            color: "black"
            font.pixelSize: 17
            Accessible.name: qsTr("%1 time").arg(row.title)
            onEditingFinished: {
                reminders.ReminderTimeChanged(row.kind, text)
                text = Qt.binding(() => row.time) // the stored time, tidied, or kept when unreadable
            }
        }
    }

    Heading {
        Layout.fillWidth: true
        Layout.topMargin: 12
        text: qsTr("Reminders")
    }
    ReminderRow {
        objectName: "MorningReminder"
        Layout.fillWidth: true
        kind: ReminderSettings.Morning
        title: qsTr("Morning Reminder")
        on: reminders.MorningReminder
        time: reminders.MorningReminderTime
    }
    ReminderRow {
        objectName: "NightReminder"
        Layout.fillWidth: true
        kind: ReminderSettings.Night
        title: qsTr("Night Reminder")
        on: reminders.NightReminder
        time: reminders.NightReminderTime
    }
}
