// The archive: one timeline with the boundary of today at the top when it opens, over its search box.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

Item {
    id: page

    required property ArchiveScreen archive

    KeyboardList {
        id: list
        anchors { fill: parent; leftMargin: 16 - bleed; rightMargin: 16 - bleed; bottomMargin: search.height + 20 }
        model: page.archive.rows
        cacheBuffer: 200

        // A timeline shorter than the window is padded, so that the boundary can stand at the top.
        footer: Item { height: Math.max(0, list.height - list.lowestRow * (list.count - page.archive.boundary)) }
        readonly property real lowestRow: 20

        // A search shows what it found, below the boundary.
        readonly property string query: page.archive.query
        onQueryChanged: showBoundary()

        Accessible.role: Accessible.List
        Accessible.name: Texts.of["Archive"]

        delegate: TimelineRow {
            x: list.bleed
            width: ListView.view.width - 2 * list.bleed
            archive: page.archive
            onStepped: (step) => list.visitScheduled(index, step)
        }

        // Tab walks from the list over the scheduled tasks to the search.
        Keys.onTabPressed: visitScheduled(-1, 1)

        /// Between the boundary's row and what is drawn of it.
        readonly property real gapAbove: page.archive.boundary > 0 ? 16 : 0

        function visitScheduled(from, step) {
            const row = page.archive.nextScheduled(from, step)
            if (row < 0) return step > 0 ? search.takeKeyboard() : takeKeyboard()
            showRow(row)
            const item = itemAtIndex(row) as TimelineRow
            if (item) item.takeKeyboard()
        }
        function showBoundary() {
            positionViewAtIndex(page.archive.boundary, ListView.Beginning)
            contentY += gapAbove
        }
        function watchBoundary() {
            const boundary = itemAtIndex(page.archive.boundary)
            // Out of reach it is either below what is visible, which is then the future, or above.
            if (boundary) return page.archive.boundaryMoved(boundary.y + gapAbove - contentY)
            const top = indexAt(width / 2, contentY)
            page.archive.boundaryMoved(top >= 0 && top < page.archive.boundary ? height : -height)
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
        reachAside: 2 - list.bleed
    }
    ScrollMark { flickable: list }

    SearchBox {
        id: search
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 12 }
        archive: page.archive
    }

    Connections {
        target: page.archive
        function onReleaseKeyboard() { list.takeKeyboard() }
        function onRowShown(row) {
            list.showRow(row)
            list.takeKeyboard()
        }
        function onMenuAsked(row) {
            list.showRow(row)
            const item = list.itemAtIndex(row) as TimelineRow
            if (item) page.archive.openMenu(item.key, item.mapToGlobal(21, item.height))
        }
    }
    Component.onCompleted: list.takeKeyboard()
}
