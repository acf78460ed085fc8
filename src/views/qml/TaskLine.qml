// The main line of a row: the check dot, the text or its editor, the web link, the pin and the repeat badge, on one
// baseline.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Item {
    id: line

    required property Today today
    required property string taskId
    required property string taskText
    required property bool done
    required property bool pinned
    required property string repeats
    required property string link
    required property bool editing
    required property bool selected
    required property bool hovered

    /// Where the first baseline of the text stands below the top of the dot.
    readonly property real baselineInDot: 16.5

    /// What stands beside the text, with the room for a pin, which may appear under the pointer without moving a word.
    readonly property real beside: (badges.width > 0 ? badges.width + badges.spacing : 0)
        + (pin.visible ? 0 : 10 + badges.spacing)
    /// Whether the text takes all its room: an editor, and what is written from the right.
    readonly property bool filled: editing || label.effectiveHorizontalAlignment === Text.AlignRight

    height: Math.max(dot.height, text.y + text.height)

    CheckDot {
        id: dot
        done: line.done
        onTriggered: line.today.toggle(line.taskId)
    }

    Item {
        id: text
        x: dot.width + 9
        y: Math.max(0, line.baselineInDot - label.baselineOffset)
        width: line.width - x - line.beside
        height: line.editing ? editor.height : label.height

        Text {
            id: label
            width: parent.width
            visible: !line.editing
            text: line.taskText
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            color: line.done ? Theme.secondary : Theme.primary
            font: line.done ? Fonts.doneTask : Fonts.task
            HoverHandler { cursorShape: Qt.IBeamCursor }
        }

        Loader {
            id: editor
            width: parent.width
            active: line.editing
            sourceComponent: InlineEditor {
                initialText: line.taskText
                hint: line.today.dateHint(text)
                font: Fonts.task
                color: Theme.primary
                onEdited: (typed) => line.today.setText(line.taskId, typed)
                onDone: line.today.endEdit(line.taskId)
                onDismissed: line.today.endEdit(line.taskId)
                onFocusLost: line.today.textFocusLost(line.taskId)
            }
        }
    }

    Row {
        id: badges
        x: text.x + (line.filled ? text.width : Math.min(text.width, label.contentWidth)) + spacing
        y: text.y + label.baselineOffset - Theme.baseSize * 0.36 - height / 2
        spacing: 9

        // Made where they show: most rows have none.
        Loader {
            active: line.link !== ""
            visible: active
            sourceComponent: GlyphButton {
                name: "link"
                size: 11
                color: Theme.secondary
                label: line.link
                activeFocusOnTab: line.selected
                onTriggered: line.today.openLink(line.link)
            }
        }
        Loader {
            id: pin
            active: line.pinned || line.hovered && !line.editing
            visible: active
            sourceComponent: GlyphButton {
                enabled: line.hovered && !line.editing
                name: "pin"
                size: 10
                color: line.pinned ? Theme.pencilRed : Theme.secondary
                label: line.pinned ? Texts.of["Unpin"] : Texts.of["Pin to top"]
                onTriggered: line.today.togglePin(line.taskId)
            }
        }
        Loader {
            active: line.repeats !== ""
            visible: active
            sourceComponent: RepeatBadge { weekdaysOnly: line.repeats === "weekdays" }
        }
    }
}
