// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// Names the project being worked on.
Rectangle {
    id: root

    property string project

    function escaped(text) {
        return text.replace(/&/g, "&amp;").replace(/</g, "&lt;");
    }

    height: 8 * BGUI.Theme.unit
    color: BGUI.Theme.surface

    BGUI.Label {
        objectName: "banner"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 3 * BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        size: "h4"
        font.weight: Font.Normal
        text: root.project === "" ? "<b>No Open Project</b>"
                                  : "Working on: <b>" + root.escaped(root.project) + "</b>"
        textFormat: Text.StyledText
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
    }

    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: Math.max(1, dp)
        color: BGUI.Theme.line
    }
}
