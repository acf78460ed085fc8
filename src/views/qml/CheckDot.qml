// The round tick control of a row: a ring that a disc with a check mark fills.
import QtQuick
import Brimle

Item {
    id: dot

    required property bool done
    signal triggered

    width: 24
    height: 24

    Accessible.role: Accessible.Button
    Accessible.name: done ? Texts.of["Untick"] : Texts.of["Tick"]
    Accessible.onPressAction: triggered()

    Rectangle {
        anchors.centerIn: parent
        width: 16
        height: 16
        radius: 8
        color: "transparent"
        border.width: 1.3
        border.color: Theme.faded(Theme.primary, 0.4)
        opacity: dot.done ? 0 : 1
        Behavior on opacity { TickMove {} }
    }

    Rectangle {
        anchors.centerIn: parent
        width: 16
        height: 16
        radius: 8
        color: Theme.faded(Theme.primary, 0.85)
        scale: dot.done ? 1 : 0.001
        opacity: dot.done ? 1 : 0
        Behavior on scale { TickMove {} }
        Behavior on opacity { TickMove {} }

        Symbol {
            anchors.centerIn: parent
            name: "checkmark"
            size: 8
            color: Theme.paper
        }
    }

    MouseArea {
        anchors.fill: parent
        onClicked: dot.triggered()
    }
}
