// The window's content: the header, a thin rule, then today's tasks over the entry field, or the archive over its
// search box.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Item {
    id: view

    required property Today today
    required property ArchiveScreen archive

    // Wherever the entry field comes back from, it takes the keyboard.
    readonly property bool showsEntry: !today.compact && !archive.showing
    onShowsEntryChanged: if (showsEntry) entry.takeKeyboard()

    Header {
        id: header
        anchors { left: parent.left; right: parent.right; top: parent.top }
        today: view.today
        archive: view.archive
    }

    Rectangle {
        id: rule
        anchors { left: parent.left; right: parent.right; top: header.bottom; leftMargin: 12; rightMargin: 16 }
        height: 1
        visible: !view.today.compact
        color: Theme.faded(Theme.primary, 0.08)
    }

    Item {
        id: body
        anchors { left: parent.left; right: parent.right; top: rule.bottom; bottom: parent.bottom; topMargin: 4 }
        visible: !view.today.compact
        enabled: visible

        TaskList {
            id: tasks
            anchors { fill: parent; leftMargin: 16 - bleed; rightMargin: 16 - bleed; bottomMargin: entry.height + 20 }
            visible: !view.archive.showing
            today: view.today
        }
        ListDrop {
            anchors.fill: tasks
            visible: tasks.visible
            today: view.today
            list: tasks
        }
        FocusRing {
            target: tasks
            reach: 2
            reachAside: 2 - tasks.bleed
        }
        ScrollMark {
            flickable: tasks
            visible: tasks.visible && tasks.visibleArea.heightRatio < 1
        }
        EntryField {
            id: entry
            anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 12 }
            visible: !view.archive.showing
            today: view.today
            tallest: view.height - header.height - 80
        }

        // Made when it is shown, and gone when it is left; until then not even its types are loaded.
        Loader {
            anchors.fill: parent
            active: view.archive.showing
            Component.onCompleted: setSource("ArchivePage.qml", { archive: view.archive })
        }
    }
}
