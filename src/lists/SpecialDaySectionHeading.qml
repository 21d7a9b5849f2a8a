import QtQuick
import QtQuick.Controls
import Larkwells

// The heading of a block of special days ("Morning", "Night"), announced as a heading; none for
// rows of neither block.
Label {
    objectName: "section-" + section
    required property string section
    width: parent ? parent.width : 0
    visible: section.length > 0
    height: visible ? implicitHeight : 0
    topPadding: 12
    bottomPadding: 4
    leftPadding: 14
    text: section
    font.pixelSize: Theme.titleFontSize
    font.bold: true
    color: Theme.quietText
    Accessible.role: Accessible.Heading
    Accessible.name: text
    Accessible.ignored: !visible
}
