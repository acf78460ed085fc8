// What is dragged over today's list: a row of it travels along from row to row, text from another program becomes tasks.
// At an edge the list scrolls on under the pointer.
import QtQuick
import Brimle

DropArea {
    id: area

    required property Today today
    required property TaskList list

    readonly property real edge: 24
    readonly property real step: 6 // points a frame
    property real pointer: 0
    property string over: "" // the task of the row under the pointer
    readonly property int direction: !containsDrag ? 0 : pointer < edge ? -1 : pointer > height - edge ? 1 : 0

    // A row moves; what comes from another program stays there, too.
    function action(): int { return today.draggingId !== "" ? Qt.MoveAction : Qt.CopyAction }

    function follow(y: real) {
        pointer = y
        const row = list.itemAt(list.width / 2, list.contentY + y) as TaskRow
        const task = row ? row.taskId : ""
        if (task === over) return
        over = task
        if (task !== "") today.dragEntered(task)
    }

    onEntered: (drag) => {
        drag.accept(action())
        follow(drag.y)
    }
    onPositionChanged: (drag) => follow(drag.y)
    onExited: over = ""
    onDropped: (drop) => {
        drop.accept(action())
        over = ""
        today.dropText(drop.text)
    }

    Timer {
        interval: 16
        repeat: true
        running: area.direction !== 0 && area.list.contentHeight > area.list.height
        onTriggered: {
            area.list.scrollBy(area.step * area.direction)
            area.follow(area.pointer)
        }
    }
}
