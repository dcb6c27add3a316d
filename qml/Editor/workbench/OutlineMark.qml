// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A mark at the end of a row of the outline: seen while it is set, and offered while the mouse is over the row.
BGUI.ActionButton {
    property bool isSet: false
    property bool isOffered: false

    width: 3 * BGUI.Theme.unit
    height: parent.height
    size: "small"
    focusPolicy: Qt.NoFocus
    opacity: isSet ? 1 : isOffered ? 0.6 : 0
}
