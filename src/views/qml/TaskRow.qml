// One task: its check dot, its text or the editor of it, its badges, and its notes beneath.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Item {
    id: row

    required property Today today
    required property string taskId
    required property string taskText
    required property var notes
    required property bool done
    required property bool pinned
    required property bool highlighted
    required property string repeats
    required property string link
    required property bool sweeping
    required property bool selected
    required property bool editing
    required property int noteEditing

    /// Above and below its content; beside it the list has its inset.
    readonly property real padding: 5

    implicitHeight: content.height + 2 * padding

    Accessible.role: Accessible.ListItem
    Accessible.name: [taskText].concat(states()).join(", ")
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: today.select(taskId, 0)

    function states(): list<string> {
        return [done ? Texts.of["ticked"] : "", pinned ? Texts.of["pinned"] : "",
                repeats !== "" ? Texts.of["repeats"] : "", highlighted ? Texts.of["highlighted"] : "",
                selected ? Texts.of["selected"] : ""].filter(word => word !== "")
    }

    function noteAt(x: real, y: real): int {
        const line = content.childAt(x - content.x, y - content.y)
        return line instanceof NoteLine ? line.index : -1
    }

    RowGestures {
        anchors.fill: parent
        today: row.today
        taskId: row.taskId
        text: row.taskText
        noteAt: row.noteAt
    }

    component Ground: Rectangle {
        x: content.x - 6
        width: content.width + 12
        height: row.height
        radius: 4
        opacity: content.opacity
    }

    Ground { color: row.highlighted && !row.done ? Theme.highlight : "transparent" }
    Ground { color: row.selected && !row.editing ? Theme.selection : "transparent" }
    MenuOutline {
        x: content.x - 6
        width: content.width + 12
        height: row.height
        visible: row.today.menuRow === row.taskId
    }

    Column {
        id: content

        // The slide of the sweep, drawn only: the row keeps its place until it is gone.
        property real slide: row.sweeping && !Theme.reduceMotion ? 1 : 0
        readonly property real shift: 600 * slide
        Behavior on slide {
            NumberAnimation { duration: 280; easing.type: Easing.BezierSpline; easing.bezierCurve: [0.42, 0, 1, 1, 1, 1] }
        }

        x: Theme.listInset
        y: row.padding
        width: row.width - 2 * Theme.listInset
        spacing: 2
        opacity: 1 - slide
        transform: Translate { x: content.shift }

        TaskLine {
            width: parent.width
            today: row.today
            taskId: row.taskId
            taskText: row.taskText
            done: row.done
            pinned: row.pinned
            repeats: row.repeats
            link: row.link
            editing: row.editing
            selected: row.selected
            hovered: hover.hovered
        }

        Repeater {
            // By their number, so that an editor stays while its note changes.
            model: row.notes.length

            NoteLine {
                width: parent.width
                noteText: row.notes[index] ?? ""
                today: row.today
                taskId: row.taskId
                editing: row.noteEditing === index
            }
        }
    }

    HoverHandler { id: hover }
}
