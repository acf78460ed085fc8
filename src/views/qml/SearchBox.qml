// The search of the archive.
import QtQuick
import Brimle

Rectangle {
    id: box

    required property ArchiveScreen archive

    function takeKeyboard() { input.forceActiveFocus(Qt.TabFocusReason) }

    implicitHeight: input.height + 16
    radius: 12
    color: Theme.faded(Theme.primary, 0.05)

    Symbol {
        id: glass
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        size: 13
        color: Theme.secondary
    }

    TextInput {
        id: input
        activeFocusOnTab: true
        /// Up and Down are of no use within it, and lead to the rows.
        readonly property bool leadsToRows: true
        anchors { left: glass.right; leftMargin: 9; right: parent.right; rightMargin: 10; verticalCenter: parent.verticalCenter }
        clip: true
        selectByMouse: true
        text: box.archive.query
        color: Theme.primary
        selectedTextColor: Theme.paper
        selectionColor: Theme.faded(Theme.primary, 0.7)
        font: Fonts.task
        onTextEdited: box.archive.query = text
        Keys.onEscapePressed: {
            if (text !== "") box.archive.query = ""
            else box.archive.leave()
        }
        Accessible.role: Accessible.EditableText
        Accessible.name: Texts.of["Search archive"]

        Placeholder {
            anchors.verticalCenter: parent.verticalCenter
            field: input
            text: Texts.of["Search archive"]
        }
    }

    TextMenu { field: input }

    Connections {
        target: box.archive
        function onTypingBegan() { input.forceActiveFocus() }
    }

    TapHandler { onTapped: input.forceActiveFocus() }
}
