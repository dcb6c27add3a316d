// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// Buttons that align, spread and order the selected items.
Flow {
    id: root

    property var desk

    readonly property int count: desk.selection.movable.length

    bottomPadding: BGUI.Theme.unit
    spacing: BGUI.Theme.unit / 2

    Repeater {
        model: [
            { how: "left", tip: qsTr("Align left edges") },
            { how: "centre", tip: qsTr("Centre side by side") },
            { how: "right", tip: qsTr("Align right edges") },
            { how: "top", tip: qsTr("Align upper edges") },
            { how: "middle", tip: qsTr("Centre one above the other") },
            { how: "bottom", tip: qsTr("Align lower edges") }
        ]

        ArrangeButton {
            kind: modelData.how
            toolTip: modelData.tip
            onClicked: root.desk.arrangement.align(kind)
        }
    }

    ArrangeButton {
        kind: "across"
        toolTip: qsTr("Equal gaps side by side")
        enabled: root.count > 2
        onClicked: root.desk.arrangement.distribute(kind)
    }

    ArrangeButton {
        kind: "down"
        toolTip: qsTr("Equal gaps one above the other")
        enabled: root.count > 2
        onClicked: root.desk.arrangement.distribute(kind)
    }

    Repeater {
        model: [
            { how: "front", tip: qsTr("To the front (Ctrl+Shift+Up)") },
            { how: "forward", tip: qsTr("Forward (Ctrl+Up)") },
            { how: "backward", tip: qsTr("Backward (Ctrl+Down)") },
            { how: "back", tip: qsTr("To the back (Ctrl+Shift+Down)") }
        ]

        ArrangeButton {
            kind: modelData.how
            toolTip: modelData.tip
            onClicked: root.desk.arrangement.order(kind)
        }
    }
}
