// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0

/// Buttons by type, size and state.
Card {
    id: root

    readonly property var types: ["default", "primary", "success", "info", "warning", "danger", "link"]
    readonly property var sizes: ["xsmall", "small", "base", "large", "xlarge"]

    title: qsTr("Buttons")

    Flow {
        width: parent.width
        spacing: Theme.unit

        Repeater {
            model: root.types

            Button {
                type: modelData
                text: modelData
            }
        }
    }

    Row {
        spacing: Theme.unit

        Repeater {
            model: root.sizes

            Button {
                anchors.verticalCenter: parent.verticalCenter
                size: modelData
                faIcon: "fa-play"
                text: modelData
            }
        }
    }

    StateRow {
        label: qsTr("At rest, pressed, busy, disabled")

        Button { type: "primary"; text: qsTr("Save") }
        Button { type: "primary"; text: qsTr("Save"); down: true }
        Button { type: "primary"; text: qsTr("Saving"); busy: true }
        Button { type: "primary"; text: qsTr("Save"); enabled: false }
    }

    StateRow {
        label: qsTr("Icon alone, chosen, too long a caption")

        Button { faIcon: "fa-cog" }
        Button { text: qsTr("Grid"); checkable: true; checked: true }
        Button { width: 14 * Theme.unit; faIcon: "fa-cloud-upload"; text: qsTr("Upload to the cloud") }
    }

    StateRow {
        label: qsTr("Action buttons: at rest, pressed, chosen, busy, disabled")

        ActionButton { faIcon: "fa-undo"; toolTip: qsTr("Undo") }
        ActionButton { faIcon: "fa-trash-o"; toolTip: qsTr("Delete"); down: true }
        ActionButton { faIcon: "fa-th"; toolTip: qsTr("Grid"); checkable: true; checked: true }
        ActionButton { faIcon: "fa-refresh"; toolTip: qsTr("Refresh"); busy: true }
        ActionButton { faIcon: "fa-repeat"; toolTip: qsTr("Redo"); enabled: false }
    }

    StateRow {
        label: qsTr("Tiles")

        ActionButton { size: "large"; faIcon: "fa-folder-open"; text: qsTr("Open") }
        ActionButton { size: "large"; faIcon: "fa-pencil"; text: qsTr("Edit"); down: true }
        ActionButton { size: "large"; faIcon: "fa-play"; text: qsTr("Play"); busy: true }
        ActionButton { size: "large"; faIcon: "fa-inbox"; text: qsTr("Dashboard"); enabled: false }
    }
}
