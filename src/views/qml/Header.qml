// The header: the date, how much is open and how much waits for tomorrow; of the archive, which days and how many
// entries; and the way from one to the other.
import QtQuick
import Brimle

Item {
    id: header

    required property Today today
    required property ArchiveScreen archive

    implicitHeight: 36 + title.implicitHeight + 8

    Text {
        id: title
        x: 12
        y: 36
        width: Math.min(implicitWidth, turn.x - x - 8)
        text: header.today.title
        textFormat: Text.PlainText
        elide: Text.ElideRight
        color: Theme.primary
        font { family: Theme.fontFamily; pixelSize: Theme.baseSize + 1; weight: Font.DemiBold }
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Text {
        id: count
        anchors { left: title.right; leftMargin: 8; baseline: title.baseline }
        width: Math.min(implicitWidth, tomorrow.x - x - 8)
        visible: width > 0
        text: header.today.count
        textFormat: Text.PlainText
        elide: Text.ElideRight
        color: header.today.allDone ? Theme.pencilRed : Theme.secondary
        font { family: Theme.fontFamily; pixelSize: Theme.baseSize - 2 }
    }

    Text {
        id: tomorrow
        anchors { right: turn.left; rightMargin: 8; baseline: title.baseline }
        text: header.today.tomorrowLabel
        textFormat: Text.PlainText
        color: Theme.tertiary
        font { family: Theme.fontFamily; pixelSize: Theme.baseSize - 3 }

        Hint {
            target: tomorrow
            text: header.today.tomorrowTooltip
        }
    }

    TextButton {
        id: turn
        anchors { right: parent.right; rightMargin: 16; baseline: title.baseline }
        text: header.archive.showing ? Texts.of["Today"] : Texts.of["Archive"]
        hint: header.archive.showing ? Texts.of["Back to today"] : Texts.of["Past days"]
        onTriggered: header.archive.showing = !header.archive.showing
    }
}
