// A word that can be clicked.
import QtQuick
import Brimle

Text {
    id: button

    required property string hint
    /// Space and Return are its own while it has the keyboard.
    readonly property bool takesKeys: true
    signal triggered

    textFormat: Text.PlainText
    color: tip.hovered ? Theme.primary : Theme.secondary
    font: Fonts.note

    activeFocusOnTab: true
    Keys.onSpacePressed: triggered()
    Keys.onReturnPressed: triggered()
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: hint
    Accessible.focusable: true
    Accessible.onPressAction: triggered()

    MouseArea {
        anchors.fill: parent
        anchors.margins: -4
        onClicked: button.triggered()
    }

    Hint {
        id: tip
        target: button
        text: button.hint
        alone: true
    }
    FocusRing { target: button }
}
