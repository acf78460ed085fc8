// The archive: one timeline with the boundary of today at the top when it opens, over its search box.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Item {
    id: page

    required property ArchiveScreen archive

    ListView {
        id: list
        anchors { fill: parent; leftMargin: 16; rightMargin: 16; bottomMargin: search.height + 20 }
        clip: true
        model: page.archive.rows
        boundsBehavior: Flickable.StopAtBounds
        cacheBuffer: 200
        keyNavigationEnabled: false
        activeFocusOnTab: true

        // A timeline shorter than the window is padded, so that the boundary can stand at the top.
        footer: Item { height: Math.max(0, list.height - 60) }

        Accessible.role: Accessible.List
        Accessible.name: Texts.of["Archive"]

        delegate: TimelineRow {
            width: ListView.view.width
            archive: page.archive
        }

        function showBoundary() {
            positionViewAtIndex(page.archive.boundary, ListView.Beginning)
        }
        function watchBoundary() {
            const boundary = itemAtIndex(page.archive.boundary)
            // Out of reach it is either below what is visible, which is then the future, or above.
            if (boundary) page.archive.boundaryMoved(boundary.y - contentY)
            else page.archive.boundaryMoved(indexAt(0, contentY) < page.archive.boundary ? height : -height)
        }

        onContentYChanged: watchBoundary()
        Component.onCompleted: {
            showBoundary()
            Qt.callLater(list.showBoundary) // qmllint disable
        }
    }
    FocusRing {
        target: list
        reach: 2
    }
    ScrollMark { flickable: list }

    SearchBox {
        id: search
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 12 }
        archive: page.archive
    }

    Connections {
        target: page.archive
        function onReleaseKeyboard() { list.forceActiveFocus() }
        function onRowShown(row) { list.positionViewAtIndex(row, ListView.Contain) }
        function onMenuAsked(row) {
            list.positionViewAtIndex(row, ListView.Contain)
            const item = list.itemAtIndex(row) as TimelineRow
            if (item) page.archive.openMenu(item.key, item.mapToGlobal(21, item.height))
        }
    }
    Component.onCompleted: list.forceActiveFocus()
}
