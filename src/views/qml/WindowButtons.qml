// The window's own two buttons: close, which hides it, and minimise.
import QtQuick
import Brimle

Row {
    id: buttons

    required property Window target

    spacing: 8

    HoverHandler { id: hover }

    WindowButton {
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
}
