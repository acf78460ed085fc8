// The window's own buttons: close, which hides it, minimise, and the menu.
import QtQuick
import Brimle

Row {
    id: buttons

    required property Window target

    required property Today today

    spacing: 6

    HoverHandler {
        id: hover
        blocking: true // the header's tooltip lies beneath them in a folded window
    }

    WindowButton {
        objectName: "close"
        symbol: "close"
        label: Texts.of["Close"]
        glyphShown: hover.hovered
        onTriggered: buttons.target.close()
    }
    WindowButton {
        symbol: "minimise"
        label: Texts.of["Minimise"]
        glyphShown: hover.hovered
        onTriggered: buttons.target.showMinimized()
    }
    WindowButton {
        objectName: "menu"
        symbol: "menu"
        label: Texts.of["Menu"]
        glyphShown: true
        flat: true
        onTriggered: buttons.today.menuRequested()
    }
}
