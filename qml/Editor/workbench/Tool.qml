// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A button of the toolbar. It leaves the keyboard where it is.
BGUI.ActionButton {
    anchors.verticalCenter: parent ? parent.verticalCenter : undefined
    onDark: true
    focusPolicy: Qt.TabFocus
}
