// A symbol that can be clicked, with a tooltip that says what for.
import QtQuick
import Brimle

Symbol {
    id: button

    required name
    required property string label
    /// Space and Return are its own while it has the keyboard.
    readonly property bool takesKeys: true
    signal triggered

    width: size
    height: size

    Accessible.role: enabled ? Accessible.Button : Accessible.Graphic
    Accessible.name: label
    Accessible.onPressAction: triggered()
    Keys.onSpacePressed: triggered()
    Keys.onReturnPressed: triggered()
    FocusRing { target: button }

    MouseArea {
        anchors.fill: parent
        anchors.margins: -4
        onClicked: button.triggered()
    }

    Hint {
        target: button
        text: button.label
        enabled: button.enabled
    }
}
