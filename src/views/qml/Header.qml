// The header: the date, how much is open and how much waits for tomorrow; of the archive, which days and how many
// entries; and the way from one to the other. What does not fit beside the title stands under it. In the folded window
// the header is all there is: one line, from which whatever has no room is left out.
import QtQuick
import Brimle

Item {
    id: header

    required property Today today
    required property ArchiveScreen archive

    readonly property bool folded: today.compact
    readonly property real gap: 8
    readonly property real leading: folded ? 62 : 12
    readonly property real room: width - leading - 16

    // From the leading side: title, count, then from the trailing side: the turn, tomorrow.
    readonly property real besides: (count.text === "" ? 0 : count.implicitWidth + gap)
        + (tomorrow.text === "" ? 0 : tomorrow.implicitWidth + gap) + turn.implicitWidth + gap
    readonly property bool oneLine: folded || title.implicitWidth + besides <= room

    implicitHeight: folded ? Theme.foldedHeight : (oneLine ? title.y + title.height : count.y + count.height) + 8

    Accessible.role: Accessible.Grouping
    Accessible.name: title.text

    WindowMover {
        anchors.fill: parent
        target: header.Window.window
        onDoubleClicked: header.today.toggleCompact()
    }
    Hint {
        target: header
        text: Texts.of["Double-click to collapse"]
    }

    Text {
        id: title
        x: header.leading
        y: header.folded ? (Theme.foldedHeight - height) / 2 : 36
        width: Math.min(implicitWidth, (turn.visible ? turn.x - header.gap : turn.x + turn.width) - x)
        text: header.today.title
        textFormat: Text.PlainText
        wrapMode: header.folded ? Text.NoWrap : Text.Wrap
        maximumLineCount: header.folded ? 1 : 3
        elide: Text.ElideRight
        fontSizeMode: header.folded ? Text.HorizontalFit : Text.FixedSize
        minimumPixelSize: 10
        color: Theme.primary
        font: Fonts.title

        readonly property bool takesKeys: true
        activeFocusOnTab: true
        Keys.onSpacePressed: header.today.toggleCompact()
        Keys.onReturnPressed: header.today.toggleCompact()
        Accessible.role: Accessible.Heading
        Accessible.name: text
        Accessible.description: Texts.of["Double-click to collapse"]
        Accessible.onPressAction: header.today.toggleCompact()
        FocusRing { target: title }
    }

    Text {
        id: count
        x: header.oneLine ? title.x + title.width + header.gap : header.leading
        y: header.oneLine ? title.y + title.baselineOffset - baselineOffset : title.y + title.height + 2
        visible: text !== "" && (!header.oneLine || x + implicitWidth + header.gap <= turn.x)
        text: header.today.count
        textFormat: Text.PlainText
        color: header.today.allDone ? Theme.pencilRed : Theme.secondary
        font: Fonts.note
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Text {
        id: tomorrow
        x: header.width - 16 - implicitWidth - (header.oneLine ? turn.implicitWidth + header.gap : 0)
        y: header.oneLine ? title.y + title.baselineOffset - baselineOffset
                          : title.y + title.height + 2 + count.baselineOffset - baselineOffset
        visible: text !== "" && (!header.folded || x >= header.gap + (count.visible ? count.x + count.width : title.x + title.width))
        text: header.today.tomorrowLabel
        textFormat: Text.PlainText
        color: Theme.tertiary
        font: Fonts.small
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        Accessible.description: header.today.tomorrowTooltip

        Hint {
            target: tomorrow
            text: header.today.tomorrowTooltip
            alone: true
        }
    }

    TextButton {
        id: turn
        visible: !header.folded || title.implicitWidth + header.gap + implicitWidth <= header.room
        x: header.width - 16 - implicitWidth
        y: title.y + title.baselineOffset - baselineOffset
        text: header.archive.showing ? Texts.of["Today"] : Texts.of["Archive"]
        hint: header.archive.showing ? Texts.of["Back to today"] : Texts.of["Past days"]
        onTriggered: header.archive.showing = !header.archive.showing
    }
}
