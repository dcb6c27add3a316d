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

    BGUI.Label {
        id: label
        anchors.left: parent.left
        anchors.right: cancel.left
        anchors.rightMargin: 2 * BGUI.Theme.unit
        anchors.bottom: bar.top
        anchors.bottomMargin: BGUI.Theme.unit / 2
        text: root.text
        textFormat: Text.PlainText
        wrapMode: Text.NoWrap
        elide: Text.ElideMiddle
    }

    BGUI.ProgressBar {
        id: bar
        anchors.left: parent.left
        anchors.right: percent.left
        anchors.rightMargin: BGUI.Theme.unit
        anchors.bottom: parent.bottom
        value: root.progress
    }

    BGUI.Label {
        id: percent
        anchors.right: cancel.left
        anchors.rightMargin: 2 * BGUI.Theme.unit
        anchors.verticalCenter: bar.verticalCenter
        width: 5 * BGUI.Theme.unit
        horizontalAlignment: Text.AlignRight
        text: qsTr("%1 %").arg(Math.floor(100 * root.progress))
        textFormat: Text.PlainText
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
