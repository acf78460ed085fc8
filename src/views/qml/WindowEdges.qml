// The hairline around the window and the edges by which the system resizes it.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Item {
    id: edges

    required property Window target
    readonly property int reach: 5

    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.width: 1
        border.color: Theme.faded(Theme.primary, 0.16)
    }

    Repeater {
        model: [
            { edge: Qt.TopEdge | Qt.LeftEdge, h: -1, v: -1, shape: Qt.SizeFDiagCursor },
            { edge: Qt.TopEdge, h: 0, v: -1, shape: Qt.SizeVerCursor },
            { edge: Qt.TopEdge | Qt.RightEdge, h: 1, v: -1, shape: Qt.SizeBDiagCursor },
            { edge: Qt.LeftEdge, h: -1, v: 0, shape: Qt.SizeHorCursor },
            { edge: Qt.RightEdge, h: 1, v: 0, shape: Qt.SizeHorCursor },
            { edge: Qt.BottomEdge | Qt.LeftEdge, h: -1, v: 1, shape: Qt.SizeBDiagCursor },
            { edge: Qt.BottomEdge, h: 0, v: 1, shape: Qt.SizeVerCursor },
            { edge: Qt.BottomEdge | Qt.RightEdge, h: 1, v: 1, shape: Qt.SizeFDiagCursor }
        ]

        MouseArea {
            required property var modelData

            x: modelData.h < 0 ? 0 : modelData.h > 0 ? edges.width - edges.reach : edges.reach
            y: modelData.v < 0 ? 0 : modelData.v > 0 ? edges.height - edges.reach : edges.reach
            width: modelData.h === 0 ? edges.width - 2 * edges.reach : edges.reach
            height: modelData.v === 0 ? edges.height - 2 * edges.reach : edges.reach
            cursorShape: modelData.shape
            onPressed: edges.target.startSystemResize(modelData.edge)
        }
    }
}
