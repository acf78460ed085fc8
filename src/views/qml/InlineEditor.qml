// A one-line editor in the place of a text. It takes the keyboard when it opens, with the caret at the end. Return is
// done, Escape dismisses, which means whatever its owner makes of it. A hint may follow the text.
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

    implicitHeight: input.height
    baselineOffset: input.baselineOffset

    TextInput {
        id: input
        width: parent.width - (after.visible ? after.width + 6 : 0)
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
        anchors { right: parent.right; baseline: input.baseline }
        visible: editor.hint !== ""
        text: editor.hint
        textFormat: Text.PlainText
        color: Theme.tertiary
        font { family: input.font.family; pixelSize: Math.round((Theme.baseSize - 2) * Theme.textScale) }
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
