// What an empty field says of itself, as small as it must be to fit.
import QtQuick
import Brimle

Text {
    required property var field // TextEdit or TextInput

    width: parent.width
    fontSizeMode: Text.HorizontalFit
    minimumPixelSize: 8
    textFormat: Text.PlainText
    visible: field.length === 0 && field.preeditText.length === 0
    color: Theme.placeholder
    font: field.font
}
