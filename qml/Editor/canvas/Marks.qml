// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15

/// The frames around the selected items.
Item {
    id: root

    property Item frame

    Repeater {
        model: root.frame.selection

        SelectionRectangle {
            target: modelData
            canvas: root.frame
        }
    }
}
