// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A property that is true or false.
PanelRow {
    id: root

    readonly property alias box: box

    onValueChanged: box.checked = value === true

    BGUI.CheckBox {
        id: box
        size: root.size
        Accessible.name: root.label
        onToggled: root.form.commit(root.name, String(checked))
    }
}
