// The field for new tasks: it grows with its text, up to a part of the window, and then scrolls.
import QtQuick
import Brimle

Rectangle {
    id: field

    required property Today today
    required property real tallest

    function takeKeyboard() { edit.forceActiveFocus() }

    implicitHeight: scroller.height + 16
    radius: 8
    color: Theme.faded(Theme.primary, edit.activeFocus ? 0.08 : 0.05)

    Symbol {
        x: 10
        y: 8 + (placeholder.implicitHeight - height) / 2
        name: "plus"
        size: 11
        color: Theme.secondary
    }

    Flickable {
        id: scroller
        x: 28
        y: 8
        width: parent.width - 38
        height: Math.min(edit.height, Math.max(field.tallest, edit.cursorRectangle.height))
        contentWidth: width
        contentHeight: edit.height
        clip: contentHeight > height
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds

        function showCaret() {
            const caret = edit.cursorRectangle
            if (caret.y < contentY) contentY = caret.y
            else if (caret.y + caret.height > contentY + height) contentY = caret.y + caret.height - height
        }

        TextEdit {
            id: edit
            width: scroller.width
            // Scripts with a typeface of their own stand taller than an empty line; the field is as tall from the start.
            height: Math.max(contentHeight, placeholder.implicitHeight)
            verticalAlignment: TextEdit.AlignVCenter
            focus: true
            activeFocusOnTab: true
            /// Up and Down are of no use within it, and lead to the rows.
            readonly property bool leadsToRows: text === ""
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            selectByMouse: true
            color: Theme.primary
            selectedTextColor: Theme.paper
            selectionColor: Theme.faded(Theme.primary, 0.7)
            font: Fonts.task
            onActiveFocusChanged: if (activeFocus) field.today.addFocused()
            onCursorRectangleChanged: scroller.showCaret()
            Accessible.role: Accessible.EditableText
            Accessible.name: Texts.of["Add a task"]

            Placeholder {
                id: placeholder
                field: edit
                text: Texts.of["Add a task"]
            }
        }
    }

    EntryHighlighter {
        field: edit.textDocument
        today: field.today
        theme: Theme
    }

    TextMenu { field: edit }

    ReturnKey {
        field: edit
        onCommit: (toTomorrow) => {
            const draft = edit.text
            edit.text = ""  // unlike clear(), which would leave the draft in the history of the field
            field.today.commit(draft, toTomorrow)
        }
    }

    // Text from elsewhere goes where the caret is; more than a field can show becomes tasks, and a row only ends its
    // drag.
    DropArea {
        anchors.fill: parent
        onDropped: (drop) => {
            drop.accept(Qt.CopyAction)
            if (!field.today.fieldTakes(drop.text)) return field.today.dropText(drop.text)
            edit.insert(edit.cursorPosition, drop.text)
            edit.forceActiveFocus()
        }
    }

    TapHandler {
        onTapped: edit.forceActiveFocus()
    }

    Hint {
        target: field
        text: Texts.of["Return adds · ⇧Return for another line · ⌥Return for tomorrow · \"task // note\" attaches a note · trailing ! pins, * repeats, *w repeats Mon–Fri"]
    }

    Connections {
        target: field.today
        function onFocusAdd() { edit.forceActiveFocus() }
        function onTypingBegan() { edit.forceActiveFocus() }
    }
}
