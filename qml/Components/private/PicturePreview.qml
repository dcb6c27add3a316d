// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "picture"

/// Preview tile of an item that shows a picture.
PreviewTile {
    id: root

    property var source: ""

    Picture {
        anchors.fill: parent
        source: root.source
        decodeSize: Qt.size(128, 0)
    }
}
