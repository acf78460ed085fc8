// The badge of a repeating task; for one that repeats on weekdays, with their names.
import QtQuick
import Brimle

Item {
    id: badge

    required property bool weekdaysOnly
    readonly property string label: weekdaysOnly ? Texts.of["Repeats Mon–Fri"] : Texts.of["Repeats every day"]

    width: parts.width
    height: parts.height

    Accessible.role: Accessible.Graphic
    Accessible.name: label

    Row {
        id: parts
        spacing: 3

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "repeat"
            size: 10
            color: Theme.faded(Theme.secondary, 0.7)
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            visible: badge.weekdaysOnly
            text: Texts.of["M–F"]
            textFormat: Text.PlainText
            color: Theme.faded(Theme.secondary, 0.7)
            font: Fonts.badge
        }
    }

    Hint {
        target: badge
        text: badge.label
    }
}
