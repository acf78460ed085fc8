// An archived task: a mark for done or never ticked, its text, its notes.
import QtQuick
import Brimle

Item {
    id: row

    required property ArchiveScreen archive
    required property string key
    required property string text
    required property var notes
    required property bool completed
    required property bool selected

    implicitHeight: content.height + 10

    Accessible.role: Accessible.ListItem
    Accessible.name: [text, completed ? Texts.of["ticked"] : "", selected ? Texts.of["selected"] : ""]
        .filter(word => word !== "").join(", ")
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: archive.select(key, 0)

    Rectangle {
        anchors { fill: parent; leftMargin: -6; rightMargin: -6 }
        radius: 4
        visible: row.selected
        color: Theme.selection
    }

    MenuOutline {
        anchors { fill: parent; leftMargin: -6; rightMargin: -6 }
        visible: row.archive.menuRow === row.key
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onClicked: (mouse) => {
            if (mouse.button === Qt.RightButton) row.archive.openMenu(row.key, mapToGlobal(mouse.x, mouse.y))
            else row.archive.select(row.key, mouse.modifiers)
        }
    }

    Symbol {
        x: 1.5
        y: content.y + label.baselineOffset - 8.5
        name: row.completed ? "checkmark" : "circle"
        size: 9
        color: row.completed ? Theme.secondary : Theme.faded(Theme.pencilRed, 0.7)
    }

    Column {
        id: content
        x: 21
        y: 5
        width: parent.width - x

        Text {
            id: label
            width: parent.width
            text: row.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            color: Theme.secondary
            font: row.completed ? Fonts.doneTask : Fonts.task
        }
        Repeater {
            model: row.notes
            Text {
                required property string modelData
                width: parent.width
                visible: modelData !== ""
                text: modelData
                Accessible.role: Accessible.StaticText
                Accessible.name: Texts.of["Note"] + ": " + modelData
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                color: Theme.tertiary
                font: Fonts.note
            }
        }
    }
}
