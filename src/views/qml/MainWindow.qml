// The window: frameless, its content under its own two buttons; the system moves and resizes it.
import QtQuick
import Brimle

Window {
    id: window

    required property Today today
    required property ArchiveScreen archive

    title: "Brimle"
    color: Theme.paper

    WindowMover {
        anchors.fill: parent
        target: window
    }

    TodayView {
        anchors.fill: parent
        today: window.today
        archive: window.archive
    }

    WindowButtons {
        x: window.today.compact ? 8 : 12 // folded, the title stands close beside them
        y: 11
        target: window
        today: window.today
    }

    WindowEdges {
        anchors.fill: parent
        target: window
    }
}
