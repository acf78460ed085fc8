// Dragging the window by its background. The threshold keeps clicks and double clicks what they are.
import QtQuick

MouseArea {
    id: mover

    required property var target
    property point pressed

    onPressed: (mouse) => { mover.pressed = Qt.point(mouse.x, mouse.y) }
    onPositionChanged: (mouse) => {
        if (Math.abs(mouse.x - mover.pressed.x) + Math.abs(mouse.y - mover.pressed.y) > 6)
            mover.target.startSystemMove()
    }
}
