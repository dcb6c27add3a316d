// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// Lies over the control of a row whose property the document works out: shows how, and lets the user put the present
/// value in its place.
Rectangle {
    id: root

    property string size: "base"
    /// The source of the property.
    property string code

    /// The user wants a value instead.
    signal released()

    radius: BGUI.Theme.radius(size)
    color: BGUI.Theme.sunken
    border.width: Math.max(1, dp)
    border.color: BGUI.Theme.line

    MouseArea {
        id: area
        anchors.fill: parent
        hoverEnabled: true
        onWheel: wheel.accepted = false
    }

    BGUI.FontAwesomeIcon {
        id: sign
        width: height
        height: BGUI.Theme.controlHeight(root.size)
        faIcon: "fa-link"
        size: root.size
        color: BGUI.Theme.mutedInk
    }

    BGUI.Label {
        anchors.left: sign.right
        anchors.right: release.left
        height: sign.height
        size: root.size
        font.family: BGUI.Theme.codeFamily
        text: root.code.replace(/\s+/g, " ")
        textFormat: Text.PlainText
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    BGUI.ActionButton {
        id: release
        objectName: "release"
        anchors.right: parent.right
        height: sign.height
        size: root.size
        faIcon: "fa-chain-broken"
        toolTip: qsTr("The document works this out. Put its present value here instead")
        onClicked: root.released()
    }

    BGUI.ToolTip {
        text: root.code
        visible: area.containsMouse
    }
}
