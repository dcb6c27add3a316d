// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// The chosen file's name, and the buttons to take it or to leave.
Rectangle {
    id: root

    property string size: "base"
    property url file

    readonly property string fileName: decodeURIComponent(String(file).split("/").pop())

    signal accepted()
    signal canceled()

    implicitHeight: Theme.controlHeight(size) + 2.5 * Theme.unit
    color: Theme.ground

    Rectangle {
        width: parent.width
        height: Math.max(1, dp)
        color: Theme.line
    }

    Label {
        anchors.left: parent.left
        anchors.right: buttons.left
        anchors.margins: 2 * Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        size: root.size
        text: root.fileName || qsTr("No file chosen")
        textFormat: Text.PlainText
        muted: root.fileName === ""
        wrapMode: Text.NoWrap
        elide: Text.ElideMiddle
    }

    Row {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: 1.5 * Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit

        Button {
            size: root.size
            text: qsTr("Cancel")
            onClicked: root.canceled()
        }

        Button {
            size: root.size
            type: "primary"
            enabled: root.fileName !== ""
            text: qsTr("Open")
            onClicked: root.accepted()
        }
    }
}
