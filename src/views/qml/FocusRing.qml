// The ring around the control that has the keyboard; drawn only while the keyboard is what the user steers with.
import QtQuick
import Brimle

Rectangle {
    required property Item target
    property real reach: 3
    property real reachAside: reach

    anchors { fill: target; margins: -reach; leftMargin: -reachAside; rightMargin: -reachAside }
    visible: Theme.focusShown && Window.activeFocusItem === target
    color: "transparent"
    radius: 5
    border { width: 1.5; color: Theme.faded(Theme.primary, 0.55) }
}
