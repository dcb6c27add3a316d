// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "../../Components/private/picture"
import "../../Components/private/picture/media.js" as Media

/// Shows a file by picture and name, and lets the user choose another or none.
Item {
    id: root

    property string size: "base"
    /// Kind of the file, of files.js.
    property string kind: "picture"
    /// Path of the file in the project, or an address.
    property string path
    property string label

    /// The user wants to choose a file, or to have none.
    signal wanted()
    signal cleared()

    implicitWidth: 32 * BGUI.Theme.unit
    implicitHeight: choose.height

    Rectangle {
        id: thumbnail
        width: height * 4 / 3
        height: choose.height
        radius: BGUI.Theme.radius("base")
        color: BGUI.Theme.sunken
        border.width: Math.max(1, dp)
        border.color: BGUI.Theme.line
        clip: true

        Picture {
            id: picture
            anchors.fill: parent
            anchors.margins: parent.border.width
            visible: status === Image.Ready
            address: root.kind === "picture" ? Media.address(root.path) : ""
            fillMode: Image.PreserveAspectCrop
            sourceSize.width: 2 * width
        }

        BGUI.FontAwesomeIcon {
            anchors.centerIn: parent
            visible: !picture.visible
            faIcon: root.kind === "picture" ? "fa-picture-o" : root.kind === "video" ? "fa-film" : "fa-file-o"
            color: BGUI.Theme.mutedInk
        }
    }

    BGUI.Label {
        anchors.left: thumbnail.right
        anchors.right: choose.left
        anchors.margins: BGUI.Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        size: root.size
        muted: root.path === ""
        text: root.path === "" ? qsTr("None") : root.path.replace(/^.*\//, "")
        textFormat: Text.PlainText
        wrapMode: Text.NoWrap
        elide: Text.ElideMiddle
    }

    BGUI.ActionButton {
        id: choose
        objectName: "choose"
        anchors.right: clear.visible ? clear.left : parent.right
        anchors.verticalCenter: parent.verticalCenter
        size: root.size
        faIcon: "fa-folder-open-o"
        toolTip: qsTr("Choose a file")
        Accessible.name: toolTip + ": " + root.label
        onClicked: root.wanted()
    }

    BGUI.ActionButton {
        id: clear
        objectName: "clear"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: root.path !== ""
        size: root.size
        faIcon: "fa-times"
        toolTip: qsTr("Take it away")
        Accessible.name: toolTip + ": " + root.label
        onClicked: root.cleared()
    }
}
