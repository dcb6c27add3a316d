// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import ".."

/// The frame of a control that takes a value: field, text area, spin box, combo box. It glows while it has the focus.
Rectangle {
    id: root

    property Item control
    property bool isFocused: control.activeFocus
    property bool isError: false
    property bool isReadOnly: false

    readonly property color lit: isFocused ? Theme.focus : (control.hovered ? Theme.ink : bs["input-border"])

    radius: bs["input-border-radius"] * dp
    color: control.enabled && !isReadOnly ? bs["input-bg"] : bs["input-bg-disabled"]
    border.width: isFocused ? 2 * dp : Math.max(1, dp)
    border.color: isError ? Theme.danger : lit

    Rectangle {
        anchors.fill: parent
        anchors.margins: -2 * dp
        z: -1
        radius: parent.radius + 2 * dp
        visible: root.isFocused
        color: root.isError ? bs["brand-danger"] : bs["input-border-focus"]
        opacity: 0.4
    }
}
