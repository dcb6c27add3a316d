// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import ".."
import "press.js" as Press

/// What the thumbnails share: a picture with its caption below, to click and to mark as chosen; a spinner while the
/// picture loads, an icon where there is none or it cannot be shown.
T.AbstractButton {
    id: root

    property string size: "base"
    // The item that shows the picture, and its load status as Image's.
    property Item picture
    property int status: Image.Null
    property bool selected: false
    property real frame: 0
    property real pictureSize: 12 * Theme.unit
    property real cornerRadius: bs["thumbnail-border-radius"] * dp

    readonly property bool isError: status === Image.Error

    implicitWidth: pictureSize + 2 * frame
    implicitHeight: pictureSize + 2 * frame + (caption.visible ? caption.implicitHeight + Theme.unit / 2 : 0)
    opacity: enabled ? 1 : 0.5
    hoverEnabled: true
    Accessible.role: Accessible.Button
    Accessible.name: text

    Keys.onReturnPressed: Press.press(root, event)
    Keys.onEnterPressed: Press.press(root, event)

    Rectangle {
        id: mount
        width: root.width
        height: root.height - (caption.visible ? caption.height + Theme.unit / 2 : 0)
        radius: root.cornerRadius
        color: root.down ? Theme.sunken : bs["thumbnail-bg"]
        border.width: root.selected ? 2 * dp : Math.max(1, dp)
        border.color: root.selected || root.hovered ? Theme.accent : bs["thumbnail-border"]

        Item {
            anchors.fill: parent
            anchors.margins: root.frame
            data: root.picture ? [root.picture] : []
        }

        FontAwesomeIcon {
            anchors.centerIn: parent
            visible: root.status === Image.Null || root.isError
            faIcon: root.isError ? "fa-chain-broken" : "fa-picture-o"
            color: Theme.mutedInk
            font.pixelSize: Math.min(parent.width, parent.height) / 3
        }

        Spinner {
            anchors.centerIn: parent
            visible: root.status === Image.Loading
        }

        FocusRing {
            visible: root.visualFocus
            cornerRadius: parent.radius
        }
    }

    Label {
        id: caption
        anchors.bottom: parent.bottom
        width: parent.width
        visible: text !== ""
        text: root.text
        textFormat: Text.PlainText
        size: root.size
        strong: root.selected
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.NoWrap
        elide: Text.ElideMiddle
    }
}
