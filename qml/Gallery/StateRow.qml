// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0

/// A caption, and below it what it names, side by side.
Column {
    id: root

    property string label
    default property alias items: flow.data

    width: parent ? parent.width : implicitWidth
    spacing: Theme.unit / 2

    Label {
        width: parent.width
        text: root.label
        size: "small"
        muted: true
    }

    Flow {
        id: flow
        width: parent.width
        spacing: 1.5 * Theme.unit
    }
}
