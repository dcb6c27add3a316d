// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "picture"
import "picture/media.js" as Media

/// Preview tile of an item that shows a picture.
PreviewTile {
    id: root

    property var source: ""

    Picture {
        anchors.fill: parent
        address: Media.address(root.source)
        fillMode: Image.PreserveAspectFit
        sourceSize.width: 128
    }
}
