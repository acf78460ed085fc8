// One task: its check dot, its text, and its notes beneath.
import QtQuick
import Brimle

Item {
    id: row

    required property string taskId
    required property string taskText
    required property var notes
    required property bool done
    required property bool highlighted
    required property bool sweeping
    signal toggled

    /// Where the first baseline of the text stands below the top of the dot.
    readonly property real baselineInDot: 16.5

    implicitHeight: content.height + 10

    Accessible.role: Accessible.ListItem
    Accessible.name: taskText

    Rectangle {
        anchors { fill: content; leftMargin: -6; rightMargin: -6; topMargin: -5; bottomMargin: -5 }
        radius: 4
        color: Theme.highlight
        visible: row.highlighted && !row.done
    }

    Column {
        id: content

        // The slide of the sweep, drawn only: the row keeps its place until it is gone.
        property real slide: row.sweeping && !Theme.reduceMotion ? 1 : 0
        Behavior on slide {
            enabled: row.sweeping
            NumberAnimation { duration: 280; easing.type: Easing.BezierSpline; easing.bezierCurve: [0.42, 0, 1, 1, 1, 1] }
        }

        x: Theme.listInset
        y: 5
        width: row.width - 2 * Theme.listInset
        spacing: 2
        opacity: 1 - slide
        transform: Translate { x: 600 * content.slide }

        Item {
            width: parent.width
            height: Math.max(dot.height, label.y + label.height)

            CheckDot {
                id: dot
                done: row.done
                onTriggered: row.toggled()
            }

            Text {
                id: label
                x: dot.width + 9
                y: Math.max(0, row.baselineInDot - baselineOffset)
                width: parent.width - x
                text: row.taskText
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                color: row.done ? Theme.secondary : Theme.primary
                font { family: Theme.fontFamily; pixelSize: Theme.baseSize; strikeout: row.done }
            }
        }

        Repeater {
            model: row.notes

            Text {
                required property string modelData

                x: 25
                width: parent.width - x
                text: modelData
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                color: Theme.faded(Theme.secondary, 0.55)
                font { family: Theme.fontFamily; pixelSize: Theme.baseSize - 2 }
            }
        }
    }
}
