// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
import QtQuick 2.15
import Nuvex.GUI 1.0 as BGUI
import "values.js" as Values

/// One line of text. The item follows while it is typed; Enter or leaving the field finishes, Escape takes it back.
PanelRow {
    id: root

    property alias placeholderText: input.placeholderText
    readonly property alias input: input
    // The text before typing began.
    property string before

    function show() {
        if (!input.activeFocus || root.pending === "")
            input.text = root.value === undefined ? "" : String(root.value);
    }

    function takeBack() {
        if (root.pending === "")
            return;
        root.form.preview(root.name, Values.quoted(root.before));
        root.pending = "";
        show();
    }

    onValueChanged: show()

    BGUI.Input {
        id: input
        width: parent.width
        size: root.size
        Accessible.name: root.label
        onTextEdited: root.change(Values.quoted(text))
        onEditingFinished: root.finish()
        onActiveFocusChanged: root.before = text
        Keys.onEscapePressed: root.takeBack()
    }
}
