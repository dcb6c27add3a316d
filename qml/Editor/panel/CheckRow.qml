// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI

/// A property that is true or false: a box and its label in one line.
BGUI.CheckBox {
    id: root

    property string name
    property string label
    readonly property Item form: parent.form
    readonly property var value: form.revision > 0 ? form.value(name) : undefined

    size: form.size
    text: label
    onValueChanged: checked = value === true
    onToggled: form.commit(name, String(checked))
}
