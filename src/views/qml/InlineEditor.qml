// A one-line editor in the place of a text. It takes the keyboard when it opens, with the caret at the end. Return is
// done, Escape dismisses, which means whatever its owner makes of it. A hint may follow the text, on a line of its own
// where there is no room for both.
import QtQuick
import Brimle

Item {
    id: editor

    required property string initialText
    property string hint
    property alias font: input.font
    property alias color: input.color
    readonly property alias text: input.text
    signal edited(typed: string)
    signal done
    signal dismissed
    signal focusLost

    // The text may change under the editor, as by an undo.
    onInitialTextChanged: if (input.text !== initialText) input.text = initialText

    readonly property bool hintBelow: measured.advanceWidth + 8 + after.implicitWidth > width

    implicitHeight: input.height + (after.visible && hintBelow ? after.height : 0)
    baselineOffset: input.baselineOffset
    onImplicitHeightChanged: Qt.callLater(editor.show) // qmllint disable

    // What the text takes whatever room the field has, which depends on it.
    TextMetrics {
        id: measured
        font: input.font
        text: input.text
    }

    TextInput {
        id: input
        width: parent.width - (after.visible && !editor.hintBelow ? after.width + 6 : 0)
        clip: true
        selectByMouse: true
        selectedTextColor: Theme.paper
        selectionColor: Theme.faded(Theme.primary, 0.7)
        onTextEdited: editor.edited(text)
        onAccepted: editor.done()
        Keys.onEscapePressed: editor.dismissed()
        // A window that is left keeps its editor open.
        onActiveFocusChanged: if (!activeFocus && Window.active) editor.focusLost()
        Accessible.role: Accessible.EditableText
        Accessible.name: Texts.of["Edit"]
    }

    TextMenu { field: input }

    Text {
        id: after
        x: editor.hintBelow ? 0 : editor.width - width
        y: editor.hintBelow ? input.height : input.baselineOffset - baselineOffset
        width: Math.min(implicitWidth, editor.width)
        elide: Text.ElideRight
        visible: editor.hint !== ""
        text: editor.hint
        textFormat: Text.PlainText
        color: Theme.tertiary
        font: Fonts.note
    }

    /// The list it stands in, which shows it: when it opens, and when what is around it has found its place.
    property Flickable list
    Connections {
        target: editor.list
        function onContentHeightChanged() { if (input.activeFocus) editor.show() }
    }

    function findList(): Flickable {
        let item = parent
        while (item && !(item instanceof Flickable)) item = item.parent
        return item
    }
    function show() {
        if (!list) return
        const top = mapToItem(list.contentItem, 0, 0).y
        const lowest = top + height + 5 - list.height
        list.contentY = Math.max(list.originY, Math.min(top - 5, Math.max(list.contentY, lowest)))
    }

    // On the turn after it was made, when the row has its place; the caret after that.
    Component.onCompleted: {
        input.text = initialText
        list = findList()
        Qt.callLater(input.forceActiveFocus)
        Qt.callLater(() => {
            input.cursorPosition = input.length
            editor.show()
        })
    }
}
