import QtQuick

Window {
    width: 300
    height: 400
    visible: true
    Component.onCompleted: requestActivate()

    Rectangle {
        anchors.fill: parent
        color: "ivory"
    }
}
