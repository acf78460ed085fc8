// The round tick control of a row: a ring that a disc with a check mark fills.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Item {
    id: dot

    required property bool done
    signal triggered

    width: 24
    height: 24

    Accessible.role: Accessible.Button
    Accessible.name: done ? Texts.of["Untick"] : Texts.of["Tick"]
    Accessible.onPressAction: triggered()

    /// From the empty ring, 0, to the disc with the mark, 1; on a spring, which swings beyond both.
    property real filled: done ? 1 : 0
    Behavior on filled { TickMove {} }

    component Round: Rectangle {
        anchors.centerIn: parent
        width: 16
        height: 16
        radius: 8
    }

    Round {
        color: "transparent"
        border { width: 1.3; color: Theme.faded(Theme.primary, 0.4) }
        opacity: 1 - dot.filled
    }

    // Most dots of a list are empty.
    Loader {
        anchors.fill: parent
        active: dot.done || dot.filled !== 0
        sourceComponent: Item {
            Round {
                color: Theme.faded(Theme.primary, 0.85)
                scale: Math.max(0.001, dot.filled)
                opacity: dot.filled

                Symbol {
                    anchors.centerIn: parent
                    name: "checkmark"
                    size: 8
                    color: Theme.paper
                }
            }
        }
    }

    MouseArea {
        anchors.fill: parent
        onClicked: dot.triggered()
    }
}
