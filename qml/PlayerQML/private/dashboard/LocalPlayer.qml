// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A player of the local network, and what can be done with it.
FocusScope {
    id: root

    property string player
    // Where it is.
    property string address

    signal sendRequested()
    signal fetchRequested()
    signal connectRequested()

    objectName: "localPlayer"
    width: row.width + 3 * BGUI.Theme.unit

    Rectangle {
        anchors.fill: parent
        radius: BGUI.Theme.radius("base")
        color: BGUI.Theme.ground
        border.width: Math.max(1, dp)
        border.color: BGUI.Theme.line
    }

    Row {
        id: row
        anchors.centerIn: parent
        spacing: BGUI.Theme.unit

        Column {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(Math.max(name.implicitWidth, host.implicitWidth), 22 * BGUI.Theme.unit)

            BGUI.Label {
                id: name
                objectName: "localPlayerName"
                width: parent.width
                text: root.player
                textFormat: Text.PlainText
                wrapMode: Text.NoWrap
                elide: Text.ElideMiddle
                strong: true
            }

            BGUI.Label {
                id: host
                objectName: "localPlayerHost"
                width: parent.width
                text: root.address
                textFormat: Text.PlainText
                wrapMode: Text.NoWrap
                elide: Text.ElideRight
                size: "small"
                muted: true
            }
        }

        BGUI.Button {
            anchors.verticalCenter: parent.verticalCenter
            focus: true
            faIcon: "fa-upload"
            text: qsTr("Send")
            onClicked: root.sendRequested()
        }

        BGUI.Button {
            anchors.verticalCenter: parent.verticalCenter
            faIcon: "fa-download"
            text: qsTr("Fetch")
            onClicked: root.fetchRequested()
        }

        BGUI.Button {
            anchors.verticalCenter: parent.verticalCenter
            faIcon: "fa-exchange"
            text: "Connect"
            onClicked: root.connectRequested()
        }
    }
}
