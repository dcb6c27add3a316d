// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The frame around a selected item of the document, as thick at any scale.
ItemSpace {
    id: root

    /// The colour of its edges, which part it from grounds of any colour.
    property color edgeColor: "#2a6496"

    Rectangle {
        objectName: "selectionRectangle"
        anchors.fill: parent
        color: "transparent"
        border.width: 3 / root.unit
        border.color: "lavender"
    }

    Repeater {
        model: [0, 3]

        Rectangle {
            anchors.fill: parent
            anchors.margins: (modelData - 1 + modelData / 3) / root.unit
            color: "transparent"
            border.width: 1 / root.unit
            border.color: root.edgeColor
        }
    }
}
