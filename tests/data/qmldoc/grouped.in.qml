import QtQuick 2.15
import QtQuick.Layouts 1.15

GridLayout {
    columns: 2
    Keys.onEscapePressed: Qt.quit()
    Component.onCompleted: forceActiveFocus()

    Text {
        font { family: "Lobster"; pixelSize: 32 }
        font.bold: true
        Layout.fillWidth: true
        Layout.columnSpan: 2
        anchors.horizontalCenter: undefined
    }
    Rectangle {
        border.width: 1
        border.color: Qt.rgba(0, 0, 0, .5)
        layer { enabled: true; samples: 4 }
    }
}
