// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// Says something in the middle of the canvas where there is nothing else to see. It lets the mouse through,
/// save for buttons declared inside.
Rectangle {
    id: root

    property alias faIcon: state.faIcon
    property alias title: state.title
    property alias text: state.text
    property alias isError: state.isError
    default property alias actions: state.actions

    anchors.centerIn: parent
    width: Math.min(parent.width - 2 * BGUI.Theme.unit, 50 * BGUI.Theme.unit)
    height: state.implicitHeight + 4 * BGUI.Theme.unit
    radius: BGUI.Theme.radius("xlarge")
    color: BGUI.Theme.surface
    border.width: Math.max(1, dp)
    border.color: BGUI.Theme.line

    BGUI.EmptyState {
        id: state
        anchors.centerIn: parent
        width: parent.width - 4 * BGUI.Theme.unit
    }
}
