// A list of rows that the keyboard steers: the whole list is one stop of Tab, its keys are the program's.
import QtQuick

ListView {
    id: list

    /// What a row's ground and a ring may reach beyond the row before they are cut.
    readonly property real bleed: 8

    clip: true
    boundsBehavior: Flickable.StopAtBounds
    keyNavigationEnabled: false
    activeFocusOnTab: true
    currentIndex: -1 // a current row would take the keyboard for itself

    /// The keyboard goes to the list itself, also from a control within a row.
    function takeKeyboard() {
        const holder = Window.activeFocusItem
        if (holder && holder !== list) holder.focus = false
        list.forceActiveFocus()
    }
    function showRow(row: int) {
        positionViewAtIndex(row, ListView.Contain)
    }
}
