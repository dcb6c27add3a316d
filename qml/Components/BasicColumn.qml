// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import "private"
import "private/show"

/// Lays its items out one below the other, on a plate as large as they need.
Rectangle {
    id: root

    property int element: -1; function evaluate(str) {eval(str);}
    property var editor
    property var preview: preview
    property string cPrototype: "BasicColumn {
    color: 'transparent'
    spacing: 12
    hMargin: 12
    vMargin: 12
}"

    /// Items put inside stand in the layout.
    default property alias content: layout.data
    /// Pixels between two items.
    property real spacing: 12
    /// Pixels between the items and the left and right, the upper and lower edges.
    property real hMargin: 12
    property real vMargin: 12
    readonly property bool isEmpty: layout.children.length === 0

    width: isEmpty ? 320 : layout.width + 2 * hMargin
    height: isEmpty ? 160 : layout.height + 2 * vMargin
    color: "transparent"

    Column {
        id: layout
        x: root.hMargin
        y: root.vMargin
        spacing: root.spacing
    }

    Adoption {
        from: root
        to: layout
    }

    EditorHint {
        label: qsTr("Column")
        isEmpty: root.isEmpty
    }

    Component {
        id: preview

        PreviewTile {
            icon: "BasicColumn"
        }
    }
}
