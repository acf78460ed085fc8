// The motion of the tick.
import QtQuick
import Brimle

NumberAnimation {
    duration: Theme.reduceMotion ? 0 : Theme.tickSpringDuration
    easing.type: Easing.BezierSpline
    easing.bezierCurve: Theme.tickSpring
}
