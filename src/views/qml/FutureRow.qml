// A scheduled task: its text and notes, each with its editor in place.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Item {
    id: row

    required property ArchiveScreen archive
    required property string key
    required property string text
    required property var notes
    required property bool editing
    required property int noteEditing

    implicitHeight: content.height + 4

    Accessible.role: Accessible.ListItem
    Accessible.name: text
    Accessible.focusable: true
    Accessible.onPressAction: archive.beginEdit(key)

    readonly property bool takesKeys: true

    /// Asks for the next scheduled task, or with -1 for the one before.
    signal stepped(step: int)

    onActiveFocusChanged: archive.setFocusedKey(activeFocus ? key : "")
    Keys.onReturnPressed: archive.beginEdit(key)
    Keys.onTabPressed: stepped(1)
    Keys.onBacktabPressed: stepped(-1)
    Keys.onDeletePressed: archive.remove(key)

    FocusRing { target: row }

    MenuOutline {
        anchors { fill: parent; leftMargin: -6; rightMargin: -6 }
        visible: row.archive.menuRow === row.key
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: (mouse) => row.archive.openMenu(row.key, mapToGlobal(mouse.x, mouse.y))
    }

    Column {
        id: content
        y: 2
        width: parent.width

        DraftText {
            width: parent.width
            archive: row.archive
            text: row.text
            editing: row.editing
            color: Theme.primary
            font: Fonts.task
            onOpened: row.archive.beginEdit(row.key)
        }
        Repeater {
            model: row.notes.length
            DraftText {
                required property int index
                width: parent.width
                visible: text !== "" || editing
                archive: row.archive
                text: row.notes[index] ?? ""
                editing: row.noteEditing === index
                isNote: true
                color: editing ? Theme.secondary : Theme.tertiary
                font: Fonts.note
                onOpened: row.archive.beginNoteEdit(row.key, index)
            }
        }
    }
}
