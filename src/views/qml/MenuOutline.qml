// The outline of a row while its context menu is open, and tells what the menu is about.
import QtQuick
import Brimle

Rectangle {
    radius: 4
    color: "transparent"
    border { width: 1; color: Theme.faded(Theme.primary, 0.3) }
}
