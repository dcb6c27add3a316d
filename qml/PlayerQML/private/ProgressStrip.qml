// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// Long work under way: what it is, how far it has come, and a button that stops it.
FocusScope {
    id: root

    property string text
    // 0 to 1.
    property real progress

    signal canceled()

    implicitHeight: cancel.height

    Column {
        anchors.left: parent.left
        anchors.right: percent.left
        anchors.rightMargin: BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: BGUI.Theme.unit / 2

        BGUI.Label {
            width: parent.width
            text: root.text
            textFormat: Text.PlainText
            wrapMode: Text.NoWrap
            elide: Text.ElideMiddle
        }

        BGUI.ProgressBar {
            width: parent.width
            value: root.progress
        }
    }

    BGUI.Label {
        id: percent
        anchors.right: cancel.left
        anchors.rightMargin: 2 * BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        width: 6 * BGUI.Theme.unit
        horizontalAlignment: Text.AlignRight
        text: qsTr("%1 %").arg(Math.floor(100 * root.progress))
        textFormat: Text.PlainText
        wrapMode: Text.NoWrap
        muted: true
    }

    BGUI.Button {
        id: cancel
        anchors.right: parent.right
        focus: true
        size: "large"
        text: qsTr("Cancel")
        onClicked: root.canceled()
    }
}
