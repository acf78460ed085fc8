// A text of a scheduled task, or the editor of it: Return and losing the keyboard store the draft, Escape drops it, the
// arrows walk between the text and the notes.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Item {
    id: draft

    required property ArchiveScreen archive
    required property string text
    required property bool editing
    required property color color
    required property font font
    property bool isNote: false
    signal opened

    height: editing ? editor.height : label.height

    Text {
        id: label
        width: parent.width
        visible: !draft.editing
        text: draft.text
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        color: draft.color
        font: draft.font

        Accessible.ignored: !draft.isNote
        Accessible.role: Accessible.StaticText
        Accessible.name: Texts.of["Note"] + ": " + text

        TapHandler { onDoubleTapped: draft.opened() }
    }

    Loader {
        id: editor
        width: parent.width
        active: draft.editing
        sourceComponent: InlineEditor {
            initialText: draft.text
            hint: draft.isNote ? "" : draft.archive.dateHint(text)
            font: draft.font
            color: draft.color
            onEdited: (typed) => draft.archive.setDraft(typed)
            onDone: draft.archive.commit()
            onDismissed: draft.archive.cancel()
            onFocusLost: if (draft.editing) draft.archive.commit()
            Keys.onDownPressed: draft.archive.walkDown()
            Keys.onTabPressed: (event) => {
                event.accepted = !draft.isNote
                if (!draft.isNote) draft.archive.walkDown()
            }
            Keys.onUpPressed: draft.archive.walkUp()
        }
    }
}
