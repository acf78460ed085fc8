// A tooltip in a window of its own, so that it is whole even where the window is small.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Item {
    id: hint

    required property Item target
    required property string text
    /// Whether no other tooltip of what is beneath may show while this may.
    property bool alone: false
    /// Whether the pointer is over the target; where this is alone, only this can tell.
    readonly property alias hovered: hover.hovered

    parent: target
    anchors.fill: parent

    HoverHandler {
        id: hover
        enabled: hint.enabled && hint.text !== ""
        blocking: hint.alone
    }

    // Made under the pointer only: most tooltips never show.
    Loader {
        active: hover.hovered
        sourceComponent: Item {
            Timer {
                id: delay
                interval: 700
                running: true
                onTriggered: box.active = true
            }
            // Whoever acts has read it.
            Connections {
                target: Theme
                function onActed() {
                    delay.stop()
                    box.active = false
                }
            }
            Loader {
                id: box
                active: false
                sourceComponent: hint.tooltip
            }
        }
    }

    readonly property Component tooltip: Component {
        Window {
            id: tip
            readonly property point above: hint.mapToGlobal(0, -4)
            readonly property point below: hint.mapToGlobal(0, hint.height + 4)
            readonly property bool fitsBelow: below.y + height <= hint.Screen.virtualY + hint.Screen.height
            flags: Qt.ToolTip | Qt.FramelessWindowHint | Qt.WindowDoesNotAcceptFocus
            x: Math.max(hint.Screen.virtualX, Math.min(below.x, hint.Screen.virtualX + hint.Screen.width - width))
            y: fitsBelow ? below.y : above.y - height
            width: words.width + 16
            height: words.implicitHeight + 10
            visible: true
            color: Theme.paper

            Rectangle {
                anchors.fill: parent
                color: Theme.faded(Theme.primary, 0.04)
                border { width: 1; color: Theme.faded(Theme.primary, 0.18) }
            }
            Text {
                id: words
                x: 8
                y: 5
                width: Math.min(implicitWidth, 320)
                text: hint.text
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                color: Theme.primary
                font: Fonts.tooltip
            }
        }
    }
}
