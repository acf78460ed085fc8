// A row of the archive's timeline: the heading of a day, the boundary of today, or a task.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Item {
    id: row

    required property ArchiveScreen archive
    required property string kind
    required property string key
    required property string rowText
    required property var notes
    required property bool completed
    required property bool selected
    required property bool editing
    required property int noteEditing
    required property int index

    /// From a scheduled task that has the keyboard: to the next one, or with -1 to the one before.
    signal stepped(step: int)

    function takeKeyboard() { body.item?.forceActiveFocus() }

    implicitHeight: body.item?.implicitHeight ?? 0

    Loader {
        id: body
        width: row.width
        sourceComponent: row.kind === "boundary" ? boundary
                       : row.kind === "past" ? past
                       : row.kind === "future" ? future : heading
    }

    Component {
        id: heading
        Item {
            implicitHeight: (row.index > 0 ? 16 : 0) + label.height + 3
            Text {
                id: label
                anchors { bottom: parent.bottom; bottomMargin: 3 }
                width: parent.width
                text: row.rowText
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                color: Theme.secondary
                font: row.kind === "nothing" ? Fonts.nothing : Fonts.day
                Accessible.role: row.kind === "nothing" ? Accessible.StaticText : Accessible.Heading
                Accessible.name: text
            }
        }
    }

    Component {
        id: boundary
        BoundaryRow {
            text: row.rowText
            first: row.index === 0
        }
    }

    Component {
        id: past
        PastRow {
            archive: row.archive
            key: row.key
            text: row.rowText
            notes: row.notes
            completed: row.completed
            selected: row.selected
        }
    }

    Component {
        id: future
        FutureRow {
            archive: row.archive
            key: row.key
            text: row.rowText
            notes: row.notes
            editing: row.editing
            noteEditing: row.noteEditing
            onStepped: (step) => row.stepped(step)
        }
    }
}
