import QtQuick
import Larkwells

// The heading of a block of special days ("Morning", "Night"), announced as a heading; none for
// rows of neither block.
Heading {
    objectName: "section-" + section
    required property string section
    width: parent ? parent.width : 0
    visible: section.length > 0
    height: visible ? implicitHeight : 0
    topPadding: 12
    bottomPadding: 4
    leftPadding: 14
    text: section
    color: Theme.quietText
    Accessible.ignored: !visible
}
