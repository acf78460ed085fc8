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
        onActiveFocusChanged: if (!activeFocus) editor.focusLost()
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
        font { family: input.font.family; pixelSize: Math.round((Theme.baseSize - 2) * Theme.textScale) }
    }

    /// Scrolls the list it stands in so far that it is seen.
    function show() {
        let list = parent
        while (list && !(list instanceof Flickable)) list = list.parent
        if (!list) return
        const top = mapToItem(list.contentItem, 0, 0).y
        list.contentY = Math.max(list.originY, Math.min(top - 5, Math.max(list.contentY, top + height + 5 - list.height)))
    }

    // On the turn after it was made, when the row has its place; the caret after that.
    Component.onCompleted: {
        input.text = initialText
        Qt.callLater(input.forceActiveFocus)
        Qt.callLater(() => {
            input.cursorPosition = input.length
            editor.show()
        })
    }
}
