// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "players.js" as Players

/// A player of the local network, and what can be done with it.
Rectangle {
    id: root

    property string player

    signal sendRequested()
    signal fetchRequested()
    signal connectRequested()

    objectName: "localPlayer"
    width: row.width + 3 * BGUI.Theme.unit
    radius: BGUI.Theme.radius("base")
    color: BGUI.Theme.ground
    border.width: Math.max(1, dp)
    border.color: BGUI.Theme.line

    Row {
        id: row
        anchors.centerIn: parent
        spacing: BGUI.Theme.unit

        BGUI.Label {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, 22 * BGUI.Theme.unit)
            text: Players.nameOf(root.player) || root.player
            textFormat: Text.PlainText
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
            strong: true
        }

        BGUI.Button {
            faIcon: "fa-upload"
            text: qsTr("Send")
            onClicked: root.sendRequested()
        }

        BGUI.Button {
            faIcon: "fa-download"
            text: qsTr("Fetch")
            onClicked: root.fetchRequested()
        }

        BGUI.Button {
            faIcon: "fa-exchange"
            text: "Connect"
            onClicked: root.connectRequested()
        }
    }
}
