// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0

/// The type scale.
Card {
    id: root

    title: qsTr("Type")

    Repeater {
        model: ["h1", "h2", "h3", "h4", "xlarge", "large", "base", "small"]

        Label {
            width: root.contentWidth
            size: modelData
            text: qsTr("%1: Signs that people read").arg(modelData)
            wrapMode: Text.NoWrap
            elide: Text.ElideRight
        }
    }

    StateRow {
        label: qsTr("Muted, strong, link, disabled")

        Label { text: qsTr("Changed an hour ago"); muted: true }
        Label { text: qsTr("Lobby"); strong: true }
        Label { text: qsTr("See the <a href=\"help\">help page</a>") }
        Label { text: qsTr("Not now"); enabled: false }
    }
}
