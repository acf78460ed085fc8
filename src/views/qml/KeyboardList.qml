// A list of rows that the keyboard steers: the whole list is one stop of Tab, its keys are the program's.
import QtQuick

ListView {
    id: list

    /// What a row's ground and a ring may reach beyond the row before they are cut.
    readonly property real bleed: 8

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentHeight > height // else the window is dragged by it
    keyNavigationEnabled: false
    activeFocusOnTab: true
    currentIndex: -1 // a current row would take the keyboard for itself

    Keys.onPressed: (event) => {
        const page = Math.max(20, height - 40)
        const steps = new Map([[Qt.Key_PageUp, -page], [Qt.Key_PageDown, page]])
        event.accepted = true
        if (steps.has(event.key)) scrollBy(steps.get(event.key))
        else if (event.key === Qt.Key_Home) positionViewAtBeginning()
        else if (event.key === Qt.Key_End) positionViewAtEnd()
        else event.accepted = false
    }

    /// The keyboard goes to the list itself, also from a control within a row.
    function takeKeyboard() {
        const holder = Window.activeFocusItem
        if (holder && holder !== list) holder.focus = false
        list.forceActiveFocus()
    }
    /// By so many points, up to either end.
    function scrollBy(distance: real) {
        const lowest = originY + Math.max(0, contentHeight - height)
        contentY = Math.max(originY, Math.min(contentY + distance, lowest))
    }
    function showRow(row: int) {
        positionViewAtIndex(row, ListView.Contain)
    }
}
