// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import ".."
import "press.js" as Press

// What the thumbnails share: a picture with its caption below, to click and to mark as chosen; a spinner while the
// picture loads, an icon where there is none or it cannot be shown.
T.AbstractButton {
    id: control

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

    Keys.onReturnPressed: Press.press(control, event)
    Keys.onEnterPressed: Press.press(control, event)

    Rectangle {
        id: mount
        width: control.width
        height: control.height - (caption.visible ? caption.height + Theme.unit / 2 : 0)
        radius: control.cornerRadius
        color: control.down ? Theme.sunken : bs["thumbnail-bg"]
        border.width: control.selected ? 2 * dp : Math.max(1, dp)
        border.color: control.selected || control.hovered ? Theme.accent : bs["thumbnail-border"]

        Item {
            anchors.fill: parent
            anchors.margins: control.frame
            data: control.picture ? [control.picture] : []
        }

        FontAwesomeIcon {
            anchors.centerIn: parent
            visible: control.status === Image.Null || control.isError
            faIcon: control.isError ? "fa-chain-broken" : "fa-picture-o"
            color: Theme.mutedInk
            font.pixelSize: Math.min(parent.width, parent.height) / 3
        }

        Spinner {
            anchors.centerIn: parent
            visible: control.status === Image.Loading
        }

        FocusRing {
            visible: control.visualFocus
            cornerRadius: parent.radius
        }
    }

    Label {
        id: caption
        anchors.bottom: parent.bottom
        width: parent.width
        visible: text !== ""
        text: control.text
        textFormat: Text.PlainText
        size: control.size
        strong: control.selected
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.NoWrap
        elide: Text.ElideMiddle
    }
}
