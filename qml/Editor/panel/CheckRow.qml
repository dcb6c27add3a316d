// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "../desk/expressions.js" as Expressions

/// A property that is true or false: a box and its label in one line. One that the document works out is left alone.
BGUI.CheckBox {
    id: root

    property string name
    property string label
    readonly property Item form: parent.form
    readonly property var value: form.revision > 0 ? form.value(name) : undefined

    readonly property string source: form.revision > 0 ? form.source(name) : ""
    readonly property bool isBound: source !== "" && !Expressions.isConstant(source)

    size: form.size
    enabled: !isBound
    text: isBound ? qsTr("%1 (worked out: %2)").arg(label).arg(source) : label
    onValueChanged: checked = value === true
    onToggled: form.commit(name, String(checked))
}
