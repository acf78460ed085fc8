// The header of today's list: the date, how much is open, and how much waits for tomorrow.
import QtQuick
import Brimle

Item {
    id: header

    required property Today today

    implicitHeight: 36 + title.implicitHeight + 8

    Text {
        id: title
        x: 12
        y: 36
        width: Math.min(implicitWidth, parent.width - 28)
        text: header.today.dateLine
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
        anchors { right: parent.right; rightMargin: 16; baseline: title.baseline }
        text: header.today.tomorrowLabel
        textFormat: Text.PlainText
        color: Theme.tertiary
        font { family: Theme.fontFamily; pixelSize: Theme.baseSize - 3 }

        Hint {
            target: tomorrow
            text: header.today.tomorrowTooltip
        }
    }
}
