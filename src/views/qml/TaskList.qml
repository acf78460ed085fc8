// The rows of today's list. Rows that come, go and move do so on a spring; a swept row has slid out before its
// neighbours close the gap.
import QtQuick
import Brimle

// Ids of this file are read inside components of it, which Qt before 6.5 has no way to declare.
// qmllint disable unqualified

KeyboardList {
    id: list

    required property Today today

    model: today.tasks
    reuseItems: false
    cacheBuffer: 400

    Accessible.role: Accessible.List
    Accessible.name: Texts.of["Task list"]

    Connections {
        target: list.today
        function onRowShown(row) { list.showRow(row) }
        function onMenuAsked(row) {
            list.showRow(row)
            const item = list.itemAtIndex(row) as TaskRow
            if (item) list.today.openMenu(item.taskId, item.mapToGlobal(33, item.height))
        }
        function onReleaseKeyboard() { list.takeKeyboard() }
    }

    delegate: TaskRow {
        x: list.bleed
        width: ListView.view.width - 2 * list.bleed
        today: list.today
    }

    add: Transition {
        enabled: !Theme.reduceMotion
        SpringMove { property: "opacity"; from: 0; to: 1 }
    }
    remove: Transition {
        enabled: !Theme.reduceMotion
        PropertyAction { property: "enabled"; value: false }
        SpringMove { property: "opacity"; to: 0 }
    }
    displaced: Transition {
        enabled: !Theme.reduceMotion
        SpringMove {}
        // A row that is displaced while it still appears must not stay half seen.
        SpringMove { property: "opacity"; to: 1 }
    }
    move: Transition {
        enabled: !Theme.reduceMotion
        SpringMove {}
    }
}
