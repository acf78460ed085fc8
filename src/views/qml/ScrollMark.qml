// A slim mark at the trailing edge that shows where a long list stands, while it scrolls or is pointed at.
import QtQuick
import Brimle

Rectangle {
    id: mark

    required property Flickable flickable

    x: parent.width - 8
    y: flickable.y + flickable.visibleArea.yPosition * flickable.height
    width: 3
    height: Math.max(16, flickable.visibleArea.heightRatio * flickable.height)
    radius: 1.5
    color: Theme.primary
    visible: flickable.visibleArea.heightRatio < 1
    opacity: flickable.moving ? 0.3 : 0.14
}
