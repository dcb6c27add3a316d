// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// Preview tile of an item that shows a text.
PreviewTile {
    id: root

    property alias text: label.text
    property alias textColor: label.color
    property alias textFormat: label.textFormat
    property string family: "Open Sans"

    Text {
        id: label
        anchors.fill: parent
        anchors.margins: 4
        color: "white"
        font.family: root.family
        font.pixelSize: 12
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }
}
