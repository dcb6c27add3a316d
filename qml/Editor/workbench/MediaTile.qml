// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "../../Components/private/picture"
import "../../Components/private/picture/media.js" as Media

/// A picture or video of the project, by a small copy or a sign, and its name.
DragTile {
    id: root

    /// Its path in the project, and "picture" or "video".
    property string path
    property string kind

    objectName: "media " + path
    label: path.replace(/^.*\//, "")
    lines: 1
    cargo: ({ file: path })
    picture: Rectangle {
        radius: BGUI.Theme.radius("base")
        color: root.kind === "video" ? BGUI.Theme.strongInk : BGUI.Theme.sunken
        clip: true

        Picture {
            anchors.fill: parent
            address: root.kind === "picture" ? Media.address(root.path) : ""
            fillMode: Image.PreserveAspectFit
            sourceSize.width: 2 * root.pictureWidth
        }

        BGUI.FontAwesomeIcon {
            anchors.centerIn: parent
            visible: root.kind === "video"
            faIcon: "fa-film"
            size: "h2"
            color: BGUI.Theme.surface
        }
    }
}
