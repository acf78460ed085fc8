// The gestures on a row: click selects, double click edits the text or the note under the pointer, right click opens the
// menu, a drag moves the row along with the pointer and offers its text to other programs.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

MouseArea {
    id: gestures

    required property Today today
    required property string taskId
    required property string text
    /// Gives the index of the note at a place of the row, below 0 where there is none.
    required property var noteAt

    /// By the left button alone.
    property bool draggable: false

    acceptedButtons: Qt.AllButtons
    preventStealing: true
    drag.target: draggable ? ghost.item as Item : null
    drag.threshold: 8

    onPressed: (mouse) => {
        draggable = mouse.button === Qt.LeftButton
        if (draggable) ghost.active = true
        else mouse.accepted = mouse.button === Qt.RightButton
    }
    onClicked: (mouse) => {
        if (mouse.button === Qt.RightButton) today.openMenu(taskId, mapToGlobal(mouse.x, mouse.y))
        else if (mouse.button === Qt.LeftButton) today.select(taskId, mouse.modifiers)
    }
    onDoubleClicked: (mouse) => {
        if (mouse.button !== Qt.LeftButton) return
        const note = noteAt(mouse.x, mouse.y)
        if (note < 0) today.beginEdit(taskId)
        else today.beginNoteEdit(taskId, note)
    }

    // What is dragged; made with the first press, since most rows are never touched.
    Loader {
        id: ghost
        active: false
        sourceComponent: Item {
            id: dragged
            Drag.dragType: Drag.Automatic
            Drag.supportedActions: Qt.CopyAction | Qt.MoveAction
            Drag.proposedAction: Qt.MoveAction
            Drag.mimeData: { "text/plain": gestures.text }
            Drag.imageSource: "qrc:/qt/qml/Brimle/symbols/nothing.svg"
            Drag.onDragStarted: gestures.today.beginDrag(gestures.taskId)
            Drag.onDragFinished: {
                dragged.Drag.active = false
                gestures.today.endDrag()
            }

            // No binding: the drag runs an event loop of its own, in which one would meet itself.
            Connections {
                target: gestures.drag
                function onActiveChanged() { if (gestures.drag.active) dragged.Drag.active = true }
            }
        }
    }
}
