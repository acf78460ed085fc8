// One round button of the title strip.
import QtQuick
import Brimle

Rectangle {
    id: button

    required property string symbol
    required property string label
    required property bool glyphShown
    /// Without the round ground.
    property bool flat: false
    /// Space and Return are its own while it has the keyboard.
    readonly property bool takesKeys: true
    signal triggered

    width: 12
    height: 12
    radius: 6
    color: flat ? "transparent" : Theme.faded(Theme.primary, area.pressed ? 0.34 : 0.18)

    Accessible.role: Accessible.Button
    Accessible.name: label
    Accessible.onPressAction: triggered()

    activeFocusOnTab: true
    Keys.onSpacePressed: triggered()
    Keys.onReturnPressed: triggered()
    Hint {
        target: button
        text: button.label
    }
    FocusRing {
        target: button
        radius: 9
    }

    Symbol {
        anchors.fill: parent
        visible: button.glyphShown
        name: button.symbol
        size: 12
        color: button.flat ? Theme.secondary : Theme.primary
    }

    MouseArea {
        id: area
        anchors.fill: parent
        anchors.margins: -3
        onClicked: button.triggered()
    }
}
