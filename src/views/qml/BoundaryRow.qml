// The boundary between the days to come and the past ones.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Item {
    id: boundary

    required property string text
    required property bool first

    implicitHeight: (first ? 0 : 16) + word.height + 8

    component Line: Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: (boundary.width - word.width) / 2 - 5
        height: 1
        color: Theme.faded(Theme.primary, 0.08)
    }

    Row {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; bottomMargin: 8 }
        spacing: 5

        Line {}
        Text {
            id: word
            text: boundary.text
            textFormat: Text.PlainText
            color: Theme.tertiary
            font: Fonts.boundary
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Line {}
    }
}
