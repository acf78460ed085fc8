// The card of keys and entry markers, in a window of its own.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Window {
    id: panel

    required property ShortcutsCard card

    width: 300
    height: sections.height + 36
    minimumWidth: width
    maximumWidth: width
    minimumHeight: height
    maximumHeight: height
    color: Theme.paper
    flags: Qt.Tool | Qt.WindowTitleHint | Qt.WindowCloseButtonHint | Qt.WindowStaysOnTopHint

    Column {
        id: sections
        x: 18
        y: 18
        width: parent.width - 36
        spacing: 16
        focus: true
        Keys.onEscapePressed: panel.close()

        Repeater {
            model: panel.card.sections

            Column {
                id: section
                required property var modelData
                width: sections.width
                spacing: 7

                Text {
                    width: parent.width
                    text: section.modelData.title
                    textFormat: Text.PlainText
                    wrapMode: Text.Wrap
                    color: Theme.secondary
                    font: Fonts.section
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                Repeater {
                    model: section.modelData.rows

                    Item {
                        id: row
                        required property var modelData
                        width: section.width
                        // The baseline that both stand on, whatever typefaces they take their characters from.
                        readonly property real commonBaseline: Math.max(keys.baselineOffset, description.baselineOffset)
                        height: Math.max(keys.y + keys.height, description.y + description.height)
                        Accessible.role: Accessible.StaticText
                        Accessible.name: keys.text + ": " + description.text
                        Accessible.description: row.modelData.hint

                        Text {
                            id: keys
                            y: row.commonBaseline - baselineOffset
                            width: 92
                            text: row.modelData.keys
                            textFormat: Text.PlainText
                            wrapMode: Text.Wrap
                            color: Theme.primary
                            font: Fonts.key
                        }
                        Text {
                            id: description
                            x: keys.width + 12
                            y: row.commonBaseline - baselineOffset
                            width: parent.width - x
                            text: row.modelData.description
                            textFormat: Text.PlainText
                            wrapMode: Text.Wrap
                            color: Theme.secondary
                            font: Fonts.description
                        }
                        Hint {
                            target: row
                            text: row.modelData.hint
                        }
                    }
                }
            }
        }
    }
}
