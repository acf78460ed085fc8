// Today: the header with date and counts, a thin rule, the tasks, and the entry field at the bottom.
import QtQuick
import Brimle

Item {
    id: view

    required property Today today

    Header {
        id: header
        anchors { left: parent.left; right: parent.right; top: parent.top }
        today: view.today
    }

    Rectangle {
        id: rule
        anchors { left: parent.left; right: parent.right; top: header.bottom; leftMargin: 12; rightMargin: 16 }
        height: 1
        color: Theme.faded(Theme.primary, 0.08)
    }

    TaskList {
        id: tasks
        anchors {
            left: parent.left; right: parent.right; top: rule.bottom; bottom: entry.top
            topMargin: 4; leftMargin: 16; rightMargin: 16; bottomMargin: 8
        }
        today: view.today
    }

    ScrollMark { flickable: tasks }

    EntryField {
        id: entry
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 12 }
        today: view.today
        tallest: view.height - header.height - 80
    }
}
