// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "limits.js" as Limits

/// A line at a page's foot for what went wrong. It clears itself after a while.
Item {
    id: root

    property string text

    onTextChanged: {
        if (text !== "")
            clearing.restart();
    }

    height: 6 * BGUI.Theme.unit

    BGUI.Label {
        objectName: "footerMessage"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 3 * BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        text: root.text
        textFormat: Text.PlainText
        maximumLineCount: 2
        elide: Text.ElideRight
        color: BGUI.Theme.danger
        horizontalAlignment: Text.AlignHCenter
    }

    Timer {
        id: clearing
        interval: Limits.footerMessage
        onTriggered: root.text = ""
    }
}
