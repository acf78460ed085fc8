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

    /// An edge or a corner: `h` is -1 at the left and 1 at the right, `v` -1 at the top and 1 at the bottom.
    component Edge: MouseArea {
        required property int h
        required property int v

        x: h < 0 ? 0 : h > 0 ? edges.width - edges.reach : edges.reach
        y: v < 0 ? 0 : v > 0 ? edges.height - edges.reach : edges.reach
        width: h === 0 ? edges.width - 2 * edges.reach : edges.reach
        height: v === 0 ? edges.height - 2 * edges.reach : edges.reach
        onPressed: edges.target.startSystemResize((h < 0 ? Qt.LeftEdge : h > 0 ? Qt.RightEdge : 0)
                                                  | (v < 0 ? Qt.TopEdge : v > 0 ? Qt.BottomEdge : 0))
    }

    Edge { h: -1; v: -1; cursorShape: Qt.SizeFDiagCursor }
    Edge { h: 0; v: -1; cursorShape: Qt.SizeVerCursor }
    Edge { h: 1; v: -1; cursorShape: Qt.SizeBDiagCursor }
    Edge { h: -1; v: 0; cursorShape: Qt.SizeHorCursor }
    Edge { h: 1; v: 0; cursorShape: Qt.SizeHorCursor }
    Edge { h: -1; v: 1; cursorShape: Qt.SizeBDiagCursor }
    Edge { h: 0; v: 1; cursorShape: Qt.SizeVerCursor }
    Edge { h: 1; v: 1; cursorShape: Qt.SizeFDiagCursor }
}
