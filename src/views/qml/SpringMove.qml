// The motion of rows that change their place.
import QtQuick
import Brimle

NumberAnimation {
    property: "y"
    duration: Theme.listSpringDuration
    easing.type: Easing.BezierSpline
    easing.bezierCurve: Theme.listSpring
}
