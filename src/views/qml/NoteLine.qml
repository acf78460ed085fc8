// One note of a row: its text, or the editor of it. An empty note is not drawn.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Item {
    id: note

    required property Today today
    required property string taskId
    required property int index
    required property string noteText
    required property bool editing

    height: editing ? editor.height : label.height
    visible: editing || noteText !== ""

    Text {
        id: label
        x: 25
        width: parent.width - x
        visible: !note.editing
        text: note.noteText
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        color: Theme.faded(Theme.secondary, 0.55)
        font: Fonts.note
        Accessible.role: Accessible.StaticText
        Accessible.name: Texts.of["Note"] + ": " + text
    }

    Loader {
        id: editor
        x: 25
        width: parent.width - x
        active: note.editing
        sourceComponent: InlineEditor {
            initialText: note.noteText
            font: Fonts.note
            color: Theme.secondary
            onEdited: (typed) => note.today.setNote(note.taskId, note.index, typed)
            onDone: note.today.endNoteEdit(note.taskId, note.index)
            onDismissed: note.today.endNoteEdit(note.taskId, note.index)
            onFocusLost: note.today.noteFocusLost(note.taskId, note.index)
        }
    }
}
