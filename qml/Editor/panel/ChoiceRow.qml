// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "values.js" as Values

/// One of several values.
PanelRow {
    id: root

    /// The choices: a list of maps with "text", "is" (the live value) and "code" (its source text; without it, `is` as
    /// a quoted text).
    property var choices: []
    readonly property alias box: box

    function codeOf(choice) {
        return choice.code === undefined ? Values.quoted(choice.is) : choice.code;
    }

    function show() {
        box.currentIndex = choices.findIndex(choice => choice.is === value);
    }

    onValueChanged: show()
    onChoicesChanged: show()

    BGUI.ComboBox {
        id: box
        width: parent.width
        size: root.size
        textRole: "text"
        model: root.choices
        placeholderText: root.value === undefined ? "" : String(root.value)
        Accessible.name: root.label
        onActivated: root.form.commit(root.name, root.codeOf(root.choices[index]))
    }
}
