// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// As many tiles as a dashboard of 1 000 players has, of the same size, with a text and nothing to fetch.
Rectangle {
    width: 1280
    height: 720
    color: "#f4f6f9"

    GridView {
        anchors.fill: parent
        cellWidth: 314
        cellHeight: 250
        model: 1000

        delegate: Rectangle {
            width: 302
            height: 238
            border.width: 1
            border.color: "#ced4da"

            Text {
                text: "screen-" + index
            }
        }
    }
}
