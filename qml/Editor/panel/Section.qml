// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A part of a PanelForm with a title, to fold. Rows declared inside stand below it.
Column {
    id: root

    property string title
    property bool isOpen: true
    default property alias rows: body.data
    readonly property Item form: parent.form

    width: parent.width
    spacing: BGUI.Theme.unit

    Rectangle {
        width: parent.width
        height: Math.max(1, dp)
        color: BGUI.Theme.line
    }

    BGUI.ListRow {
        width: parent.width
        size: root.form.size
        text: root.title
        strong: true
        leftPadding: 0
        faIcon: root.isOpen ? "fa-angle-down" : "fa-angle-right"
        iconColor: BGUI.Theme.mutedInk
        onClicked: root.isOpen = !root.isOpen
    }

    Column {
        id: body
        readonly property Item form: root.form

        width: parent.width
        visible: root.isOpen
        spacing: 1.5 * BGUI.Theme.unit
    }
}
